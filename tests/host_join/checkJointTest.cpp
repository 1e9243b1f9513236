#include "checkJoint.h"

#include "planSamples.h"

#include <gmock/gmock.h>

namespace orvex::testing {

namespace {

using ::testing::IsEmpty;

struct Joined {
    std::vector<MlineContent> contents;
    JoinPlan plan;

    [[nodiscard]] bool isRight(unsigned place) const { return is(isJoined, place); }
    [[nodiscard]] bool isRightInAnyKind(unsigned place) const {
        return is(isJoinedInAnyKind, place);
    }

private:
    [[nodiscard]] bool is(bool (*judge)(const JoinPlace&, const JoinPair&), unsigned place) const {
        const std::vector<JoinWall> walls = wallsOf(contents);
        const JoinPlace& at = plan.places[place];
        return judge(at, {walls[at.first.wall], walls[at.second.wall]});
    }
};

Joined join(const std::vector<WallSketch>& sketches, JoinKind kind) {
    Joined joined;
    for (const WallSketch& sketch : sketches) {
        joined.contents.push_back(drawWall(sketch));
    }
    joined.plan = planJoins(wallsOf(joined.contents), {std::nullopt, kind, kind, true});
    playIdeally(joined.plan, joined.contents);
    return joined;
}

// A bar along the x axis and a stem that comes down on it, three elements each; the bar's near line
// is element 0, opened from 1900 to 2100.
std::vector<WallSketch> tee() {
    const std::vector<double> offsets{100.0, 0.0, -100.0};
    return {{{{0.0, 0.0}, {4000.0, 0.0}}, offsets}, {{{2000.0, 3000.0}, {2000.0, 0.0}}, offsets}};
}

TEST(CheckJoint, whatIsDrawnElsewhereMakesAJointWrong) {
    struct Fault {
        const char* name;
        unsigned wall;
        unsigned element;
        std::vector<double> stops;
        bool right;
        bool rightInAnyKind;
    };
    const std::vector<Fault> faults{
        {"none", 0, 0, {0, 1900, 2100}, true, true},
        {"a gap elsewhere", 0, 0, {0, 1000, 1500, 1900, 2100}, true, true},
        {"the bar's far line is another joint's", 0, 2, {0, 1900, 2100}, true, true},
        {"opened too far", 0, 0, {0, 1890, 2100}, false, false},
        {"opened too little", 0, 0, {0, 1900, 2090}, false, false},
        {"not opened: a closed tee", 0, 0, {0}, false, true},
        {"the stem ends short", 1, 0, {0, 2890}, false, false},
        {"the stem runs on", 1, 2, {0, 2910}, false, false},
        {"something is left beyond", 1, 2, {0, 2900, 2950, 2960}, false, false},
        {"an inner line runs on", 1, 1, {0}, false, true},
    };
    for (const Fault& fault : faults) {
        SCOPED_TRACE(fault.name);
        Joined joined = join(tee(), JoinKind::open);
        setStops(joined.contents[fault.wall], 0, fault.element, fault.stops);
        EXPECT_EQ(joined.isRight(0), fault.right);
        EXPECT_EQ(joined.isRightInAnyKind(0), fault.rightInAnyKind);
    }
    Joined capped = join(tee(), JoinKind::open);
    capped.contents[1].endCapsSuppressed = false;
    EXPECT_FALSE(capped.isRight(0));
}

// Three elements each, from paper: the inner line of a merged joint runs on to the other's middle.
TEST(CheckJoint, innerLinesFollowTheKind) {
    const auto stopsOf = [](const Joined& joined, unsigned wall, unsigned element) {
        const JoinWall now(1, 0, joined.contents[wall]);
        const auto stops = now.stops(0, element);
        return std::vector<double>(stops.begin(), stops.end());
    };
    const Joined merged = join(tee(), JoinKind::merged);
    EXPECT_EQ(stopsOf(merged, 1, 1), (std::vector<double>{0})); // to its end on the bar's axis
    EXPECT_EQ(stopsOf(merged, 0, 1), (std::vector<double>{0}));
    const Joined closed = join(tee(), JoinKind::closed);
    EXPECT_EQ(stopsOf(closed, 1, 1), (std::vector<double>{0, 2900}));
    EXPECT_EQ(stopsOf(closed, 0, 0), (std::vector<double>{0}));

    std::vector<WallSketch> crossing = tee();
    crossing[1].points[1] = {2000.0, -3000.0};
    EXPECT_EQ(stopsOf(join(crossing, JoinKind::merged), 0, 1), (std::vector<double>{0}));
    const Joined open = join(crossing, JoinKind::open);
    EXPECT_EQ(stopsOf(open, 0, 1), (std::vector<double>{0})); // on top: the one drawn first
    EXPECT_EQ(stopsOf(open, 1, 1), (std::vector<double>{0, 2900, 3100}));
}

// The tools lose stops when a joint is made at a wall's other end, or a vertex moves.
TEST(CheckJoint, stopsThatAToolLostAreRenewed) {
    const std::vector<double> offsets{100.0, -100.0};
    const std::vector<WallSketch> sketches{{{{0.0, -3000.0}, {0.0, 3000.0}}, offsets},
                                           {{{4000.0, -3000.0}, {4000.0, 3000.0}}, offsets},
                                           {{{-20.0, 0.0}, {3990.0, 0.0}}, offsets}};
    Joined joined = join(sketches, JoinKind::open);
    ASSERT_EQ(joined.plan.order.size(), 2U);
    const std::vector<JoinWall> right = wallsOf(joined.contents);
    setStops(joined.contents[2], 0, 0, {0});
    setStops(joined.contents[2], 0, 1, {3000, 3900});
    setStops(joined.contents[1], 0, 1, {0, 100});
    const std::vector<JoinWall> now = wallsOf(joined.contents);

    const JoinPlace& place = joined.plan.places[joined.plan.order[1]];
    const JoinPair before{right[place.first.wall], right[place.second.wall]};
    for (const RenewedStops& stops :
         renewedStops(place, before, {now[place.first.wall], now[place.second.wall]})) {
        setStops(joined.contents[stops.wall], stops.segment, stops.element, stops.stops);
    }
    EXPECT_TRUE(joined.isRight(0));
    EXPECT_TRUE(joined.isRight(1));
    const std::vector<JoinWall> again = wallsOf(joined.contents);
    EXPECT_THAT(renewedStops(place, before, {again[place.first.wall], again[place.second.wall]}),
                IsEmpty());
}

TEST(CheckJoint, anElementThatLeavesItsLineIsSeen) {
    const MlineContent content = drawWall(tee()[1]);
    const JoinWall before(1, 0, content);
    MlineContent shorter = content;
    shorter.vertices.back().position.y = 400.0;
    EXPECT_TRUE(keepsLines(before, JoinWall(1, 0, shorter)));
    MlineContent aside = content;
    aside.vertices.back().position.x += 1e-3;
    EXPECT_FALSE(keepsLines(before, JoinWall(1, 0, aside)));
    MlineContent longer = content;
    longer.vertices.push_back(aside.vertices.back());
    EXPECT_TRUE(keepsSegments(before, JoinWall(1, 0, aside)));
    EXPECT_FALSE(keepsSegments(before, JoinWall(1, 0, longer)));
}

} // namespace

} // namespace orvex::testing
