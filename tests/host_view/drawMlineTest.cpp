#include "drawMline.h"

#include "MlineSample.h"
#include "mlinePainter.h"

#include <cmath>
#include <sstream>

#include <gmock/gmock.h>

namespace orvex::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;

using Texts = std::vector<std::string>;

void write(std::ostream& out, const KdGePoint3d& point) {
    const auto rounded = [](double value) { return std::round(value * 1e4) / 1e4 + 0.0; };
    out << '(' << rounded(point.x) << ' ' << rounded(point.y) << ')';
}

// Writes down what is drawn: "0 (x y)(x y)" for a stretch of element 0; of a cap or a joint the
// first point, the one in the middle and the last.
class MlineInWords final : public MlineSink {
public:
    void fill(std::span<const KdGePoint3d> outline) override {
        std::ostringstream text;
        for (const KdGePoint3d& point : outline) {
            write(text, point);
        }
        fills.push_back(text.str());
    }
    void elementLine(const KdGePoint3d& begin, const KdGePoint3d& end, unsigned element) override {
        std::ostringstream text;
        text << element << ' ';
        write(text, begin);
        write(text, end);
        stretches.push_back(text.str());
    }
    void crossing(std::span<const KdGePoint3d> chain, StrokeRole role, unsigned first,
                  unsigned second) override {
        std::ostringstream text;
        text << (role == StrokeRole::cap ? "cap " : "joint ") << first << '-' << second << ' ';
        write(text, chain.front());
        write(text, chain[chain.size() / 2]);
        write(text, chain.back());
        crossings.push_back(text.str());
    }

    Texts fills;
    Texts stretches;
    Texts crossings;
};

MlineInWords partsOf(const MlineContent& mline, int flags = 0) {
    const MlineStyleContent style = sampleStyle(flags, {});
    MlineInWords parts;
    drawMline(mline, flags == 0 ? nullptr : &style, parts);
    return parts;
}

