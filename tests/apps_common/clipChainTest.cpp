#include "clipChain.h"

#include <gmock/gmock.h>

namespace orvex {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const PlanBox kFrame{{0, 0}, {10, 10}};

TEST(ClipChain, keepsWhatIsInsideAndTellsWhatWasBefore) {
    // In at (0, 5), round inside, out at (10, 5), back in from above at (2, 10) and to its end.
    const std::vector<PlanPoint> chain{{-5, 5}, {3, 5},   {3, 8},  {3, 5},
                                       {14, 5}, {14, 14}, {2, 14}, {2, 7}};
    const auto runs = clipChain(chain, kFrame);
    ASSERT_EQ(runs.size(), 2U);
    EXPECT_THAT(runs[0].points, ElementsAre(PlanPoint{0, 5}, PlanPoint{3, 5}, PlanPoint{3, 8},
                                            PlanPoint{3, 5}, PlanPoint{10, 5}));
    EXPECT_DOUBLE_EQ(runs[0].before, 5.0);
    EXPECT_THAT(runs[1].points, ElementsAre(PlanPoint{2, 10}, PlanPoint{2, 7}));
    // 8 + 3 + 3 + 11, round the corner 9 + 12, then 4 above the frame.
    EXPECT_DOUBLE_EQ(runs[1].before, 50.0);
}

TEST(ClipChain, dropsWhatIsOutside) {
    EXPECT_THAT(clipChain(std::vector<PlanPoint>{{-5, 20}, {15, 20}}, kFrame), IsEmpty());
    EXPECT_THAT(clipChain(std::vector<PlanPoint>{{11, -5}, {11, 15}}, kFrame), IsEmpty());
    EXPECT_THAT(clipChain(std::vector<PlanPoint>{{20, 20}}, kFrame), IsEmpty());
    EXPECT_THAT(clipChain({}, kFrame), IsEmpty());
    EXPECT_EQ(clipChain(std::vector<PlanPoint>{{5, 5}}, kFrame).size(), 1U) << "a dot";
}

TEST(ClipChain, cutsLinesLargerThanAnyPainterKnows) {
    const auto runs = clipChain(std::vector<PlanPoint>{{-1e15, 5}, {1e15, 5}}, kFrame);
    ASSERT_EQ(runs.size(), 1U);
    EXPECT_NEAR(runs[0].points.front().x, 0.0, 1.0);
    EXPECT_NEAR(runs[0].points.back().x, 10.0, 1.0);
}

} // namespace
} // namespace orvex
