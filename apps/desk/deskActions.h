#pragma once

#include <span>

namespace orvex {

// Where an action stands in the menu bar.
enum class DeskMenu { file, edit, view, draw, modify, tools, help };

// One entry of a menu. Texts are shown through Qt's translation, "&" marks the access key.
struct DeskActionRow {
    DeskMenu menu = DeskMenu::file;
    const char* name = "";      // of the object, and of its icon
    const char* text = nullptr; // null: a line between groups
    const char* hint = "";      // for the status bar and the tool bar
    const char* shortcut = "";
    const char* command = nullptr; // typed for the user; null where the window acts itself
    const char* answer = nullptr;  // typed at the command's first prompt
    bool isInToolBar = false;
};

// In the order of the menus.
std::span<const DeskActionRow> deskActions();

} // namespace orvex
