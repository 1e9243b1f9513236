#include "shiftList.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

// e is the old offset, e2 the one at the new miter.
constexpr double e = 0.5;
constexpr double e2 = 0.7;

struct Case {
    BreakList before;
    double distance;
    BreakList after;
};

template <class Shift>
void expectAll(std::initializer_list<Case> cases, Shift shift) {
    for (const Case& c : cases) {
        EXPECT_EQ(shift(c.before, c.distance), c.after)
            << testing::PrintToString(c.before) << " by " << c.distance;
    }
}

TEST(ShiftList, TheSegmentsStartMovesAlongIt) {
    expectAll({{{e, 0, 5, 7}, 3, {e, 0, 2, 4}},
               {{e, 0, 5, 7}, 6, {e, 1}}, // in the gap
               {{e, 0, 5, 7}, 8, {e, 0}}, // behind all breaks, on the last stretch
               {{e, 0, 5, 7}, 5, {e, 2}}, // a break at the start goes with those before
               {{e, 0}, 3, {e, 0}},
               {{e}, 3, {e}},
               {{}, 3, {}}},
              shortenFromStart);
    // What is gained stays undrawn, also of an unbroken element.
    expectAll({{{e, 0, 5, 7}, 2, {e, 2, 7, 9}}, {{e, 0}, 2, {e, 2}}, {{e}, 2, {e}}, {{}, 2, {}}},
              lengthenAtStart);
}

TEST(ShiftList, TheSegmentsEndMovesAlongIt) {
    expectAll({{{e, 0, 5, 7}, 6, {e, 0, 5}},
               {{e, 0, 5, 7}, 4, {e, 0}},
               {{e, 0, 5, 7}, 9, {e, 0, 5, 7}},
               {{e, 0, 5, 7}, 5, {e, 0}}, // a break at the end goes
               {{e, 1}, 0.7, {e}},
               {{e}, 0.1, {e}}, // the offset isn't compared
               {{}, 1, {}}},
              endAt);
}

TEST(ShiftList, AnElementsStartSlidesToAnotherMiter) {
    expectAll({{{e, 0}, 2, {e2, 0}}, // the run follows its start
               {{e, 3, 5}, 2, {e2, 5, 7}},
               {{e, 1e-11, 5}, 2, {e2, 0, 7}}, // 0 but for a rounding
               {{e}, 2, {e2}},
               {{}, 2, {}}},
              [](BreakList list, double d) { return growAtStart(std::move(list), d, e2); });
    expectAll({{{e, 0}, 2, {e2, 0}},
               {{e, 0, 5, 7}, 3, {e2, 0, 2, 4}},
               {{e, 0, 5, 7}, 6, {e2, 1}},
               {{e, 3, 5}, 2, {e2, 1, 3}},
               {{e}, 2, {e2}},
               {{}, 2, {}}},
              [](BreakList list, double d) { return shrinkAtStart(std::move(list), d, e2); });
}

TEST(ShiftList, ANewVertexEndsTheListBeforeIt) {
    expectAll({{{e, 0, 5, 7}, 6, {e, 0, 5}},
               {{e, 0, 5, 7}, 5, {e, 0}},
               {{e, 0, 5, 7}, 0, {e}},
               {{e}, 6, {e}},
               {{}, 6, {}}},
              beforeNewVertex);
    EXPECT_EQ(withoutRuns({e, 0, 5}), (BreakList{e}));
    EXPECT_EQ(withoutRuns({}), BreakList{});
}

TEST(ShiftList, AMiterAlongTheAxisKeepsTheOffsetFinite) {
    EXPECT_EQ(unbrokenList(0.5, std::acos(-1.0) / 6.0)[1], 0.0);
    EXPECT_NEAR(alongMiter(0.5, std::acos(-1.0) / 6.0), 1.0, 1e-15); // sin 30 degrees is a half
    EXPECT_EQ(alongMiter(0.5, 0.0), 0.5 / std::sin(0.005));
    EXPECT_LT(alongMiter(0.5, -0.1), 0.0);
}

} // namespace
