#include "dashCycle.h"

#include <cmath>

#include <gmock/gmock.h>

namespace orvex {
namespace {

struct CycleCase {
    const char* what;
    std::vector<double> dashes;
    std::vector<double> lengths; // at a scale of 2, a dot of 1, periods of 3 and more
    double offset;
};

TEST(DashCycle, beginsWithAStrokeAndAlternates) {
    const CycleCase cases[] = {
        {"as it is", {3, -2}, {6, 4}, 0},
        {"with a dot", {3, -1, 0, -1}, {6, 2, 1, 2}, 0},
        // The line starts with the gap, which the turned cycle has at its end: 4 before its start.
        {"gap first", {-2, 3}, {6, 4}, 6},
        {"neighbours of one kind", {1, 2, -1, -1}, {6, 4}, 0},
        // Strokes at both ends make one of 10; the line starts 4 into it.
        {"stroke at both ends", {3, -1, 2}, {10, 2}, 4},
        // The gap of 6 that both ends make is begun 4 before the stroke: 2 into the gap.
        {"gap at both ends", {-2, 3, -1}, {6, 6}, 8},
        {"strokes alone", {3, 2}, {}, 0},
        {"gaps alone", {-3}, {}, 0},
        {"nothing", {}, {}, 0},
        {"too fine", {0.5, -0.5}, {}, 0},
        {"no number", {std::nan(""), -1}, {}, 0},
        {"endless", {HUGE_VAL, -1}, {}, 0},
    };
    for (const CycleCase& each : cases) {
        const DashCycle cycle = dashCycle(each.dashes, 2.0, 1.0, 3.0);
        EXPECT_EQ(cycle.lengths, each.lengths) << each.what;
        EXPECT_DOUBLE_EQ(cycle.offset, each.offset) << each.what;
    }
}

} // namespace
} // namespace orvex
