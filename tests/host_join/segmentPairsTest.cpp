#include "segmentPairs.h"

#include "meeting.h"
#include "planSamples.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace orvex::testing {

namespace {

// Walls of all sizes and angles in a small space, so that most of them meet something or just
// don't.
std::vector<WallSketch> randomPlan(std::mt19937& random) {
    std::uniform_real_distribution<double> anywhere(0.0, 10000.0);
    std::uniform_real_distribution<double> size(10.0, 400.0);
    const double far = random() % 2 == 0 ? 0.0 : 1e7;
    std::vector<WallSketch> plan;
    for (int i = 0; i < 25; ++i) {
        WallSketch sketch;
        const double width = size(random);
        sketch.offsets = {width * 0.75, -width * 0.25};
        const PlanVector start{anywhere(random) + far, anywhere(random)};
        sketch.points = {start};
        for (auto bends = 1 + random() % 3; bends > 0; --bends) {
            const bool small = random() % 2 == 0;
            const PlanVector way{anywhere(random) - 5000.0, anywhere(random) - 5000.0};
            sketch.points.push_back(sketch.points.back() + way * (small ? 0.1 : 1.0));
        }
        sketch.closed = sketch.points.size() > 2 && random() % 3 == 0;
        plan.push_back(sketch);
    }
    return plan;
}

TEST(SegmentPairs, whatMeetsIsAmongThem) {
    std::mt19937 random(12);
    std::size_t meetings = 0;
    for (int i = 0; i < 200; ++i) {
        const std::vector<JoinWall> walls = wallsOf(randomPlan(random));
        const std::vector<PlanSegment> segments = planSegments(walls);
        const auto tolerance = i % 3 == 0 ? std::optional<double>() : std::optional(40.0 * (i % 5));
        const std::vector<SegmentPair> pairs = segmentPairs(segments, tolerance);
        EXPECT_TRUE(std::is_sorted(pairs.begin(), pairs.end()));
        EXPECT_EQ(std::adjacent_find(pairs.begin(), pairs.end()), pairs.end());
        for (unsigned a = 0; a < segments.size(); ++a) {
            for (unsigned b = a + 1; b < segments.size(); ++b) {
                const double near = pairTolerance(segments[a], segments[b], tolerance);
                if (meeting(segments[a], segments[b], near)) {
                    ++meetings;
                    EXPECT_TRUE(std::binary_search(pairs.begin(), pairs.end(), SegmentPair{a, b}));
                }
            }
        }
    }
    EXPECT_GT(meetings, 10000U);
}

} // namespace

} // namespace orvex::testing
