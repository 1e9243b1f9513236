// Crosses, tees and corners as plans: which element meets which.

#include "cornerPlan.h"
#include "crossCuts.h"
#include "teePlan.h"

#include <gtest/gtest.h>

#include <ostream>

std::ostream& operator<<(std::ostream& out, const CrossingAt& at) {
    return out << at.first << '/' << at.second;
}
std::ostream& operator<<(std::ostream& out, const CrossCut& cut) {
    return out << (cut.cutsSecond ? "second " : "first ") << cut.element << ": " << cut.from
               << " - " << cut.to;
}

namespace {

using Cuts = std::vector<CrossCut>;

CrossCut ofFirst(int element, int from, int to) {
    return {false, element, {element, from}, {element, to}};
}
CrossCut ofSecond(int element, int from, int to) {
    return {true, element, {from, element}, {to, element}};
}

TEST(CrossCuts, FollowTheKindOfCross) {
    using enum CrossKind;
    const struct {
        CrossKind kind;
        int first, second;
        Cuts cuts;
    } cases[] = {
        {closed, 2, 3, {ofFirst(0, 0, 2), ofFirst(1, 0, 2)}},
        {open,
         3,
         2,
         {ofFirst(0, 0, 1), ofFirst(1, 0, 1), ofFirst(2, 0, 1), ofSecond(0, 0, 2),
          ofSecond(1, 0, 2)}},
        {open, 2, 1, {ofFirst(0, 0, 0), ofFirst(1, 0, 0), ofSecond(0, 0, 1), ofSecond(0, 0, 1)}},
        {open, 1, 2, {ofFirst(0, 0, 1), ofSecond(0, 0, 0), ofSecond(1, 0, 0)}},
        // Middle lines run through: both ends of their cut are one point.
        {merged,
         3,
         3,
         {ofFirst(0, 0, 2), ofFirst(2, 0, 2), ofFirst(1, 1, 1), ofSecond(0, 0, 2),
          ofSecond(2, 0, 2), ofSecond(1, 1, 1)}},
        {merged,
         2,
         3,
         {ofFirst(0, 0, 2), ofFirst(1, 0, 2), ofSecond(0, 0, 1), ofSecond(2, 0, 1),
          ofSecond(1, 0, 1)}},
        {merged, 1, 2, {ofFirst(0, 0, 1), ofSecond(0, 0, 0), ofSecond(1, 0, 0)}},
        // Each ring opens to the ring of its own depth, as far as the other has one.
        {merged,
         5,
         4,
         {ofFirst(0, 0, 3), ofFirst(4, 0, 3), ofFirst(1, 1, 2), ofFirst(2, 1, 2), ofFirst(3, 1, 2),
          ofSecond(0, 0, 4), ofSecond(3, 0, 4), ofSecond(1, 1, 3), ofSecond(2, 1, 3)}},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(crossCuts(c.kind, c.first, c.second), c.cuts)
            << static_cast<int>(c.kind) << ": " << c.first << " by " << c.second;
    }
}

TEST(TeePlan, StopsTheStemAndOpensTheBar) {
    using enum TeeKind;
    using Trims = std::vector<CrossingAt>;
    const struct {
        TeeKind kind;
        int stem, bar;
        bool nearerIsFirst;
        Trims trims;
        Cuts cuts;
    } cases[] = {
        {open, 2, 3, true, {{0, 0}, {1, 0}}, {ofSecond(0, 0, 1)}},
        {open, 3, 3, false, {{0, 2}, {1, 2}, {2, 2}}, {ofSecond(2, 0, 2)}},
        {open, 2, 1, true, {{0, 0}, {1, 0}}, {ofSecond(0, 0, 1)}},
        {merged, 2, 1, true, {{0, 0}, {1, 0}}, {}}, // a bar of one line has nothing to open
        {merged, 3, 2, true, {{0, 0}, {2, 0}, {1, 1}}, {ofSecond(0, 0, 2)}},
        {merged, 3, 3, true, {{0, 0}, {2, 0}, {1, 1}}, {ofSecond(0, 0, 2)}},
        {merged, 3, 3, false, {{0, 2}, {2, 2}, {1, 1}}, {ofSecond(2, 0, 2)}},
        {merged,
         5,
         5,
         true,
         {{0, 0}, {4, 0}, {1, 1}, {2, 2}, {3, 1}},
         {ofSecond(0, 0, 4), ofSecond(1, 1, 3)}},
        {merged, 2, 4, false, {{0, 3}, {1, 3}}, {ofSecond(3, 0, 1)}},
        {merged, 1, 2, true, {{0, 0}, {0, 0}}, {ofSecond(0, 0, 0)}},
    };
    for (const auto& c : cases) {
        const TeePlan plan = teePlan(c.kind, c.stem, c.bar, c.nearerIsFirst);
        EXPECT_EQ(plan.trims, c.trims) << c.stem << " on " << c.bar;
        EXPECT_EQ(plan.cuts, c.cuts) << c.stem << " on " << c.bar;
    }
}

TEST(CornerPlan, PairsTheElements) {
    constexpr bool kOpposite = true;
    constexpr bool kKeepsStart = true;
    const struct {
        int otherCount;
        bool oppositeEnds, keepStart;
        std::vector<int> partners; // of the elements in turn
    } cases[] = {
        {4, kOpposite, kKeepsStart, {0, 1, 2, 3}},
        {4, !kOpposite, kKeepsStart, {3, 2, 1, 0}},
        {3, kOpposite, kKeepsStart, {0, 1, 1, 1, 2}}, // inner ones join inner ones
        {3, !kOpposite, kKeepsStart, {2, 1, 1, 1, 0}},
        {2, kOpposite, kKeepsStart, {0, 0, 1}},
        {2, kOpposite, !kKeepsStart, {0, 1, 1}},
        {2, !kOpposite, kKeepsStart, {1, 0, 0}},
        {2, !kOpposite, !kKeepsStart, {1, 1, 0}},
        {1, kOpposite, kKeepsStart, {0, 0, 0}},
        {1, !kOpposite, kKeepsStart, {0, 0, 0}}, // never past the one there is
        {5, kOpposite, kKeepsStart, {0, 1, 4}},
        {5, kOpposite, !kKeepsStart, {0, 3, 4}},
        {5, !kOpposite, !kKeepsStart, {4, 3, 0}},
        {3, !kOpposite, kKeepsStart, {2}}, // a single element is a first one
    };
    for (const auto& c : cases) {
        const int count = static_cast<int>(c.partners.size());
        for (int i = 0; i < count; ++i) {
            EXPECT_EQ(cornerPartner(i, count, c.otherCount, c.oppositeEnds, c.keepStart),
                      c.partners[static_cast<std::size_t>(i)])
                << i << " of " << count << " to " << c.otherCount;
        }
    }
}

} // namespace
