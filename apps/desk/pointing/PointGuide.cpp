#include "PointGuide.h"

#include "Session.h"
#include "clickedPoint.h"
#include "geometry.h"
#include "roundNumber.h"
#include "snapWords.h"
#include "userFrame.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <cmath>

namespace orvex {

namespace {

constexpr double kFlat = 1e-9; // of an axis that may leave the plan

QString shownName(SnapMode mode) {
    return QCoreApplication::translate("orvex", snapName(mode));
}

GuidedPoint guidedTo(const SnapTarget& target) {
    return {.at = target.at,
            .isExact = true,
            .marker = target.mode,
            .name = shownName(target.mode),
            .attractor = target.attractor};
}

// An axis of the user's coordinate system, where it lies in the plan.
std::optional<PlanPoint> userAxis(const KdGeVector3d& axis) {
    const KdGeVector3d world = userDirectionToWorld(axis);
    const bool isFlat = std::abs(std::hypot(world.x, world.y) - 1.0) <= kFlat;
    return isFlat ? std::optional(PlanPoint{world.x, world.y}) : std::nullopt;
}

double dot(PlanPoint a, PlanPoint b) {
    return a.x * b.x + a.y * b.y;
}

// To the decimals that a click has, so that lengths stay readable.
double roundedLength(double length, double unitsPerPixel) {
    const double scale = std::pow(10.0, worthwhileDecimals(unitsPerPixel) + 1);
    const double rounded = std::round(length * scale) / scale;
    return std::isfinite(rounded) ? rounded : length;
}

} // namespace

// The unit vector of the allowed direction next to the cursor; nothing where the cursor is free.
std::optional<PlanPoint> PointGuide::rayDirection(PlanPoint base, PlanPoint cursor,
                                                  double unitsPerPixel) const {
    const std::optional<PlanPoint> x = userAxis({1.0, 0.0, 0.0});
    const std::optional<PlanPoint> y = userAxis({0.0, 1.0, 0.0});
    const PlanPoint way{cursor.x - base.x, cursor.y - base.y};
    if (direction == PointDirection::any || !x || !y || way == PlanPoint{}) {
        return std::nullopt;
    }
    const double degrees = std::atan2(dot(way, *y), dot(way, *x)) * 180.0 / kPi;
    const double grid = direction == PointDirection::square ? 90.0 : step;
    const double kept = std::round(degrees / grid) * grid;
    const double quarters = kept / 90.0;
    double cosine = std::cos(kept * kPi / 180.0);
    double sine = std::sin(kept * kPi / 180.0);
    if (quarters == std::round(quarters)) { // without what rounding leaves of pi
        cosine = std::round(cosine);
        sine = std::round(sine);
    }
    const PlanPoint ray{x->x * cosine + y->x * sine, x->y * cosine + y->y * sine};
    const double aside = std::abs(way.x * ray.y - way.y * ray.x);
    const bool isNear = aside <= aperture * unitsPerPixel;
    return direction == PointDirection::square || isNear ? std::optional(ray) : std::nullopt;
}

GuidedPoint PointGuide::onRay(PlanPoint base, PlanPoint ray, PlanPoint cursor,
                              double unitsPerPixel) const {
    const PlanPoint way{cursor.x - base.x, cursor.y - base.y};
    const double length = roundedLength(dot(way, ray), unitsPerPixel);
    GuidedPoint point{
        .at = {withoutNoise(base.x + ray.x * length, std::max(std::abs(base.x), length)),
               withoutNoise(base.y + ray.y * length, std::max(std::abs(base.y), length))},
        .isExact = true,
        .rayFrom = base};
    if (direction == PointDirection::steps) {
        const double degrees = std::atan2(ray.y, ray.x) * 180.0 / kPi;
        point.name =
            QString::number(degrees < 0.0 ? degrees + 360.0 : degrees, 'g', 4) + QChar(176);
    }
    return point;
}

GuidedPoint PointGuide::point(Session& session, const PointContext& context, PlanPoint cursor,
                              Qt::KeyboardModifiers modifiers) {
    const double unitsPerPixel = session.view().unitsPerPixel();
    std::optional<SnapTarget> target;
    const bool isSuspended = (modifiers & Qt::ControlModifier) != 0;
    if ((isSnapOn || word) && !isSuspended) {
        target = findSnap(session.scene(), {.cursor = cursor,
                                            .unitsPerPixel = unitsPerPixel,
                                            .modes = word.value_or(modes),
                                            .aperture = aperture,
                                            .base = context.base,
                                            .exclusion = context.exclusion,
                                            .held = m_held});
    }
    const bool isLine = target && target->mode == SnapMode::nearest;
    m_held = isLine ? std::nullopt : target;
    if (target && !isLine) {
        return guidedTo(*target);
    }
    const auto ray = context.base ? rayDirection(*context.base, cursor, unitsPerPixel)
                                  : std::optional<PlanPoint>();
    if (!ray) {
        return target ? guidedTo(*target) : GuidedPoint{.at = cursor};
    }
    GuidedPoint point = onRay(*context.base, *ray, cursor, unitsPerPixel);
    if (isLine) {
        if (const auto crossing = crossingOnRay(*context.base, *ray, target->line)) {
            point.at = *crossing;
            point.marker = SnapMode::intersection;
            point.name = shownName(SnapMode::intersection);
        }
    }
    return point;
}

} // namespace orvex
