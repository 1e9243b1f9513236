#include "newChain.h"

#include <gmock/gmock.h>

#include <cmath>

namespace {

using orvex::makeNewChain;
using orvex::MlineSettings;
using orvex::NewChain;
using testing::DoubleEq;
using testing::ElementsAre;

constexpr KdGeVector3d kUp{0.0, 0.0, 1.0};

MlineSettings wall(double scale = 1.5, int justification = 1) {
    MlineSettings settings;
    settings.offsets = {0.5, -0.5};
    settings.scale = scale;
    settings.justification = justification;
    return settings;
}

void expectDirection(const KdGeVector3d& v, double x, double y) {
    EXPECT_NEAR(v.x, x, 1e-15);
    EXPECT_NEAR(v.y, y, 1e-15);
    EXPECT_EQ(v.z, 0.0);
}

// 0.75 / sin 45 degrees; the value that drawings of other programs have to the last digit.
TEST(NewChain, aRightAngledCornerLiesFurtherOut) {
    const double corner = 1.0606601717798212;
    const double half = std::sqrt(0.5);
    const NewChain chain = makeNewChain({{0, 0, 0}, {10, 0, 0}, {10, 10, 0}}, false, kUp, wall());
    ASSERT_EQ(chain.vertices.size(), 3U);
    EXPECT_THAT(chain.elementPositions[0], ElementsAre(0.75, -0.75));
    expectDirection(chain.vertices[0].miter, 0, 1); // positive offsets lie to the left
    EXPECT_THAT(chain.elementPositions[1], ElementsAre(corner, -corner));
    EXPECT_EQ(chain.vertices[1].axis, (KdGeVector3d{0, 1, 0}));
    expectDirection(chain.vertices[1].miter, -half, half);
    EXPECT_EQ(chain.vertices[2].axis, (KdGeVector3d{0, 1, 0})); // as before it
    expectDirection(chain.vertices[2].miter, -1, 0);
}

TEST(NewChain, justificationPutsAnOuterElementOnTheChain) {
    const std::vector<KdGePoint3d> points{{0, 0, 0}, {10, 0, 0}};
    const auto positions = [&](int justification) {
        MlineSettings settings = wall(2.0, justification);
        settings.offsets = {-1.0, 3.0, 0.0};
        return makeNewChain(points, false, kUp, settings).elementPositions[0];
    };
    EXPECT_THAT(positions(0), ElementsAre(-8, 0, -6));
    EXPECT_THAT(positions(1), ElementsAre(-2, 6, 0));
    EXPECT_THAT(positions(2), ElementsAre(0, 8, 2));
}

// At 30 degrees the element lies twice as far along the miter: 0.75 / sin 30.
TEST(NewChain, endsFollowTheAnglesOfTheStyle) {
    MlineSettings settings = wall();
    settings.startAngle = std::acos(-1.0) / 6;
    settings.endAngle = std::acos(-1.0) * 5 / 6;
    const NewChain chain = makeNewChain({{0, 0, 0}, {10, 0, 0}}, false, kUp, settings);
    expectDirection(chain.vertices[0].miter, std::sqrt(0.75), 0.5);
    expectDirection(chain.vertices[1].miter, -std::sqrt(0.75), 0.5);
    EXPECT_NEAR(chain.elementPositions[0][0], 1.5, 1e-14);
    EXPECT_NEAR(chain.elementPositions[1][0], 1.5, 1e-14);

    settings.startAngle = 0.0; // along the axis, as a damaged style may have it: square
    EXPECT_THAT(makeNewChain({{0, 0, 0}, {10, 0, 0}}, false, kUp, settings).elementPositions[0],
                ElementsAre(0.75, -0.75));
}

TEST(NewChain, closedOnesHaveJointsEverywhere) {
    const std::vector<KdGePoint3d> square{{0, 0, 0}, {10, 0, 0}, {10, 10, 0}, {0, 10, 0}};
    const NewChain chain = makeNewChain(square, true, kUp, wall());
    const double half = std::sqrt(0.5);
    ASSERT_EQ(chain.vertices.size(), 4U);
    EXPECT_EQ(chain.vertices[3].axis, (KdGeVector3d{0, -1, 0}));
    expectDirection(chain.vertices[0].miter, half, half);
    expectDirection(chain.vertices[3].miter, half, -half);
    for (const auto& positions : chain.elementPositions) {
        EXPECT_THAT(positions, ElementsAre(DoubleEq(0.75 / half), DoubleEq(-0.75 / half)));
    }
}

TEST(NewChain, leavesOutRepeatedPointsAndNeedsTwoDifferentOnes) {
    EXPECT_EQ(makeNewChain({{1, 1, 0}, {1, 1, 0}}, false, kUp, wall()).vertices.size(), 0U);
    // The start again at the end of a closed chain, and what is left is too short to close.
    const NewChain chain = makeNewChain({{0, 0, 0}, {5, 0, 0}, {0, 0, 0}}, true, kUp, wall());
    ASSERT_EQ(chain.vertices.size(), 2U);
    expectDirection(chain.vertices[1].miter, 0, 1);
}

TEST(NewChain, straightOnAndStraightBackStayFinite) {
    const NewChain chain =
        makeNewChain({{0, 0, 0}, {5, 0, 0}, {9, 0, 0}, {2, 0, 0}}, false, kUp, wall());
    EXPECT_THAT(chain.elementPositions[1], ElementsAre(0.75, -0.75));
    EXPECT_THAT(chain.elementPositions[2], ElementsAre(0.75, -0.75));
    expectDirection(chain.vertices[2].miter, 0, -1); // left of the way back
}

// In the plane that faces south, X east and Z up, left of going east is up.
TEST(NewChain, turnsLeftAboutItsNormal) {
    const NewChain chain =
        makeNewChain({{0, 0, 0}, {4, 0, 0}}, false, KdGeVector3d{0, -1, 0}, wall());
    EXPECT_NEAR(chain.vertices[0].miter.z, 1.0, 1e-15);
}

} // namespace
