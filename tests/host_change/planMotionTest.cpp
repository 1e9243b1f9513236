#include "planMotion.h"

#include "DrawnPlaces.h"
#include "RandomMline.h"
#include "auditMline.h"
#include "straightMline.h"

#include <gmock/gmock.h>

#include <limits>

namespace {

using namespace orvex;
using namespace orvex::testing;

constexpr KdGeVector3d kUp{0.0, 0.0, 1.0};

struct ThereAndBack {
    PlanMotion there;
    PlanMotion back;
};

ThereAndBack randomMotion(RandomMline& random, unsigned kind, const KdGeVector3d& normal) {
    const KdGePoint3d base{random.between(-50, 50), random.between(-50, 50), 0.0};
    const KdGePoint3d other{random.between(60, 150), random.between(60, 150),
                            random.between(-20, 20)};
    const double degrees = random.between(-400, 400);
    if (kind == 0) {
        return {shiftBy(other - base), shiftBy(base - other)};
    }
    if (kind == 1) {
        return {turnAbout(base, normal, degrees), turnAbout(base, normal, -degrees)};
    }
    return {*mirrorAt(base, other, normal), *mirrorAt(other, base, normal)};
}

// Where a motion takes a point, by the definition of the three.
KdGePoint3d image(const PlanMotion& motion, const KdGePoint3d& point) {
    const KdGeVector3d way = point - motion.base;
    return motion.base + motion.x * way.x + motion.y * way.y + motion.z * way.z + motion.shift;
}

TEST(PlanMotion, takesAllThatIsDrawnAlongAndBack) {
    forRandomMlines(
        21, [&](RandomMline& random, const MlineContent& mline, const StyleLayout& style) {
            const ThereAndBack motion = randomMotion(random, random.upTo(2), mline.normal);
            const auto moved = movedBy(mline, motion.there);
            ASSERT_TRUE(moved);
            ASSERT_THAT(auditMline(*moved, &style), ::testing::IsEmpty());
            std::vector<KdGePoint3d> expected = drawnPlaces(mline);
            for (KdGePoint3d& place : expected) {
                place = image(motion.there, place);
            }
            ASSERT_LT(farthest(drawnPlaces(*moved), expected), 1e-9);
            const auto back = movedBy(*moved, motion.back);
            ASSERT_TRUE(back);
            ASSERT_LT(farthest(drawnPlaces(*back), drawnPlaces(mline)), 1e-9);
            ASSERT_EQ(back->scale, mline.scale);
        });
}

// Elements at 1 and 0 along x, from (1, 2) to (5, 2).
MlineContent plain() {
    return straightMline({1, 2, 0}, 4, {{1, 0}, {0, 0}});
}

TEST(PlanMotion, isExactForWholeNumbersAndQuarters) {
    const MlineContent mline = plain();
    const auto turned = movedBy(mline, turnAbout({0, 0, 0}, kUp, 450.0));
    ASSERT_TRUE(turned);
    EXPECT_EQ(turned->vertices[0], (ChainVertex{{-2, 1, 0}, {0, 1, 0}, {-1, 0, 0}}));
    for (const double degrees : {90.0, -270.0, 180.0, 270.0, 360.0, -90.0}) {
        const auto there = movedBy(mline, turnAbout({3, -7, 0}, kUp, degrees));
        const auto back = movedBy(*there, turnAbout({3, -7, 0}, kUp, -degrees));
        EXPECT_TRUE(back->equals(mline)) << degrees;
    }
    const PlanMotion mirror = *mirrorAt({0, 10, 0}, {8, 10, 0}, kUp);
    const auto mirrored = movedBy(mline, mirror);
    EXPECT_EQ(mirrored->vertices[1], (ChainVertex{{5, 18, 0}, {1, 0, 0}, {0, 1, 0}}));
    EXPECT_EQ(mirrored->lists.line(1, 0)[0], -1.0);
    EXPECT_EQ(mirrored->scale, -1.0);
    EXPECT_TRUE(movedBy(*mirrored, mirror)->equals(mline));
}

TEST(PlanMotion, isRefusedWhereNothingWouldBeLeftOfTheShape) {
    const MlineContent mline = plain();
    EXPECT_FALSE(mirrorAt({1, 1, 0}, {1, 1, 0}, kUp));
    EXPECT_FALSE(mirrorAt({1, 1, 0}, {1, 1, 7}, kUp));
    EXPECT_FALSE(movedBy(mline, shiftBy({1e300, 0, 0})));
    EXPECT_FALSE(movedBy(mline, shiftBy({std::numeric_limits<double>::infinity(), 0, 0})));
    EXPECT_FALSE(movedBy(mline, turnAbout({0, 0, 0}, {1, 0, 0}, 90.0)));
    EXPECT_TRUE(movedBy(mline, turnAbout({0, 0, 0}, {0, 0, -1}, 30.0)));
}

} // namespace
