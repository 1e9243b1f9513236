#include "coordinateFrames.h"

#include "KdGePoint3d.h"
#include "PromptSession.h"
#include "geometry.h"
#include "promptStatus.h"
#include "systemVariables.h"

#include <algorithm>
#include <cmath>
#include <optional>

using orvex::cross;
using orvex::dot;

namespace {

// A Cartesian frame given in world coordinates; its axes are unit and square to each other.
struct Frame {
    KdGePoint3d origin;
    KdGeVector3d xAxis{1.0, 0.0, 0.0};
    KdGeVector3d yAxis{0.0, 1.0, 0.0};
    KdGeVector3d zAxis{0.0, 0.0, 1.0};
    bool isDisplay = false;

    friend bool operator==(const Frame&, const Frame&) = default;
};

bool isFinite(const KdGeVector3d& v) {
    return std::isfinite(v.x) && std::isfinite(v.y) && std::isfinite(v.z);
}

KdGePoint3d pointVariable(const wchar_t* name) {
    resbuf value;
    if (kdedGetVar(name, &value) != kPromptNormal || value.restype != kResultPoint) {
        return {};
    }
    return {value.resval.rpoint[0], value.resval.rpoint[1], value.resval.rpoint[2]};
}

// Axes that span no plane, as a damaged drawing may have them, leave the world's frame.
Frame userFrame() {
    Frame frame;
    frame.origin = pointVariable(L"UCSORG");
    KdGeVector3d xAxis = pointVariable(L"UCSXDIR") - KdGePoint3d();
    KdGeVector3d yAxis = pointVariable(L"UCSYDIR") - KdGePoint3d();
    if (xAxis == frame.xAxis && yAxis == frame.yAxis) {
        return frame;
    }
    KdGeVector3d zAxis = cross(xAxis.normalize(), yAxis.normalize()).normalize();
    if (!isFinite(zAxis) || zAxis.isZeroLength()) {
        return frame;
    }
    frame.xAxis = xAxis;
    frame.yAxis = cross(zAxis, xAxis);
    frame.zAxis = zAxis;
    return frame;
}

std::optional<Frame> planeFrame(const double* direction) {
    Frame frame;
    frame.zAxis = {direction[0], direction[1], direction[2]};
    if (!isFinite(frame.zAxis) || frame.zAxis.isZeroLength()) {
        return std::nullopt;
    }
    frame.zAxis.normalize();
    const orvex::PlaneAxes axes = orvex::arbitraryAxes(frame.zAxis);
    frame.xAxis = axes.x;
    frame.yAxis = axes.y;
    return frame;
}

std::optional<Frame> frameOf(const resbuf* description) {
    if (description == nullptr) {
        return std::nullopt;
    }
    if (description->restype == kResultPoint) {
        return planeFrame(description->resval.rpoint);
    }
    if (description->restype != kResultShort) {
        return std::nullopt;
    }
    switch (description->resval.rint) {
    case 0:
        return Frame();
    case 1:
        return userFrame();
    case 2: {
        Frame frame;
        frame.isDisplay = orvex::PromptSession::current().display != nullptr;
        return frame;
    }
    default:
        return std::nullopt;
    }
}

KdGePoint3d toWorld(const Frame& frame, const KdGePoint3d& p) {
    if (frame.isDisplay) {
        return orvex::PromptSession::current().display->displayToWorld(p);
    }
    return frame.origin + (frame.xAxis * p.x + frame.yAxis * p.y + frame.zAxis * p.z);
}

KdGePoint3d fromWorld(const Frame& frame, const KdGePoint3d& p) {
    if (frame.isDisplay) {
        return orvex::PromptSession::current().display->worldToDisplay(p);
    }
    const KdGeVector3d v = p - frame.origin;
    return {dot(v, frame.xAxis), dot(v, frame.yAxis), dot(v, frame.zAxis)};
}

} // namespace

int kdedTrans(const double* point, const resbuf* from, const resbuf* to, int displacement,
              double* out) {
    const std::optional<Frame> source = frameOf(from);
    const std::optional<Frame> target = frameOf(to);
    if (!source || !target || point == nullptr || out == nullptr) {
        return kPromptError;
    }
    KdGePoint3d result{point[0], point[1], point[2]};
    const Frame world;
    if (!(*source == *target)) {
        // The world's own coordinates pass untouched, to the last bit.
        if (*source != world) {
            result = toWorld(*source, result);
        }
        if (*target != world) {
            result = fromWorld(*target, result);
        }
        if (displacement != 0) {
            // A direction is the difference of two images: origins fall out.
            KdGePoint3d base;
            base = *source != world ? toWorld(*source, base) : base;
            base = *target != world ? fromWorld(*target, base) : base;
            const KdGeVector3d moved = result - base;
            result = {moved.x, moved.y, moved.z};
        }
    }
    out[0] = result.x;
    out[1] = result.y;
    out[2] = result.z;
    return kPromptNormal;
}
