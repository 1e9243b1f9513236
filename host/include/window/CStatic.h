#pragma once

#include "CWnd.h"

// A label or an area for a picture.
class CStatic : public CWnd {};
