#pragma once

#include "geometry.h"
#include "newChain.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace orvex::testing {

// Random multilines that lie right: open and closed, bent by 20 degrees and more, with gaps, any
// justification, style angles and normals (up, down, tilted), near and far from the origin.
class RandomMline {
public:
    explicit RandomMline(unsigned seed) : m_random(seed) {}

    double between(double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(m_random);
    }
    unsigned upTo(unsigned most) {
        return std::uniform_int_distribution<unsigned>(0, most)(m_random);
    }

    StyleLayout style() {
        StyleLayout layout;
        for (unsigned i = 0; i <= 1 + upTo(4); ++i) {
            layout.offsets.push_back(between(-1.0, 1.0));
        }
        layout.startAngle = between(0.8, 2.3);
        layout.endAngle = between(0.8, 2.3);
        return layout;
    }

    // With a spur, a closed one turns straight back once.
    MlineContent mline(const StyleLayout& style, bool hasSpur = false) {
        MlineSettings settings;
        static_cast<StyleLayout&>(settings) = style;
        settings.scale = between(-3.0, 3.0);
        settings.justification = static_cast<int>(upTo(2));
        MlineContent content;
        content.scale = settings.scale;
        content.justification = settings.justification;
        content.closed = upTo(2) == 0;
        content.normal = normal();
        std::vector<KdGePoint3d> way = points(content.closed, content.normal);
        if (hasSpur && content.closed) {
            way.insert(way.begin() + 2, {way[1] + (way[1] - way[0]) * 0.5, way[1]});
        }
        const NewChain chain = makeNewChain(way, content.closed, content.normal, settings);
        content.vertices = chain.vertices;
        for (unsigned v = 0; v < chain.vertices.size(); ++v) {
            VoVector<KdMLSegment> record;
            for (const double position : chain.elementPositions[v]) {
                record.append(segment(position));
            }
            content.lists.appendVertex();
            content.lists.setNested(v, record);
        }
        return content;
    }

    // Up to `reach` along both axes of the multiline's plane.
    KdGeVector3d inPlaneOf(const MlineContent& mline, double reach) {
        const PlaneAxes axes = arbitraryAxes(mline.normal);
        const KdGeVector3d alongX = axes.x * between(-reach, reach); // in one order by any compiler
        return alongX + axes.y * between(-reach, reach);
    }

private:
    KdGeVector3d normal() {
        switch (upTo(3)) {
        case 0:
            return KdGeVector3d{between(-1.0, 1.0), between(-1.0, 1.0), between(0.2, 1.0)}
                .normalize();
        case 1:
            return {0.0, 0.0, -1.0};
        default:
            return {0.0, 0.0, 1.0};
        }
    }

    // At height 5 over the origin, in the plane square to the normal.
    std::vector<KdGePoint3d> points(bool closed, const KdGeVector3d& normal) {
        std::vector<KdGePoint3d> flat = flatPoints(closed);
        if (std::abs(normal.z) == 1.0) {
            return flat;
        }
        const PlaneAxes axes = arbitraryAxes(normal);
        for (KdGePoint3d& point : flat) {
            point = KdGePoint3d() + axes.x * point.x + axes.y * point.y + normal * point.z;
        }
        return flat;
    }

    std::vector<KdGePoint3d> flatPoints(bool closed) {
        const double far = upTo(1) == 0 ? 0.0 : 1e5;
        const unsigned count = 3 + upTo(3);
        if (closed) { // around a middle, so that no corner is too acute
            std::vector<KdGePoint3d> ring;
            for (unsigned i = 0; i < count; ++i) {
                const double angle = 6.283185307179586 * (i + between(0.0, 0.3)) / count;
                ring.push_back({far + 100 * std::cos(angle), 100 * std::sin(angle), 5.0});
            }
            return ring;
        }
        std::vector<KdGePoint3d> way{{far, -far / 3, 5.0}};
        double angle = between(0.0, 6.0);
        for (unsigned i = 1; i < count; ++i) {
            const double length = between(60.0, 150.0);
            way.push_back(way.back() +
                          KdGeVector3d{length * std::cos(angle), length * std::sin(angle), 0.0});
            angle += between(-2.0, 2.0);
        }
        return way;
    }

    KdMLSegment segment(double position) {
        KdMLSegment element;
        std::vector<double> list{position, 0.0};
        if (upTo(1) == 0) {
            list.insert(list.end(), {between(15.0, 20.0), between(22.0, 30.0)});
        }
        for (const double value : list) {
            element.m_lineParams.append(value);
            element.m_areaParams.append(value);
        }
        return element;
    }

    std::mt19937 m_random;
};

// 2000 of them, each with its style, until a check fails.
template <class Check>
void forRandomMlines(unsigned seed, Check&& check, bool haveSpurs = false) {
    RandomMline random(seed);
    for (unsigned i = 0; i < 2000 && !::testing::Test::HasFatalFailure(); ++i) {
        SCOPED_TRACE(i);
        const StyleLayout style = random.style();
        const MlineContent mline = random.mline(style, haveSpurs && i % 2 == 0);
        check(random, mline, style);
    }
}

} // namespace orvex::testing
