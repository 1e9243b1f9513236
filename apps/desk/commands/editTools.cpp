#include "editTools.h"

#include "PromptSource.h"
#include "joinPictures.h"
#include "qtWide.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace orvex {

namespace {

const std::array kTools = std::to_array<EditTool>({
    {"CC", QT_TR_NOOP("&Closed Cross"),
     QT_TR_NOOP("Break the first multiline where it crosses the second"),
     crossPicture(JoinKind::closed)},
    {"OC", QT_TR_NOOP("&Open Cross"),
     QT_TR_NOOP("Break the first multiline, and the outer lines of the second"),
     crossPicture(JoinKind::open)},
    {"MC", QT_TR_NOOP("&Merged Cross"),
     QT_TR_NOOP("Break the outer lines of both multilines where they cross"),
     crossPicture(JoinKind::merged)},
    {"CT", QT_TR_NOOP("Closed &Tee"),
     QT_TR_NOOP("End the first multiline at the second, which stays whole"),
     teePicture(JoinKind::closed), true},
    {"OT", QT_TR_NOOP("Open T&ee"),
     QT_TR_NOOP("End the first multiline at the second and open that"), teePicture(JoinKind::open)},
    {"MT", QT_TR_NOOP("Merged Tee"),
     QT_TR_NOOP("End the first multiline inside the second and join their lines"),
     teePicture(JoinKind::merged)},
    {"CJ", QT_TR_NOOP("Corner &Joint"),
     QT_TR_NOOP("Trim or lengthen two multilines to a common corner"),
     "M 4 22 L 4 4 L 22 4 M 13 22 L 13 13 L 22 13", true},
    {"AV", QT_TR_NOOP("&Add Vertex"), QT_TR_NOOP("Put a vertex into a multiline"),
     "M 2 13 L 22 13 M 2 21 L 22 21 C 12 17 2 M 12 2 L 12 10 M 8 6 L 16 6"},
    {"DV", QT_TR_NOOP("&Delete Vertex"), QT_TR_NOOP("Take a vertex out of a multiline"),
     "M 2 13 L 22 13 M 2 21 L 22 21 C 12 17 2 M 8 6 L 16 6"},
    {"CS", QT_TR_NOOP("Cut &Single"), QT_TR_NOOP("Cut one line of a multiline between two points"),
     "M 2 8 L 8 8 M 16 8 L 22 8 M 2 16 L 22 16 M 8 5 L 8 11 M 16 5 L 16 11", true},
    {"CA", QT_TR_NOOP("Cut A&ll"), QT_TR_NOOP("Cut all lines of a multiline between two points"),
     "M 2 8 L 8 8 M 16 8 L 22 8 M 2 16 L 8 16 M 16 16 L 22 16 M 8 5 L 8 19 M 16 5 L 16 19"},
    {"WA", QT_TR_NOOP("&Weld All"), QT_TR_NOOP("Close the cuts of a multiline between two points"),
     "M 2 8 L 22 8 M 2 16 L 22 16 C 8 8 2 C 16 8 2 C 8 16 2 C 16 16 2"},
});

} // namespace

std::span<const EditTool> editTools() {
    return kTools;
}

const EditTool* findEditTool(const QString& keyword) {
    const auto* const found = std::ranges::find_if(
        kTools, [&](const EditTool& tool) { return keyword == QLatin1String(tool.keyword); });
    return found != kTools.end() ? found : nullptr;
}

QString toolMenuText(const EditTool& tool) {
    return QCoreApplication::translate("orvex", tool.text);
}

QString toolName(const EditTool& tool) {
    return toolMenuText(tool).remove('&');
}

QString toolHelp(const EditTool& tool) {
    return QCoreApplication::translate("orvex", tool.help);
}

bool isToolQuestion(const PromptRequest& request) {
    return request.kind == PromptKind::keyword &&
           std::ranges::equal(request.keywords, kTools,
                              [](const std::wstring& keyword, const EditTool& tool) {
                                  return toQt(keyword) == QLatin1String(tool.keyword);
                              });
}

} // namespace orvex
