#include "selectionLines.h"

#include "SelectionMemory.h"
#include "canvasMarks.h"
#include "clickedPoint.h"
#include "qtWide.h"

namespace orvex {

namespace {

QString placeText(PlanPoint at, double unitsPerPixel) {
    return toQt(pointText(clickedPoint(at.x, at.y, unitsPerPixel)));
}

QStringList takingAway(QStringList lines, const SelectionProgress& progress, bool takesAway) {
    if (takesAway && !progress.removes) {
        lines.prepend(QStringLiteral("Remove"));
        lines.append(QStringLiteral("Add"));
    }
    return lines;
}

} // namespace

QStringList pickLines(const SelectionProgress& progress, PlanPoint at, std::uint64_t handle,
                      bool takesAway, double unitsPerPixel) {
    const QString line =
        placeText(at, unitsPerPixel) + QStringLiteral(" #") + QString::number(handle, 16).toUpper();
    return takingAway({line}, progress, takesAway);
}

QStringList windowLines(const SelectionProgress& progress, PlanPoint first, PlanPoint second,
                        bool takesAway, double unitsPerPixel) {
    const bool isCrossing = isCrossingWindow(first.x, second.x);
    return takingAway({isCrossing ? QStringLiteral("C") : QStringLiteral("W"),
                       placeText(first, unitsPerPixel), placeText(second, unitsPerPixel)},
                      progress, takesAway);
}

} // namespace orvex
