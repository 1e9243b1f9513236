#include "RandomMline.h"
#include "auditMline.h"
#include "chainMiter.h"
#include "elementBreaks.h"
#include "layRight.h"
#include "mlineTrack.h"
#include "moveEnd.h"
#include "straightMline.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace {

using namespace orvex;
using namespace orvex::testing;

void putPosition(MlineContent& mline, unsigned vertex, unsigned element, double position) {
    VoVector<KdMLSegment> record = mline.lists.nested(vertex);
    record[static_cast<int>(element)].m_lineParams.setAt(0, position);
    mline.lists.setNested(vertex, record);
}

std::vector<double> lineOf(const MlineContent& mline, unsigned vertex, unsigned element) {
    const auto list = mline.lists.line(vertex, element);
    return {list.begin(), list.end()};
}

// Where the gaps of an element begin and end in the drawing.
std::vector<KdGePoint3d> gapEnds(const MlineContent& mline, unsigned segment, unsigned element) {
    const MlineChain chain(mline);
    const MlineTrack track = chain.track(segment, element);
    const auto list = chain.line(segment, element);
    std::vector<KdGePoint3d> places;
    for (std::size_t i = 2; i < list.size(); ++i) {
        places.push_back(track.at(list[i]));
    }
    return places;
}

double largestCoordinate(const MlineContent& mline) {
    double largest = 0.0;
    for (const ChainVertex& vertex : mline.vertices) {
        largest = std::max({largest, std::abs(vertex.position.x), std::abs(vertex.position.y)});
    }
    return largest;
}

TEST(LayRight, whatLiesRightHasNoFindingAndKeepsEveryBit) {
    forRandomMlines(
        1, [&](RandomMline& /*random*/, const MlineContent& mline, const StyleLayout& style) {
            ASSERT_THAT(auditMline(mline, &style), ::testing::IsEmpty());
            const auto laid = layRight(mline, style);
            ASSERT_TRUE(laid && laid->equals(mline));
        });
}

// Elements are put beside their places and miters and axes turned; all of it is found, and laid
// right once and for all, with gaps where they were.
TEST(LayRight, putsRightWhatWasDisturbedAndLeavesGapsWhereTheyLie) {
    forRandomMlines(2, [&](RandomMline& random, const MlineContent& mline,
                           const StyleLayout& style) {
        MlineContent damaged = mline;
        const auto vertex = random.upTo(static_cast<unsigned>(mline.vertices.size()) - 1);
        const unsigned element = random.upTo(mline.elementCount() - 1);
        putPosition(damaged, vertex, element,
                    mline.lists.line(vertex, element)[0] + random.between(0.1, 1.0));
        const bool isInner = mline.closed || (vertex > 0 && vertex + 1 < mline.vertices.size());
        if (isInner) {
            KdGeVector3d& miter = damaged.vertices[vertex].miter;
            miter = miter + cross(mline.normal, miter) * 0.1;
        }
        const auto findings = auditMline(damaged, &style);
        const auto isAt = [&](FindingCode code, std::optional<unsigned> at) {
            return std::any_of(findings.begin(), findings.end(), [&](const Finding& finding) {
                return finding.code == code && finding.vertex == vertex && finding.element == at;
            });
        };
        ASSERT_TRUE(isAt(FindingCode::position, element));
        ASSERT_EQ(isAt(FindingCode::miter, {}), isInner);

        const auto laid = layRight(damaged, style);
        ASSERT_TRUE(laid);
        ASSERT_THAT(auditMline(*laid, &style), ::testing::IsEmpty());
        const auto again = layRight(*laid, style);
        ASSERT_TRUE(again && again->equals(*laid));
        const double tolerance = 1e-9 * std::max(1.0, largestCoordinate(mline));
        for (unsigned s = 0; s < MlineChain(mline).segmentCount(); ++s) {
            ASSERT_EQ(laid->vertices[s].position, mline.vertices[s].position);
            for (unsigned e = 0; e < mline.elementCount(); ++e) {
                const auto was = gapEnds(damaged, s, e);
                const auto is = gapEnds(*laid, s, e);
                ASSERT_EQ(was.size(), is.size());
                const KdGeVector3d way = MlineChain(*laid).track(s, e).direction;
                for (std::size_t g = 0; g < was.size(); ++g) {
                    ASSERT_NEAR(dot(is[g] - was[g], way), 0.0, tolerance) << "segment " << s;
                }
            }
        }
    });
}

StyleLayout pairStyle() {
    StyleLayout style;
    style.offsets = {5.0, -5.0};
    return style;
}

// Along x from 0 to 100, elements at 5 and -5.
MlineContent wall(std::vector<double> upperBreaks) {
    upperBreaks.insert(upperBreaks.begin(), 5.0);
    return straightMline({}, 100, {upperBreaks, {-5.0, 0.0}});
}

