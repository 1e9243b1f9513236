#pragma once

#include "HINSTANCE.h"
#include "Tool.h"

#include <array>

class CMlineEdit;

namespace mledit {

// What the commands and the palette know of an editing tool.
struct ToolRow {
    Tool tool;
    const wchar_t* keyword;                      // of -MLEDIT
    int (CMlineEdit::*run)(HINSTANCE resources); // gives the last prompt status
    int control;                                 // the palette's button
    const char* button;                          // its object name
    const char* picture;                         // what it shows
    const wchar_t* bitmap;                       // its bitmaps' names less "_UP", "_DOWN", "_FOCUS"
};

// In the order of the tools' numbers.
extern const std::array<ToolRow, kToolCount> kTools;

// Null for none.
const ToolRow* findTool(int number);
const ToolRow* findTool(const wchar_t* keyword); // in any case

} // namespace mledit
