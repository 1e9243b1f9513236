#include "CMlineEdit.h"

#include "EngineWorld.h"

#include <cmath>

using namespace mledit;

namespace {

// A right angle to the left: element 0, one unit to the left, runs inside it through (9, 1),
// element 1 outside through (11, -1).
const std::vector<KdGePoint3d> kCorner = {{0, 0, 0}, {10, 0, 0}, {10, 10, 0}};
const std::vector<KdGePoint3d> kSquare = {{0, 0, 0}, {10, 0, 0}, {10, 10, 0}, {0, 10, 0}};

class Mapping : public orvex::testing::EngineWorld {
protected:
    CMlineEdit run;

    CMlineSegment& pickOn(KdDbMline* mline, double x, double y) {
        nameOf(mline, run.m_pickedName);
        run.m_pickedPoint[0] = x;
        run.m_pickedPoint[1] = y;
        run.mlineEditInitialize(&run.m_first, run.m_pickedName, nullptr);
        return run.m_first;
    }
};

void expectMapped(const CMlineSegment& seg, double x, double y, double distance) {
    EXPECT_NEAR(seg.m_mappedPoint[0], x, 1e-12);
    EXPECT_NEAR(seg.m_mappedPoint[1], y, 1e-12);
    EXPECT_NEAR(seg.m_mappedDistance, distance, 1e-12);
}

TEST_F(Mapping, isHeldToTheElementsOwnSegment) {
    // Past the inner element's end, from the outer one.
    CMlineSegment& seg = pickOn(addMline(kCorner, {1, -1}), 10.5, -1);
    run.mappingToSpecifyMongline(&seg, 0, nullptr);
    expectMapped(seg, 9, 1, 9);
    EXPECT_EQ(seg.m_mappedPoint[0], seg.m_ptList[0][1][0]) << "the end itself";
    EXPECT_EQ(seg.m_pickPoint[1], -1.0) << "the pick stays";
    // Before the inner element's start on the second segment.
    pickOn(run.m_first.m_mline, 11, 0.5);
    ASSERT_EQ(seg.m_segment, 1);
    run.mappingToSpecifyMongline(&seg, 0, nullptr);
    expectMapped(seg, 9, 1, 0);
}

TEST_F(Mapping, toThePickedElementGivesThePickBack) {
    CMlineSegment& seg = pickOn(addMline(kCorner, {1, -1}), 4, -1);
    run.mappingToSpecifyMongline(&seg, 0, nullptr);
    seg.m_mappedSegment = 1;
    run.mappingToSpecifyMongline(&seg, 0, nullptr);
    EXPECT_EQ(seg.m_mappedSegment, 1) << "another element doesn't touch it";
    run.mappingToSpecifyMongline(&seg, 1, nullptr);
    expectMapped(seg, 4, -1, 4);
    EXPECT_EQ(seg.m_mappedSegment, 0);
    EXPECT_EQ(seg.m_mappedElement, 1);
}

TEST_F(Mapping, toTheChainIsNotHeldAndLeavesTheRecord) {
    CMlineSegment& seg = pickOn(addMline(kCorner, {1, -1}), 10.5, -1);
    double out[3] = {9, 9, 9};
    run.mappingToSpecifyMongline(&seg, -1, out);
    EXPECT_NEAR(std::hypot(out[0] - 10.5, out[1]), 0.0, 1e-12);
    expectMapped(seg, 10.5, -1, 10.5);
}

// At the segment's start the pick gives no direction, and the line across goes straight down.
TEST_F(Mapping, fromTheStartPositionLooksDownWhateverTheDirection) {
    CMlineSegment& seg = pickOn(addMline({{0, 0, 0}, {0, 10, 0}}, {1, -1}), 1, 0);
    run.mappingToSpecifyMongline(&seg, 0, nullptr);
    // Parallel to the element: no crossing, so the pick itself, held by y to the element's start.
    expectMapped(seg, 1, 0, 2);
}

TEST_F(Mapping, isFoundAgainAfterTheChainHasChanged) {
    CMlineSegment& seg = pickOn(addMline(kCorner, {1, -1}), 11, 5);
    ASSERT_EQ(seg.m_mappedSegment, 1);
    // Without the first vertex the old segment 1 is segment 0; its lines are infinite.
    seg.m_mline = addMline({{10, 0, 0}, {10, 10, 0}}, {1, -1});
    seg.m_mappedPoint[0] = 11.4;
    seg.m_mappedPoint[1] = 5000;
    run.correctMapping(&seg);
    EXPECT_EQ(seg.m_numVertices, 2);
    EXPECT_EQ(seg.m_mappedSegment, 0);
    seg.m_mappedPoint[0] = 11.5;
    seg.m_mappedSegment = 9;
    run.correctMapping(&seg);
    EXPECT_EQ(seg.m_mappedSegment, 9) << "nothing near: as it was";
}

// The closing segment wants a distance of exactly the aperture.
TEST_F(Mapping, hardlyEverIsFoundOnTheClosingSegment) {
    CMlineSegment& seg = pickOn(addMline(kSquare, {0}, true), 0, 4);
    ASSERT_EQ(seg.m_segment, 3);
    for (const double x : {0.0, run.m_pickRadius}) {
        seg.m_mappedSegment = 9;
        seg.m_mappedPoint[0] = x;
        run.correctMapping(&seg);
        EXPECT_EQ(seg.m_mappedSegment, x == 0.0 ? 9 : 3);
    }
}

} // namespace
