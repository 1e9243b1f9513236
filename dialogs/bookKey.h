#pragma once

#include "KdCmColor.h"

#include <string>

// A colour's key in its colour book; empty where it is in none.
std::wstring bookKey(const KdCmColor& color);
