#include "planMotion.h"

#include "ChainFrame.h"
#include "geometry.h"
#include "hostText.h"
#include "impossible.h"

#include <cmath>

namespace orvex {

namespace {

constexpr double kSameNormal = 1e-9; // between units
constexpr double kQuarter = 90.0;    // degrees

// Zeros lose their sign, so that turning back leads to the same bytes.
KdGeVector3d withPlainZeros(const KdGeVector3d& v) {
    return {v.x + 0.0, v.y + 0.0, v.z + 0.0};
}

KdGeVector3d turned(const PlanMotion& motion, const KdGeVector3d& v) {
    return withPlainZeros(motion.x * v.x + motion.y * v.y + motion.z * v.z);
}

KdGePoint3d moved(const PlanMotion& motion, bool isShift, const KdGePoint3d& point) {
    return isShift ? point + motion.shift
                   : motion.base + turned(motion, point - motion.base) + motion.shift;
}

bool isPlainShift(const PlanMotion& motion) {
    return motion.x == KdGeVector3d{1.0, 0.0, 0.0} && motion.y == KdGeVector3d{0.0, 1.0, 0.0} &&
           motion.z == KdGeVector3d{0.0, 0.0, 1.0};
}

struct CosineSine {
    double cosine = 1.0;
    double sine = 0.0;
};

CosineSine cosineSineOf(double degrees) {
    const double quarters = std::fmod(degrees, 4.0 * kQuarter) / kQuarter;
    if (std::trunc(quarters) == quarters) {
        constexpr double kSines[] = {0.0, 1.0, 0.0, -1.0};
        const int quarter = (static_cast<int>(quarters) + 4) % 4;
        return {kSines[(quarter + 1) % 4], kSines[quarter]};
    }
    return {std::cos(toRadians(degrees)), std::sin(toRadians(degrees))};
}

// Miters go on pointing to the left, which is the other side now.
void switchSides(MlineContent& mirrored) {
    const auto negated = [](VoVector<double>& list) {
        if (!list.isEmpty()) {
            list.setAt(0, 0.0 - list[0]);
        }
    };
    for (unsigned v = 0; v < mirrored.vertices.size(); ++v) {
        KdGeVector3d& miter = mirrored.vertices[v].miter;
        miter = withPlainZeros(-miter);
        VoVector<KdMLSegment> record = mirrored.lists.nested(v);
        for (unsigned e = 0; e < record.size(); ++e) {
            negated(record[static_cast<int>(e)].m_lineParams);
            negated(record[static_cast<int>(e)].m_areaParams);
        }
        mirrored.lists.setNested(v, record);
    }
    mirrored.scale = 0.0 - mirrored.scale;
}

} // namespace

PlanMotion shiftBy(const KdGeVector3d& shift) {
    PlanMotion motion;
    motion.shift = shift;
    return motion;
}

// Rodrigues' rotation of each axis of the world.
PlanMotion turnAbout(const KdGePoint3d& base, const KdGeVector3d& axis, double degrees) {
    const CosineSine angle = cosineSineOf(degrees);
    const auto turn = [&](const KdGeVector3d& v) {
        return withPlainZeros(v * angle.cosine + cross(axis, v) * angle.sine +
                              axis * (dot(axis, v) * (1.0 - angle.cosine)));
    };
    PlanMotion motion;
    motion.base = base;
    motion.x = turn(motion.x);
    motion.y = turn(motion.y);
    motion.z = turn(motion.z);
    return motion;
}

Result<PlanMotion> mirrorAt(const KdGePoint3d& first, const KdGePoint3d& second,
                            const KdGeVector3d& normal) {
    KdGeVector3d across = cross(normal, second - first);
    const double length = across.length();
    if (!std::isfinite(length) || across.isZeroLength()) {
        return impossible(hostText("the mirror line has no length"));
    }
    across = across * (1.0 / length);
    const auto mirror = [&across](const KdGeVector3d& v) {
        return withPlainZeros(v - across * (2.0 * dot(across, v)));
    };
    PlanMotion motion;
    motion.base = first;
    motion.x = mirror(motion.x);
    motion.y = mirror(motion.y);
    motion.z = mirror(motion.z);
    motion.mirrors = true;
    return motion;
}

Result<MlineContent> movedBy(const MlineContent& mline, const PlanMotion& motion) {
    const bool isShift = isPlainShift(motion);
    if (!isShift && (turned(motion, mline.normal) - mline.normal).length() > kSameNormal) {
        return impossible(hostText("it would leave its plane"));
    }
    MlineContent result = mline;
    for (ChainVertex& vertex : result.vertices) {
        vertex.position = moved(motion, isShift, vertex.position);
        if (!isShift) {
            vertex.axis = turned(motion, vertex.axis);
            vertex.miter = turned(motion, vertex.miter);
        }
    }
    if (motion.mirrors) {
        switchSides(result);
    }
    if (!chainFrameOf(result, {}) && chainFrameOf(mline, {})) {
        return impossible(hostText("its vertices would fall together"));
    }
    return result;
}

} // namespace orvex
