// Lines, points, solids, circles, arcs and ellipses.

#include "EntityShapes.h"
#include "geometry.h"

namespace orvex {

namespace {

constexpr double kFullTurn = 6.283185307179586;

} // namespace

EntityShape lineShape(const ShapeTags& tags) {
    return LineShape{tags.point(10), tags.point(11)};
}

EntityShape pointShape(const ShapeTags& tags) {
    return PointShape{tags.point(10)};
}

EntityShape solidShape(const ShapeTags& tags) {
    const EntityPlane plane = EntityPlane::of(tags);
    SolidShape shape;
    for (const int code : {10, 11, 13, 12}) { // the third and fourth corner are crossed
        if (code != 13 || tags.has(13)) {
            shape.corners.push_back(plane.toWorld(tags.point(code)));
        }
    }
    return shape;
}

EntityShape arcShape(const ShapeTags& tags, bool whole) {
    const EntityPlane plane = EntityPlane::of(tags);
    const double radius = tags.real(40);
    ConicShape shape{plane.toWorld(tags.point(10)), plane.xAxis * radius, plane.yAxis * radius};
    if (!whole) {
        shape.start = fileRadians(tags.real(50));
        shape.end = fileRadians(tags.real(51));
        if (shape.end <= shape.start) {
            shape.end += kFullTurn;
        }
    }
    return shape;
}

EntityShape ellipseShape(const ShapeTags& tags) {
    const EntityPlane plane = EntityPlane::of(tags);
    ConicShape shape;
    shape.center = tags.point(10);
    shape.major = tags.point(11) - KdGePoint3d();
    shape.minor = cross(plane.normal, shape.major) * tags.real(40, 1.0);
    shape.start = tags.real(41, 0.0);
    shape.end = tags.real(42, kFullTurn);
    if (shape.end <= shape.start) {
        shape.end += kFullTurn;
    }
    return shape;
}

} // namespace orvex