TEST(Audit, tellsWhatListsAndStylesContradict) {
    const StyleLayout style = pairStyle();
    const auto codes = [&](const MlineContent& mline, const StyleLayout* of) {
        std::vector<FindingCode> found;
        for (const Finding& finding : auditMline(mline, of)) {
            found.push_back(finding.code);
        }
        return found;
    };
    EXPECT_THAT(codes(wall({0, 40, 60}), &style), ::testing::IsEmpty());
    EXPECT_THAT(codes(wall({0, 100 + 9e-8}), &style), ::testing::IsEmpty());
    EXPECT_THAT(auditMline(wall({0, 40, 30}), &style),
                ::testing::ElementsAre(Finding{FindingCode::order, 0, 0, 30.0, 40.0}));
    EXPECT_THAT(auditMline(wall({0, 40, 101}), &style),
                ::testing::ElementsAre(Finding{FindingCode::reach, 0, 0, 101.0, 100.0}));
    MlineContent joined = wall({0, 112});
    joined.endCapsSuppressed = true; // a corner's outer element goes on beyond its own end
    EXPECT_THAT(codes(joined, &style), ::testing::IsEmpty());
    EXPECT_THAT(codes(wall({0}), nullptr), ::testing::ElementsAre(FindingCode::style));
    StyleLayout one;
    one.offsets = {5.0};
    EXPECT_THAT(auditMline(wall({0}), &one),
                ::testing::ElementsAre(Finding{FindingCode::elements, 0, {}, 2.0, 1.0}));
    MlineContent along = wall({0});
    along.vertices[0].miter = {1, 0, 0};
    EXPECT_THAT(
        codes(along, &style),
        ::testing::ElementsAre(FindingCode::miter, FindingCode::position, FindingCode::position));
    MlineContent twice =
        straightMline({}, 100, {{2.5, 0.0}, {-2.5, 0.0}}); // positions are in miters
    twice.vertices[0].miter = twice.vertices[1].miter = {0, 2, 0};
    EXPECT_THAT(codes(twice, &style), ::testing::IsEmpty());
    MlineContent empty = wall({0});
    empty.vertices[1].position = {0, 0, 0};
    EXPECT_THAT(codes(empty, &style), ::testing::ElementsAre(FindingCode::chain));
    EXPECT_FALSE(layRight(empty, style));
}

TEST(LayRight, makesListsOfTheStretchesThatAreDrawn) {
    const auto laid = [](const std::vector<double>& breaks) {
        const auto result = layRight(wall(breaks), pairStyle());
        return result ? lineOf(*result, 0, 0) : std::vector<double>{};
    };
    EXPECT_THAT(laid({60, 80, 10, 20}), ::testing::ElementsAre(5, 10, 20, 60, 80));
    EXPECT_THAT(laid({30, 10, 20, 50}), ::testing::ElementsAre(5, 10, 50));
    EXPECT_THAT(laid({0, 40, 60, 120}), ::testing::ElementsAre(5, 0, 40, 60));
    EXPECT_THAT(laid({0, 40, 110, 120}), ::testing::ElementsAre(5, 0, 40));
}

TEST(MoveEnd, keepsOffsetsAndGapsWhereTheyLie) {
    struct Case {
        MlineEnd end;
        double x;
        std::vector<double> before;
        std::vector<double> after;
    };
    const std::vector<Case> cases{
        {MlineEnd::end, 150, {0, 40, 60}, {5, 0, 40, 60}}, // open: drawn up to the new end
        {MlineEnd::end, 150, {0, 40, 60, 100}, {5, 0, 40, 60, 150}},
        {MlineEnd::end, 150, {0, 95}, {5, 0, 95}},    // a joint's stop stays
        {MlineEnd::end, 50, {0, 40, 60}, {5, 0, 40}}, // the gap's other side is gone
        {MlineEnd::start, -20, {0, 40, 60}, {5, 0, 60, 80}},
        {MlineEnd::start, 50, {0, 40, 60}, {5, 10}},
        {MlineEnd::start, 50, {0, 70, 80}, {5, 0, 20, 30}},
        {MlineEnd::start, 0, {0, 40, 60}, {5, 0, 40, 60}},
        {MlineEnd::start, -20, {0, 0, 0}, {5, 0}}, // what is empty gets no length
        {MlineEnd::end, 150, {0, 40, 100, 100}, {5, 0, 40}},
        {MlineEnd::end, 150, {0, 40, 100}, {5, 0, 40}},
    };
    for (const Case& each : cases) {
        const auto moved = moveEnd(wall(each.before), each.end, {each.x, 3.0, 0.0});
        ASSERT_TRUE(moved) << each.x;
        EXPECT_THAT(lineOf(*moved, 0, 0), ::testing::ContainerEq(each.after)) << each.x;
        const unsigned vertex = each.end == MlineEnd::start ? 0 : 1;
        EXPECT_EQ(moved->vertices[vertex].position, (KdGePoint3d{each.x, 0.0, 0.0}));
    }
    EXPECT_FALSE(moveEnd(wall({0}), MlineEnd::end, {0, 0, 0}));
    EXPECT_FALSE(moveEnd(wall({0}), MlineEnd::start, {120, 0, 0}));
    MlineContent closed = wall({0});
    closed.closed = true;
    EXPECT_FALSE(moveEnd(closed, MlineEnd::end, {150, 0, 0}));
}

TEST(ElementBreaks, areWhatWasGivenOrRefused) {
    const MlineContent mline = wall({0});
    const auto changed = withBreaks(mline, 0, 1, std::vector<double>{0.0, 12.5, 20.0});
    ASSERT_TRUE(changed);
    EXPECT_THAT(lineOf(*changed, 0, 1), ::testing::ElementsAre(-5, 0, 12.5, 20));
    EXPECT_EQ(lineOf(*changed, 0, 0), lineOf(mline, 0, 0));
    const auto none = withBreaks(mline, 0, 0, {});
    ASSERT_TRUE(none);
    EXPECT_THAT(lineOf(*none, 0, 0), ::testing::ElementsAre(5));
    EXPECT_FALSE(withBreaks(mline, 1, 0, {})); // the last vertex of an open chain
    EXPECT_FALSE(withBreaks(mline, 0, 2, {}));
    EXPECT_FALSE(withBreaks(mline, 0, 0, std::vector<double>{3.0, 1.0}));
    EXPECT_FALSE(withBreaks(mline, 0, 0, std::vector<double>{std::nan("")}));
}

} // namespace
