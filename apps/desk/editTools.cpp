#include "editTools.h"

#include <QtGlobal>

#include <array>

namespace orvex {

namespace {

constexpr std::array kTools = std::to_array<EditTool>({
    {"CC", QT_TR_NOOP("&Closed Cross"),
     QT_TR_NOOP("Break the first multiline where it crosses the second")},
    {"OC", QT_TR_NOOP("&Open Cross"),
     QT_TR_NOOP("Break the first multiline, and the outer lines of the second")},
    {"MC", QT_TR_NOOP("&Merged Cross"),
     QT_TR_NOOP("Break the outer lines of both multilines where they cross")},
    {"CT", QT_TR_NOOP("Closed &Tee"),
     QT_TR_NOOP("End the first multiline at the second, which stays whole"), true},
    {"OT", QT_TR_NOOP("Open T&ee"),
     QT_TR_NOOP("End the first multiline at the second and open that")},
    {"MT", QT_TR_NOOP("Merged Tee"),
     QT_TR_NOOP("End the first multiline inside the second and join their lines")},
    {"CJ", QT_TR_NOOP("Corner &Joint"),
     QT_TR_NOOP("Trim or lengthen two multilines to a common corner"), true},
    {"AV", QT_TR_NOOP("&Add Vertex"), QT_TR_NOOP("Put a vertex into a multiline")},
    {"DV", QT_TR_NOOP("&Delete Vertex"), QT_TR_NOOP("Take a vertex out of a multiline")},
    {"CS", QT_TR_NOOP("Cut &Single"), QT_TR_NOOP("Cut one line of a multiline between two points"),
     true},
    {"CA", QT_TR_NOOP("Cut A&ll"), QT_TR_NOOP("Cut all lines of a multiline between two points")},
    {"WA", QT_TR_NOOP("&Weld All"), QT_TR_NOOP("Close the cuts of a multiline between two points")},
});

} // namespace

std::span<const EditTool> editTools() {
    return kTools;
}

} // namespace orvex
