#include "joinTexts.h"

#include "JoinScript.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>
#include <array>
#include <cstddef>

namespace orvex {

namespace {

constexpr double kWidthsAround = 12.0; // widths of the widest wall to see around a place

QString shown(const char* text, int count) {
    return QCoreApplication::translate("joinTexts", text).arg(count);
}

QString counted(std::size_t count, const char* one, const char* many) {
    return shown(count == 1 ? one : many, static_cast<int>(count));
}

std::size_t countOf(const JoinReport& report, PlaceResult result) {
    return static_cast<std::size_t>(
        std::count_if(report.places.begin(), report.places.end(),
                      [result](const JoinPlace& place) { return place.result == result; }));
}

// "3 crosses, 1 tee".
QString kindsOf(const JoinReport& report, PlaceResult result) {
    struct Kind {
        PlaceKind kind;
        const char* one;
        const char* many;
    };
    constexpr std::array kKinds{
        Kind{PlaceKind::cross, QT_TRANSLATE_NOOP("joinTexts", "%1 cross"),
             QT_TRANSLATE_NOOP("joinTexts", "%1 crosses")},
        Kind{PlaceKind::tee, QT_TRANSLATE_NOOP("joinTexts", "%1 tee"),
             QT_TRANSLATE_NOOP("joinTexts", "%1 tees")},
        Kind{PlaceKind::corner, QT_TRANSLATE_NOOP("joinTexts", "%1 corner"),
             QT_TRANSLATE_NOOP("joinTexts", "%1 corners")},
    };
    QStringList parts;
    for (const Kind& kind : kKinds) {
        const auto count =
            std::count_if(report.places.begin(), report.places.end(), [&](const JoinPlace& place) {
                return place.result == result && place.kind == kind.kind;
            });
        if (count > 0) {
            parts << counted(static_cast<std::size_t>(count), kind.one, kind.many);
        }
    }
    return parts.join(QStringLiteral(", "));
}

double widthAt(const JoinPlace& place, std::span<const JoinWall> walls) {
    double half = 0.0;
    for (const unsigned wall : place.walls) {
        if (walls[wall].isUsable()) {
            half = std::max(half, walls[wall].halfWidth(0));
        }
    }
    return 2.0 * half;
}

} // namespace

QString joinSummary(const JoinReport& report) {
    const PlaceResult done = report.isPlayed ? PlaceResult::joined : PlaceResult::planned;
    QStringList lines;
    const std::size_t count = countOf(report, done);
    lines << (report.isPlayed ? counted(count, QT_TRANSLATE_NOOP("joinTexts", "%1 joint was made"),
                                        QT_TRANSLATE_NOOP("joinTexts", "%1 joints were made"))
                              : counted(count, QT_TRANSLATE_NOOP("joinTexts", "%1 joint to make"),
                                        QT_TRANSLATE_NOOP("joinTexts", "%1 joints to make")));
    if (count > 0) {
        lines.back() += QStringLiteral(": ") + kindsOf(report, done);
    }
    if (const std::size_t already = countOf(report, PlaceResult::already); already > 0) {
        lines << counted(already, QT_TRANSLATE_NOOP("joinTexts", "%1 place is joined already"),
                         QT_TRANSLATE_NOOP("joinTexts", "%1 places are joined already"));
    }
    if (const std::size_t unasked = countOf(report, PlaceResult::unasked); unasked > 0) {
        lines << counted(unasked, QT_TRANSLATE_NOOP("joinTexts", "%1 place isn't asked for"),
                         QT_TRANSLATE_NOOP("joinTexts", "%1 places aren't asked for"));
    }
    if (const std::size_t left = countOf(report, PlaceResult::left); left > 0) {
        lines << counted(left, QT_TRANSLATE_NOOP("joinTexts", "%1 place is left as it is:"),
                         QT_TRANSLATE_NOOP("joinTexts", "%1 places are left as they are:"));
    }
    return lines.join('\n');
}

std::vector<LeftPlace> leftPlaces(const JoinReport& report) {
    std::vector<LeftPlace> places;
    for (const JoinPlace& place : report.places) {
        if (place.result == PlaceResult::left) {
            const QString title = QString::fromStdString(joinPlaceTitle(place, report.walls));
            places.push_back({{place.at.x, place.at.y},
                              widthAt(place, report.walls) * kWidthsAround,
                              title + QStringLiteral(":\n    ") +
                                  QString::fromStdString(joinReasonText(place, report.walls))});
        }
    }
    return places;
}

std::vector<CanvasMark> joinMarks(const JoinReport& report) {
    std::vector<CanvasMark> marks;
    for (const JoinPlace& place : report.places) {
        if (place.result == PlaceResult::planned || place.result == PlaceResult::left) {
            const bool isLeft = place.result == PlaceResult::left;
            marks.push_back(
                {{place.at.x, place.at.y}, isLeft ? MarkKind::left : MarkKind::planned});
        }
    }
    return marks;
}

} // namespace orvex
