#include "userFrame.h"

#include "coordinateFrames.h"
#include "geometry.h"
#include "resbuf.h"

#include <cmath>

namespace orvex {

namespace {

enum Frame : short { kWorld = 0, kUser = 1 };

KdGePoint3d converted(const KdGePoint3d& point, Frame from, Frame to, bool isDirection) {
    resbuf source;
    source.restype = kResultShort;
    source.resval.rint = from;
    resbuf target;
    target.restype = kResultShort;
    target.resval.rint = to;
    double place[3] = {point.x, point.y, point.z};
    kdedTrans(place, &source, &target, isDirection ? 1 : 0, place);
    return {place[0], place[1], place[2]};
}

} // namespace

KdGePoint3d userToWorld(const KdGePoint3d& point) {
    return converted(point, kUser, kWorld, false);
}

KdGePoint3d worldToUser(const KdGePoint3d& point) {
    return converted(point, kWorld, kUser, false);
}

KdGeVector3d userDirectionToWorld(const KdGeVector3d& direction) {
    return converted(KdGePoint3d() + direction, kUser, kWorld, true) - KdGePoint3d();
}

double userDegrees(const KdGePoint3d& from, const KdGePoint3d& to) {
    constexpr double kStep = 1e-9;
    const KdGeVector3d way = worldToUser(to) - worldToUser(from);
    const double degrees = toDegrees(std::atan2(way.y, way.x));
    return std::round(degrees / kStep) * kStep + 0.0;
}

} // namespace orvex
