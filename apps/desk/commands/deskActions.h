#pragma once

#include <cstdint>
#include <span>
#include <variant>

namespace orvex {

// The menus of the bar, in its order.
enum class DeskMenu : std::uint8_t { file, edit, view, draw, modify, help };

// What the window does by itself.
enum class WindowAct : std::uint8_t {
    newDrawing,
    open,
    save,
    saveAs,
    exportPicture,
    recover,
    autosave,
    playScript,
    saveHistory,
    exit,
    undo,
    redo,
    undoMemory,
    zoomExtents,
    zoomWindow,
    zoomPrevious,
    zoomIn,
    zoomOut,
    help,
    about,
};

// What selects by hand, and takes what is selected away.
enum class SelectAct : std::uint8_t { all, previous, none, erase };

// What is typed for the user.
struct TypedCommand {
    const char* command = "";
    const char* answer = nullptr; // at the command's first prompt; null for none
};

// Menus that are filled from elsewhere: recent drawings, the editing tools, the styles and layers
// of the drawing.
enum class Submenu : std::uint8_t { recent, tools, styles, layers };

using DeskAct = std::variant<WindowAct, SelectAct, TypedCommand, Submenu>;

// One entry of a menu. Texts are shown through Qt's translation, "&" marks the access key.
struct DeskAction {
    DeskMenu menu = DeskMenu::file;
    const char* name = ""; // of the QAction
    const char* text = "";
    const char* help = "";      // for the status bar and the tool bar
    const char* shortcuts = ""; // separated by "; "
    const char* picture = "";   // strokes, see strokeIcon; empty for none
    DeskAct act;
    bool startsGroup = false; // a separator comes before it
    bool isInToolBar = false;
};

// In the order of the menus.
std::span<const DeskAction> deskActions();

} // namespace orvex
