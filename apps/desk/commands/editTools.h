#pragma once

#include <QString>

#include <span>

namespace orvex {

struct PromptRequest;

// What the window knows of a multiline tool. A program never sees the module's headers, so this
// repeats what the module says of it; a test compares both.
struct EditTool {
    const char* keyword = ""; // of -MLEDIT
    const char* text = "";    // of the menu; without "&" the palette's caption
    const char* help = "";    // for the status bar and hints
    const char* picture = ""; // strokes, see strokeIcon
    bool startsGroup = false; // a separator comes before it
};

// In the module's order. Texts are shown through Qt's translation, "&" marks the access key.
std::span<const EditTool> editTools();
// Null for any other word.
const EditTool* findEditTool(const QString& keyword);

// As they are shown.
QString toolMenuText(const EditTool& tool);
QString toolName(const EditTool& tool);
QString toolHelp(const EditTool& tool);

// Whether the module asks which tool it is to be.
bool isToolQuestion(const PromptRequest& request);

} // namespace orvex
