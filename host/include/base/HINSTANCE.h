#pragma once

struct HINSTANCE__;

// An opened module or resource library. Opaque: only its identity means something.
using HINSTANCE = HINSTANCE__*;
