#pragma once

#include "CWnd.h"

// A line of text to edit.
class CEdit : public CWnd {};