TEST(MlineStretches, lieOnTheElementsLineExactlyAsItsListSays) {
    const struct {
        const char* what;
        ValueList list; // of one element at 0.5, on a segment of length 10
        Texts drawn;
    } cases[] = {
        {"unbroken", {0.5, 0}, {"0 (0 0.5)(10 0.5)"}},
        {"one gap", {0.5, 0, 4, 6}, {"0 (0 0.5)(4 0.5)", "0 (6 0.5)(10 0.5)"}},
        {"runs over both ends", {0.5, -2, 12}, {"0 (-2 0.5)(12 0.5)"}},
        {"backwards", {0.5, 7, 2}, {"0 (7 0.5)(2 0.5)"}},
        {"of no length", {0.5, 0, 0, 4}, {"0 (4 0.5)(10 0.5)"}},
        {"a position alone", {0.5}, {}},
        {"nothing at all", {}, {}},
    };
    for (const auto& each : cases) {
        auto mline = sampleMline({{{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {each.list}, {}},
                                  {{10, 0, 0}, {1, 0, 0}, {0, 1, 0}, {{0.5, 0}}, {}}});
        EXPECT_THAT(partsOf(mline).stretches, ElementsAreArray(each.drawn)) << each.what;
    }
    // From (0, 3) to (4, 0): 5 long, so half way is at 2.5, whatever the axis says.
    const auto slanting = sampleMline({{{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {{3, 2.5}}, {}},
                                       {{4, 0, 0}, {1, 0, 0}, {0, 1, 0}, {{0, 0}}, {}}});
    EXPECT_THAT(partsOf(slanting).stretches, ElementsAre("0 (2 1.5)(4 0)"));
}

TEST(MlineStretches, theLastVertexLeadsBackInAClosedChainAndNowhereInAnOpenOne) {
    // Counter-clockwise round (0,0)-(10,10), one element 1 inside: the miters point inwards along
    // the diagonals and have unit length, so the position is sqrt(2) along.
    const double h = std::sqrt(0.5);
    const ValueList list{std::sqrt(2.0), 0};
    auto square = sampleMline({{{0, 0, 0}, {1, 0, 0}, {h, h, 0}, {list}, {}},
                               {{10, 0, 0}, {0, 1, 0}, {-h, h, 0}, {list}, {}},
                               {{10, 10, 0}, {-1, 0, 0}, {-h, -h, 0}, {list}, {}},
                               {{0, 10, 0}, {0, -1, 0}, {h, -h, 0}, {list}, {}}});
    Texts sides{"0 (1 1)(9 1)", "0 (9 1)(9 9)", "0 (9 9)(1 9)"};
    EXPECT_THAT(partsOf(square).stretches, ElementsAreArray(sides));
    sides.emplace_back("0 (1 9)(1 1)");
    square.closed = true;
    EXPECT_THAT(partsOf(square).stretches, ElementsAreArray(sides));
}

constexpr int kFilled = 1;
constexpr int kJoints = 2;
constexpr int kStartLine = 16;
constexpr int kStartArcs = 32;
constexpr int kStartRound = 64;
constexpr int kEndLine = 256;
constexpr int kEndArcs = 512;
constexpr int kEndRound = 1024;

TEST(MlineCaps, standWhereTheirElementsReachTheEnd) {
    const ValueList outer{2, 0};
    const ValueList inner{1, 0};
    const ValueList lower{-1, 0};
    const ValueList lowest{-2, 0};
    const struct {
        const char* what;
        int flags;
        std::vector<ValueList> lists;
        Texts drawn;
    } cases[] = {
        {"line at the start", kStartLine, {outer, lowest}, {"cap 0-1 (0 2)(0 0)(0 -2)"}},
        // Half circles of radius 2 over the end's miter.
        {"round at the start", kStartRound, {outer, lowest}, {"cap 0-1 (0 2)(-2 0)(0 -2)"}},
        {"round at the end", kEndRound, {outer, lowest}, {"cap 0-1 (10 2)(12 0)(10 -2)"}},
        {"elements in any order", kStartLine, {lowest, inner, outer}, {"cap 2-0 (0 2)(0 0)(0 -2)"}},
        {"inner pairs of four",
         kStartArcs,
         {outer, inner, lower, lowest},
         {"cap 1-2 (0 1)(-1 0)(0 -1)"}},
        {"the middle of five stays alone",
         kEndArcs,
         {outer, inner, {0, 0}, lower, lowest},
         {"cap 1-3 (10 1)(11 0)(10 -1)"}},
        {"no inner pair of three", kStartArcs, {outer, {0, 0}, lowest}, {}},
        {"outer element cut off at the start", kStartLine | kStartRound, {{2, 1}, lowest}, {}},
        {"outer element cut off at the end", kEndLine | kEndRound, {outer, {-2, 0, 9}}, {}},
        {"cut by less than rounding",
         kEndLine,
         {outer, {-2, 0, 10 - 1e-12}},
         {"cap 0-1 (10 2)(10 0)(10 -2)"}},
        {"a gap in between doesn't matter",
         kStartLine | kEndLine,
         {{2, 0, 4, 6}, lowest},
         {"cap 0-1 (0 2)(0 0)(0 -2)", "cap 0-1 (10 2)(10 0)(10 -2)"}},
        {"an outer gap leaves the inner arc",
         kStartRound | kStartArcs,
         {{2, 3}, inner, lower, lowest},
         {"cap 1-2 (0 1)(-1 0)(0 -1)"}},
        {"one element has none", kStartLine | kEndRound, {outer}, {}},
    };
    for (const auto& each : cases) {
        const auto mline = sampleEastward(0, 0, 10, each.lists);
        EXPECT_THAT(partsOf(mline, each.flags).crossings, ElementsAreArray(each.drawn))
            << each.what;
    }
}

TEST(MlineCaps, aSuppressedEndAndAClosedChainHaveNone) {
    constexpr int kBoth = kStartLine | kEndLine;
    auto mline = sampleEastward(0, 0, 10, {{1, 0}, {-1, 0}});
    mline.startCapsSuppressed = true;
    EXPECT_THAT(partsOf(mline, kBoth).crossings, ElementsAre("cap 0-1 (10 1)(10 0)(10 -1)"));
    mline.endCapsSuppressed = true;
    EXPECT_THAT(partsOf(mline, kBoth).crossings, IsEmpty());
    mline.startCapsSuppressed = mline.endCapsSuppressed = false;
    mline.closed = true;
    EXPECT_THAT(partsOf(mline, kBoth).crossings, IsEmpty());
}

TEST(MlineCaps, followASlantingEnd) {
    // Miter at 45 degrees: the outer elements cross it at 2 and -2 across, 2 and -2 along.
    const double h = std::sqrt(0.5);
    const double r = 2 * std::sqrt(2.0);
    const auto mline = sampleMline({{{0, 0, 0}, {1, 0, 0}, {h, h, 0}, {{r, 0}, {-r, 0}}, {}},
                                    {{10, 0, 0}, {1, 0, 0}, {0, 1, 0}, {{2, 0}, {-2, 0}}, {}}});
    // The arc's top lies a radius away from the line's middle, square to it.
    EXPECT_THAT(partsOf(mline, kStartLine | kStartRound).crossings,
                ElementsAre("cap 0-1 (2 2)(0 0)(-2 -2)", "cap 0-1 (2 2)(-2 2)(-2 -2)"));
}

MlineContent corner(const std::vector<ValueList>& first, const std::vector<ValueList>& second) {
    // East to (10, 0), then north; at the corner the miter points north-west.
    const double h = std::sqrt(0.5);
    return sampleMline({{{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, first, {}},
                        {{10, 0, 0}, {0, 1, 0}, {-h, h, 0}, second, {}},
                        {{10, 10, 0}, {0, 1, 0}, {-1, 0, 0}, {{1, 0}, {-1, 0}}, {}}});
}

TEST(MlineJoints, standAtInnerVerticesOutsideOfGaps) {
    const double m = std::sqrt(2.0);
    EXPECT_THAT(partsOf(corner({{1, 0, 5}, {-1, 0, 5}}, {{m, 0}, {-m, 0}}), kJoints).crossings,
                ElementsAre("joint 0-1 (9 1)(10 0)(11 -1)"))
        << "a gap on one side";
    EXPECT_THAT(partsOf(corner({{1, 0, 5}, {-1, 0, 5}}, {{m, 3}, {-m, 3}}), kJoints).crossings,
                IsEmpty())
        << "a gap over the corner";
}

TEST(MlineFill, liesBetweenTheOuterElementsWhateverTheirGaps) {
    EXPECT_THAT(partsOf(sampleEastward(0, 0, 10, {{1, 0, 4, 6}, {0, 0}, {-2, 0}}), kFilled).fills,
                ElementsAre("(0 1)(10 1)(10 -2)(0 -2)"));
    const double m = std::sqrt(2.0);
    EXPECT_THAT(partsOf(corner({{1, 0}, {-1, 0}}, {{m, 0}, {-m, 0}}), kFilled).fills,
                ElementsAre("(0 1)(9 1)(9 10)(11 10)(11 -1)(0 -1)"))
        << "one outline over all segments";
}

TEST(MlineFill, followsAreaListsWhereThereAreSome) {
    const std::vector<ValueList> whole{{1, 0}, {-1, 0}};
    auto mline =
        sampleMline({{{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, whole, {{1, 0, 3, 5}, {-1, 0, 4, 6}}},
                     {{10, 0, 0}, {1, 0, 0}, {0, 1, 0}, whole, {{}, {}}},
                     {{20, 0, 0}, {1, 0, 0}, {0, 1, 0}, whole, {{}, {}}}});
    EXPECT_THAT(partsOf(mline, kFilled).fills,
                ElementsAre("(0 1)(3 1)(4 -1)(0 -1)", "(5 1)(10 1)(10 -1)(6 -1)",
                            "(10 1)(20 1)(20 -1)(10 -1)"));
}

TEST(MlinePainter, capsAreHalfOfEachElementsColor) {
    const auto mline = sampleEastward(0, 0, 10, {{1, 0}, {-1, 0}});
    const auto style = sampleStyle(kStartLine, {});
    MlinePens pens;
    pens.elements = {Pen{0xFF0000}, Pen{0x00FF00}};
    Appearance appearance;
    AppearanceSink whole(appearance);
    PlacedSink sink(whole);
    paintMline(mline, &style, pens, sink);

    ASSERT_EQ(appearance.strokes.size(), 4U);
    EXPECT_EQ(appearance.strokes[0].rgb, 0xFF0000U);
    EXPECT_EQ(appearance.strokes[1].rgb, 0x00FF00U);
    EXPECT_EQ(appearance.strokes[2].rgb, 0xFF0000U);
    EXPECT_THAT(appearance.strokes[3].points, ElementsAre(PlanPoint{0, 0}, PlanPoint{0, -1}));
    EXPECT_EQ(appearance.strokes[3].rgb, 0x00FF00U);
    EXPECT_EQ(appearance.strokes[3].role, StrokeRole::cap);
}

TEST(DrawSink, skipsWhatIsOutOfRange) {
    const double nan = std::nan("");
    for (const double bad : {nan, HUGE_VAL, -HUGE_VAL, 1e200}) {
        const auto mline = sampleEastward(0, 0, 10, {{bad, 0}, {-1, 0}, {1, 0, bad}});
        const auto style = sampleStyle(1 | 2 | kStartRound | kEndLine | kStartArcs, {});
        Appearance appearance;
        AppearanceSink whole(appearance);
        PlacedSink sink(whole);
        paintMline(mline, &style, {}, sink);
        ASSERT_FALSE(appearance.strokes.empty());
        EXPECT_THAT(appearance.strokes[0].points, ElementsAre(PlanPoint{0, -1}, PlanPoint{10, -1}));
        EXPECT_TRUE(std::isfinite(appearance.box().low.x) && std::isfinite(appearance.box().high.y))
            << bad;
        EXPECT_LE(appearance.box().high.x, 11) << bad;
    }
}

} // namespace
} // namespace orvex::testing
