#pragma once

#include <span>

namespace orvex {

// What the window knows of a multiline tool. A program never sees the module's headers, so this
// repeats what the module says of it; a test compares both.
struct EditTool {
    const char* keyword = ""; // of -MLEDIT
    const char* text = "";    // of the menu; without "&" the palette's caption
    const char* help = "";    // for the status bar
    bool startsGroup = false; // a separator comes before it
};

// In the module's order. Texts are shown through Qt's translation, "&" marks the access key.
std::span<const EditTool> editTools();

} // namespace orvex
