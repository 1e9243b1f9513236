#include "deskActions.h"

#include <QtGlobal>

#include <array>

namespace orvex {

namespace {

using enum DeskMenu;

constexpr std::array kRows = std::to_array<DeskActionRow>({
    {file, "new", QT_TR_NOOP("&New"), QT_TR_NOOP("Start an empty drawing"), "Ctrl+N", nullptr,
     nullptr, true},
    {file, "open", QT_TR_NOOP("&Open..."), QT_TR_NOOP("Open a drawing"), "Ctrl+O", nullptr, nullptr,
     true},
    {file, "recent", QT_TR_NOOP("Open &Recent"), QT_TR_NOOP("Open a drawing of late")},
    {file, "line1", nullptr, nullptr},
    {file, "save", QT_TR_NOOP("&Save"), QT_TR_NOOP("Save the drawing into its file"), "Ctrl+S",
     nullptr, nullptr, true},
    {file, "saveAs", QT_TR_NOOP("Save &As..."), QT_TR_NOOP("Save the drawing into another file"),
     "Ctrl+Shift+S"},
    {file, "export", QT_TR_NOOP("&Export Picture..."),
     QT_TR_NOOP("Draw the drawing into an SVG, PNG or PDF file"), "Ctrl+E"},
    {file, "line2", nullptr, nullptr},
    {file, "exit", QT_TR_NOOP("E&xit"), QT_TR_NOOP("Leave the program"), "Ctrl+Q"},
    {edit, "undo", QT_TR_NOOP("&Undo"), QT_TR_NOOP("Take back the last command"), "Ctrl+Z", "U",
     nullptr, true},
    {view, "zoomExtents", QT_TR_NOOP("Zoom &Extents"), QT_TR_NOOP("Show the whole drawing"),
     "Ctrl+0", nullptr, nullptr, true},
    {view, "zoomWindow", QT_TR_NOOP("Zoom &Window"),
     QT_TR_NOOP("Show what lies between two corners"), "Ctrl+W", nullptr, nullptr, true},
    {view, "zoomPrevious", QT_TR_NOOP("Zoom &Previous"), QT_TR_NOOP("Show what was shown before"),
     "Ctrl+Backspace", nullptr, nullptr, true},
    {view, "line3", nullptr, nullptr},
    {view, "zoomIn", QT_TR_NOOP("Zoom &In"), QT_TR_NOOP("Show less, and larger"), "Ctrl++", nullptr,
     nullptr, true},
    {view, "zoomOut", QT_TR_NOOP("Zoom &Out"), QT_TR_NOOP("Show more, and smaller"), "Ctrl+-",
     nullptr, nullptr, true},
    {draw, "mline", QT_TR_NOOP("&Multiline"), QT_TR_NOOP("Draw a multiline in the current style"),
     "Ctrl+M", "MLINE", nullptr, true},
    {modify, "mledit", QT_TR_NOOP("&Edit Multilines..."),
     QT_TR_NOOP("Choose one of the twelve multiline tools"), "Ctrl+T", "MLEDIT", nullptr, true},
    {modify, "tools", QT_TR_NOOP("Multiline &Tools"), QT_TR_NOOP("The twelve multiline tools")},
    {modify, "line4", nullptr, nullptr},
    {modify, "mlstyle", QT_TR_NOOP("Multiline &Styles..."),
     QT_TR_NOOP("Manage the multiline styles of the drawing"), "Ctrl+L", "MLSTYLE"},
    {tools, "toolCC", QT_TR_NOOP("&Closed Cross"),
     QT_TR_NOOP("Break the first multiline where it crosses the second"), "", "-MLEDIT", "CC"},
    {tools, "toolOC", QT_TR_NOOP("&Open Cross"),
     QT_TR_NOOP("Break the first multiline, and the outer lines of the second"), "", "-MLEDIT",
     "OC"},
    {tools, "toolMC", QT_TR_NOOP("&Merged Cross"),
     QT_TR_NOOP("Break the outer lines of both multilines where they cross"), "", "-MLEDIT", "MC"},
    {tools, "line5", nullptr, nullptr},
    {tools, "toolCT", QT_TR_NOOP("Closed &Tee"),
     QT_TR_NOOP("End the first multiline at the second, which stays whole"), "", "-MLEDIT", "CT"},
    {tools, "toolOT", QT_TR_NOOP("Open T&ee"),
     QT_TR_NOOP("End the first multiline at the second and open that"), "", "-MLEDIT", "OT"},
    {tools, "toolMT", QT_TR_NOOP("Merged Tee"),
     QT_TR_NOOP("End the first multiline inside the second and join their lines"), "", "-MLEDIT",
     "MT"},
    {tools, "line6", nullptr, nullptr},
    {tools, "toolCJ", QT_TR_NOOP("Corner &Joint"),
     QT_TR_NOOP("Trim or lengthen two multilines to a common corner"), "", "-MLEDIT", "CJ"},
    {tools, "toolAV", QT_TR_NOOP("&Add Vertex"), QT_TR_NOOP("Put a vertex into a multiline"), "",
     "-MLEDIT", "AV"},
    {tools, "toolDV", QT_TR_NOOP("&Delete Vertex"), QT_TR_NOOP("Take a vertex out of a multiline"),
     "", "-MLEDIT", "DV"},
    {tools, "line7", nullptr, nullptr},
    {tools, "toolCS", QT_TR_NOOP("Cut &Single"),
     QT_TR_NOOP("Cut one line of a multiline between two points"), "", "-MLEDIT", "CS"},
    {tools, "toolCA", QT_TR_NOOP("Cut A&ll"),
     QT_TR_NOOP("Cut all lines of a multiline between two points"), "", "-MLEDIT", "CA"},
    {tools, "toolWA", QT_TR_NOOP("&Weld All"),
     QT_TR_NOOP("Close the cuts of a multiline between two points"), "", "-MLEDIT", "WA"},
    {help, "about", QT_TR_NOOP("&About Orvex"), QT_TR_NOOP("What this program is")},
});

} // namespace

std::span<const DeskActionRow> deskActions() {
    return kRows;
}

} // namespace orvex
