#include "SnapLine.h"

#include <algorithm>
#include <cmath>

namespace orvex {

namespace {

constexpr double kTouch = 1e-9;     // of a line's length, by which it may be missed
constexpr double kParallel = 1e-12; // sine of an angle that is none
constexpr double kRoundness = 1e-9; // of the radius
constexpr int kMostRefinements = 8; // of a crossing with a circle

PlanPoint operator-(PlanPoint a, PlanPoint b) {
    return {a.x - b.x, a.y - b.y};
}

PlanPoint operator+(PlanPoint a, PlanPoint b) {
    return {a.x + b.x, a.y + b.y};
}

PlanPoint operator*(PlanPoint a, double factor) {
    return {a.x * factor, a.y * factor};
}

double dot(PlanPoint a, PlanPoint b) {
    return a.x * b.x + a.y * b.y;
}

double cross(PlanPoint a, PlanPoint b) {
    return a.x * b.y - a.y * b.x;
}

double length(PlanPoint a) {
    return std::hypot(a.x, a.y);
}

bool isWithin(double along) {
    return along >= -kTouch && along <= 1.0 + kTouch;
}

// Of the foot on the straight line, 0 at its beginning and 1 at its end.
double footAlong(const SnapLine& line, PlanPoint place) {
    const PlanPoint direction = line.to - line.from;
    const double square = dot(direction, direction);
    return square > 0.0 ? dot(place - line.from, direction) / square : 0.0;
}

PlanPoint onCircle(const SnapLine::Circle& circle, PlanPoint toward) {
    const PlanPoint radius = toward - circle.center;
    const double size = length(radius);
    return size > 0.0 ? circle.center + radius * (circle.radius / size) : toward;
}

// A horizontal or vertical line has one coordinate to give, and ends have both.
void keepExact(PlanPoint& point, const SnapLine& line, double along) {
    if (line.circle) {
        return;
    }
    if (std::abs(along) <= kTouch) {
        point = line.from;
    } else if (std::abs(along - 1.0) <= kTouch) {
        point = line.to;
    } else if (line.from.x == line.to.x) {
        point.x = line.from.x;
    } else if (line.from.y == line.to.y) {
        point.y = line.from.y;
    }
}

// The distance of a point from the line as it goes on beyond its ends, with the direction in
// which it grows.
struct Offset {
    double distance = 0.0;
    PlanPoint gradient;
};

Offset offsetFrom(const SnapLine& line, PlanPoint point) {
    if (line.circle) {
        const PlanPoint radius = point - line.circle->center;
        const double size = length(radius);
        return {size - line.circle->radius, radius * (1.0 / size)};
    }
    const PlanPoint direction = line.to - line.from;
    const PlanPoint normal = PlanPoint{-direction.y, direction.x} * (1.0 / length(direction));
    return {dot(point - line.from, normal), normal};
}

// By Newton's method, from where the straight pieces cross.
std::optional<PlanPoint> refined(const SnapLine& a, const SnapLine& b, PlanPoint point) {
    const PlanPoint start = point;
    const double reach = length(a.to - a.from) + length(b.to - b.from);
    for (int i = 0; i < kMostRefinements; ++i) {
        const Offset one = offsetFrom(a, point);
        const Offset other = offsetFrom(b, point);
        const double sine = cross(one.gradient, other.gradient);
        if (!(std::abs(sine) > kParallel)) {
            return std::nullopt;
        }
        const PlanPoint step{
            (other.distance * one.gradient.y - one.distance * other.gradient.y) / sine,
            (one.distance * other.gradient.x - other.distance * one.gradient.x) / sine};
        point = point + step;
        if (!(distance(point, start) <= reach)) {
            return std::nullopt; // they only nearly meet
        }
    }
    return point;
}

} // namespace

double distance(PlanPoint a, PlanPoint b) {
    return length(b - a);
}

PlanPoint between(PlanPoint a, PlanPoint b) {
    return a + (b - a) * 0.5;
}

// Through three of them that lie far apart: the centre is as far from each.
std::optional<SnapLine::Circle> circleThrough(const PlanPoint* points, std::size_t count) {
    if (count < 3) {
        return std::nullopt;
    }
    const PlanPoint first = points[0];
    const PlanPoint a = points[count / 3] - first;
    const PlanPoint b = points[count * 2 / 3] - first;
    const double twice = 2.0 * cross(a, b);
    const PlanPoint toCenter{(b.y * dot(a, a) - a.y * dot(b, b)) / twice,
                             (a.x * dot(b, b) - b.x * dot(a, a)) / twice};
    const SnapLine::Circle circle{first + toCenter, length(toCenter)};
    const bool isRound = std::all_of(points, points + count, [&](const PlanPoint& point) {
        return std::abs(distance(point, circle.center) - circle.radius) <=
               kRoundness * circle.radius;
    });
    return isRound ? std::optional(circle) : std::nullopt;
}

PlanPoint nearestOn(const SnapLine& line, PlanPoint place) {
    const double along = footAlong(line, place);
    if (along <= 0.0) {
        return line.from;
    }
    if (along >= 1.0) {
        return line.to;
    }
    return line.circle ? onCircle(*line.circle, place) : line.from + (line.to - line.from) * along;
}

std::vector<PlanPoint> feetOn(const SnapLine& line, PlanPoint place) {
    std::vector<PlanPoint> feet;
    if (!line.circle) {
        const double along = footAlong(line, place);
        if (isWithin(along)) {
            PlanPoint foot = line.from + (line.to - line.from) * along;
            keepExact(foot, line, along);
            feet.push_back(foot);
        }
        return feet;
    }
    const PlanPoint nearFoot = onCircle(*line.circle, place);
    const PlanPoint farFoot = line.circle->center + (line.circle->center - nearFoot);
    for (const PlanPoint& foot : {nearFoot, farFoot}) {
        const PlanPoint chord = line.to - line.from;
        // Of the two crossings of its radius with the circle only one lies over the chord.
        const bool isOver = dot(foot - line.circle->center,
                                between(line.from, line.to) - line.circle->center) > 0.0;
        if (isOver && length(chord) > 0.0 && isWithin(footAlong(line, foot))) {
            feet.push_back(foot);
        }
    }
    return feet;
}

std::optional<PlanPoint> crossingOf(const SnapLine& a, const SnapLine& b) {
    const PlanPoint alongA = a.to - a.from;
    const PlanPoint alongB = b.to - b.from;
    const double area = cross(alongA, alongB);
    if (!(std::abs(area) > kParallel * length(alongA) * length(alongB))) {
        return std::nullopt;
    }
    const PlanPoint apart = b.from - a.from;
    const double onA = cross(apart, alongB) / area;
    const double onB = cross(apart, alongA) / area;
    if (!isWithin(onA) || !isWithin(onB)) {
        return std::nullopt;
    }
    PlanPoint point = a.from + alongA * onA;
    if (a.circle || b.circle) {
        return refined(a, b, point);
    }
    keepExact(point, a, onA);
    keepExact(point, b, onB);
    return point;
}

std::optional<PlanPoint> crossingOnRay(PlanPoint origin, PlanPoint direction,
                                       const SnapLine& line) {
    const double reach = 2.0 * (distance(origin, line.from) + distance(origin, line.to));
    const double size = length(direction);
    if (!(size > 0.0 && reach > 0.0)) {
        return std::nullopt;
    }
    return crossingOf({origin, origin + direction * (reach / size)}, line);
}

} // namespace orvex
