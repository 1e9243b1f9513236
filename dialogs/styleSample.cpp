#include "styleSample.h"

#include "VoMath.h"
#include "measure.h"

#include <cmath>

namespace mledit {

namespace {

double angleBetween(const KdGePoint3d& from, const KdGePoint3d& to) {
    const double a[3] = {from.x, from.y, from.z};
    const double b[3] = {to.x, to.y, to.z};
    return kdutAngle(a, b);
}

KdGeVector3d unit(double angle) {
    return {std::cos(angle), std::sin(angle), 0.0};
}

} // namespace

std::vector<double> scaledOffsets(const std::vector<double>& offsets, int height) {
    constexpr double kTolerance = 1e-10;
    std::vector<double> scaled(offsets.size(), 0.0);
    if (offsets.empty()) {
        return scaled;
    }
    const double range = offsets.front() - offsets.back();
    if (!VoMath::isZero(range, kTolerance)) {
        for (std::size_t i = 0; i < offsets.size(); ++i) {
            scaled[i] = height * offsets[i] / range;
        }
    }
    return scaled;
}

StyleSample makeStyleSample(int width, const std::vector<double>& scaled,
                            const StyleSampleEnds& ends) {
    constexpr double kPi = 3.141592653589793;
    StyleSample sample;
    const int half = width / 2;
    sample.vertices = {KdGePoint3d{0.0, 0.0, 0.0}, KdGePoint3d{static_cast<double>(half), 0.0, 0.0},
                       KdGePoint3d{static_cast<double>(width), 0.0, 0.0}};
    const auto& vertices = sample.vertices;
    for (std::size_t i = 0; i < vertices.size(); ++i) {
        double miterAngle = 0.0;
        double sine = 0.0;
        if (i + 1 == vertices.size()) {
            sample.directions[i] = sample.directions[i - 1];
            miterAngle = angleBetween(vertices[i - 1], vertices[i]) + ends.endAngle;
            sine = std::sin(ends.endAngle);
        } else {
            const double out = angleBetween(vertices[i], vertices[i + 1]);
            sample.directions[i] = unit(out);
            if (i == 0) {
                miterAngle = out + ends.startAngle;
                sine = std::sin(ends.startAngle);
            } else {
                const double back = angleBetween(vertices[i], vertices[i - 1]);
                miterAngle = (out + back) / 2.0 + (out > back ? kPi : 0.0);
                sine = std::sin((out - back) / 2.0);
            }
        }
        sample.miters[i] = unit(miterAngle);
        // A miter along the chain meets no element.
        const double factor = sine != 0.0 ? 1.0 / std::abs(sine) : 0.0;
        for (const double offset : scaled) {
            sample.distances[i].push_back((offset - scaled.front()) * factor);
        }
    }
    return sample;
}

} // namespace mledit
