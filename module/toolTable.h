#pragma once

#include "CMlineEdit.h"

#include <span>

// One of the twelve editing tools.
struct ToolRow {
    int number; // 1 to 12
    const wchar_t* keyword;
    int (CMlineEdit::*tool)(HINSTANCE resources);
};

std::span<const ToolRow> toolTable();

// The number of the first tool with this keyword, in any case; 0 for none.
int toolOfKeyword(const wchar_t* keyword);
