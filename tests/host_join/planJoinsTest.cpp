#include "checkJoint.h"
#include "joinSteps.h"
#include "planSamples.h"

#include <gmock/gmock.h>

#include <array>
#include <random>

namespace orvex::testing {

namespace {

using Plan = std::vector<WallSketch>;

WallSketch wall(std::vector<PlanVector> points, double width = 200.0) {
    return {std::move(points), {width / 2.0, -width / 2.0}};
}

WallSketch ring(std::vector<PlanVector> points, double width = 200.0) {
    WallSketch sketch = wall(std::move(points), width);
    sketch.closed = true;
    return sketch;
}

PlanVector polar(double degrees, double length) {
    const double angle = degrees * 3.14159265358979323846 / 180.0;
    return {length * std::cos(angle), length * std::sin(angle)};
}

// A bar along the x axis from -3000 to 3000.
WallSketch bar(double width = 200.0) {
    return wall({{-3000, 0}, {3000, 0}}, width);
}

// A stem from above whose end lies at this height over the bar's axis.
WallSketch stem(double end, double x = 0.0, double width = 200.0) {
    return wall({{x, 3000}, {x, end}}, width);
}

WallSketch through(double degrees, double width = 200.0, PlanVector at = {}) {
    return wall({at + polar(degrees, -3000), at + polar(degrees, 3000)}, width);
}

Plan frame(double past, bool asRing = false) {
    const double side = 6000;
    if (asRing) {
        return {ring({{0, 0}, {side, 0}, {side, side}, {0, side}})};
    }
    const double low = -past;
    const double high = side + past;
    return {wall({{low, 0}, {high, 0}}), wall({{side, low}, {side, high}}),
            wall({{high, side}, {low, side}}), wall({{0, high}, {0, low}})};
}

Plan framed(bool asRing) {
    Plan plan = frame(0, asRing);
    for (const double at : {2000.0, 4000.0}) {
        plan.push_back(wall({{at, 0}, {at, 6000}}));
        plan.push_back(wall({{0, at}, {6000, at}}));
    }
    return plan;
}

Plan corner(double degrees, double leg, double widthA = 200.0, double widthB = 200.0) {
    return {wall({{leg, 0}, {0, 0}}, widthA), wall({{0, 0}, polar(degrees, leg)}, widthB)};
}

Plan gridOf(int count) {
    Plan plan;
    for (int i = 0; i < count; ++i) {
        plan.push_back(wall({{-1000, i * 1500.0}, {count * 1500.0, i * 1500.0}}));
        plan.push_back(wall({{i * 1500.0, -1000}, {i * 1500.0, count * 1500.0}}));
    }
    return plan;
}

Plan pinwheel() {
    return {wall({{0, 0}, {4000, 0}}), wall({{3000, 0}, {3000, 4000}}),
            wall({{3000, 3000}, {-1000, 3000}}), wall({{0, 3000}, {0, -1000}})};
}

Plan triangle(double side) {
    const PlanVector a{0, 0};
    const PlanVector b{side, 0};
    const PlanVector c = polar(60, side);
    return {wall({a, b}), wall({b, c}), wall({c, a})};
}

Plan comb(int stems, double pitch) {
    Plan plan{wall({{-1000, 0}, {stems * pitch + 1000, 0}})};
    for (int i = 0; i < stems; ++i) {
        const double y = i % 2 == 0 ? 2000.0 : -2000.0;
        plan.push_back(wall({{i * pitch, y}, {i * pitch, 0}}));
    }
    return plan;
}

Plan fan(std::initializer_list<double> degrees, bool goOn) {
    Plan plan;
    for (const double angle : degrees) {
        plan.push_back(goOn ? through(angle) : wall({{0, 0}, polar(angle, 4000)}));
    }
    return plan;
}

Plan ring24(int stems) {
    std::vector<PlanVector> points;
    for (int i = 0; i < 24; ++i) {
        points.push_back(polar(i * 15.0, 8000));
    }
    Plan plan{ring(points)};
    for (int i = 0; i < stems; ++i) {
        const double angle = i * 45.0 + 7.5;
        plan.push_back(wall({polar(angle, 3000), polar(angle, 7900)}));
    }
    return plan;
}

struct Case {
    const char* name;
    Plan plan;
    const char* counts;
};

const std::vector<Case> kFortyCases{
    {"1 cross 90", {bar(), through(90)}, "1/0/0/0"},
    {"1 cross 30", {bar(), through(30)}, "1/0/0/0"},
    {"1 cross 15", {bar(), through(15)}, "1/0/0/0"},
    {"2 four by four", gridOf(4), "16/0/0/0"},
    {"3 frame, inner walls", framed(false), "4/8/4/0"},
    {"3 ring, inner walls", framed(true), "4/8/0/0"},
    {"4 short", frame(-199), "0/0/4/0"},
    {"4 too short", frame(-201), "0/0/0/0"},
    {"4 over", frame(199), "0/0/4/0"},
    {"4 too far over", frame(201), "4/0/0/0"},
    {"5 at the far line", {bar(), stem(-100)}, "0/1/0/0"},
    {"5 at the axis", {bar(), stem(0)}, "0/1/0/0"},
    {"5 at the near line", {bar(), stem(100)}, "0/1/0/0"},
    {"5 short", {bar(), stem(199)}, "0/1/0/0"},
    {"5 through", {bar(), stem(-199)}, "0/1/0/0"},
    {"5 too short", {bar(), stem(201)}, "0/0/0/0"},
    {"5 slanting, a corner within", {bar(), wall({polar(30, 3000), polar(30, 360)})}, "0/1/0/0"},
    {"5 slanting, too short", {bar(), wall({polar(30, 3000), polar(30, 390)})}, "0/0/0/0"},
    {"5 too far through", {bar(), stem(-201)}, "1/0/0/0"},
    {"7 facing", {bar(), stem(0), wall({{0, -3000}, {0, 0}})}, "0/2/0/0"},
    {"7 facing, short", {bar(), stem(160), wall({{0, -3000}, {0, -110}})}, "0/2/0/0"},
    {"7 facing, shifted", {bar(), stem(0), wall({{100, -3000}, {100, 20}})}, "0/2/0/0"},
    {"7 facing, skewed", {bar(), stem(0), wall({{200, -3000}, {0, 30}})}, "0/2/0/0"},
    {"8 apart", {bar(), stem(0, 0), stem(0, 201)}, "0/2/0/0"},
    {"8 overlapping", {bar(), stem(150, 0), stem(150, 150)}, "0/0/0/2"},
    {"9 one foot", {bar(), wall({polar(45, 3000), {}}), wall({polar(135, 3000), {}})}, "0/0/0/1"},
    {"9 leaning apart",
     {bar(), wall({polar(45, 3000), {}}),
      wall({PlanVector{-1000, 0} + polar(135, 3000), {-1000, 0}})},
     "0/2/0/0"},
    {"10 three ends", fan({0, 120, 240}, false), "0/0/0/1"},
    {"10 four ends", fan({0, 90, 180, 270}, false), "0/0/0/1"},
    {"10 a third end",
     {corner(90, 4000)[0], corner(90, 4000)[1], wall({polar(225, 4000), {}})},
     "0/0/0/1"},
    {"11 one point", fan({0, 45, 90, 135}, true), "0/0/0/1"},
    {"12 triangle", triangle(4000), "0/0/3/0"},
    {"13 pinwheel", pinwheel(), "0/4/0/0"},
    {"14 partition",
     {wall({{0, -3000}, {0, 3000}}), wall({{4000, -3000}, {4000, 3000}}),
      wall({{160, 0}, {3840, 0}})},
     "0/2/0/0"},
    {"15 comb", comb(10, 500), "0/10/0/0"},
    {"16 acute", corner(15, 1800), "0/0/1/0"},
    {"16 short legs", corner(15, 500), "0/0/0/1"},
    {"17 179", corner(179, 4000), "0/0/1/0"},
    {"17 175", corner(175, 4000), "0/0/1/0"},
    {"17 160", corner(160, 4000), "0/0/1/0"},
    {"17 unequal", corner(175, 4000, 200, 400), "0/0/0/1"},
    {"18 gap", {wall({{0, 0}, {3000, 0}}), wall({{3050, 0}, {6000, 0}})}, "0/0/0/1"},
    {"18 touching", {wall({{0, 0}, {3000, 0}}), wall({{6000, 0}, {3000, 0}})}, "0/0/0/1"},
    {"18 overlapping", {wall({{0, 0}, {3000, 0}}), wall({{2950, 0}, {6000, 0}})}, "0/0/0/1"},
    {"19 twice", {bar(), bar()}, "0/0/0/1"},
    {"19 inside", {bar(), wall({{1000, 0}, {-1000, 0}})}, "0/0/0/1"},
    {"20 overlapping", {bar(), wall({{-3000, 199.999999}, {3000, 199.999999}})}, "0/0/0/1"},
    {"20 touching", {bar(), wall({{-3000, 200}, {3000, 200}})}, "0/0/0/0"},
    {"20 apart", {bar(), wall({{-3000, 200.000001}, {3000, 200.000001}})}, "0/0/0/0"},
    {"21 tee at 15", {wall({{-1800, 0}, {1800, 0}}), wall({polar(15, 4000), {}})}, "0/1/0/0"},
    {"21 little bar", {wall({{-500, 0}, {500, 0}}), wall({polar(15, 4000), {}})}, "0/0/0/1"},
    {"22 foot 60", {wall({{0, 0}, {3000, 0}}), stem(0, 60)}, "0/0/1/0"},
    {"22 foot 400", {wall({{0, 0}, {3000, 0}}), stem(0, 400)}, "0/1/0/0"},
    {"22 foot 150", {wall({{0, 0}, {3000, 0}}), stem(0, 150)}, "0/0/1/0"},
    {"23 on a bend", {wall({{-3000, 0}, {0, 0}, {3000, 3000}}), through(90)}, "0/0/0/1"},
    {"25 by a bend", {wall({{-3000, 0}, {0, 0}, {0, 3000}}), stem(0, -300)}, "0/1/0/0"},
    {"25 in a bend", {wall({{-3000, 0}, {0, 0}, {0, 3000}}), stem(0, -50)}, "0/0/0/1"},
    {"26 a six", {wall({{0, 4000}, {0, 0}, {3000, 0}, {3000, 2000}, {0, 2000}})}, "0/1/0/0"},
    {"26 an eight", {wall({{0, 0}, {3000, 3000}, {3000, 0}, {0, 3000}})}, "1/0/0/0"},
    {"26 an open square",
     {wall({{-100, 0}, {3000, 0}, {3000, 3000}, {0, 3000}, {0, -100}})},
     "0/0/1/0"},
    {"27 hairpin", {wall({{0, 0}, {3000, 0}, {3000, 100}, {0, 100}})}, "0/0/0/1"},
    {"27 wide hairpin", {wall({{0, 0}, {3000, 0}, {3000, 400}, {0, 400}})}, "0/0/0/0"},
    {"27 sharp bends beside the chain",
     {{.points = {{300, 400}, {400, 300}, {300, 200}, {350, 200}}, .offsets = {200, 0}},
      wall({{253, 211}, {47, 263}, {151, 309}})},
     "0/0/0/3"},
    {"27 ring of 24", ring24(5), "0/5/0/0"},
    {"28 closing bar",
     {ring({{0, 0}, {4000, 0}, {4000, 4000}, {0, 4000}}), wall({{-3000, 2000}, {0, 2000}})},
     "0/1/0/0"},
    {"28 two rings",
     {ring({{0, 0}, {4000, 0}, {4000, 4000}, {0, 4000}}),
      ring({{2000, 2000}, {6000, 2000}, {6000, 6000}, {2000, 6000}})},
     "2/0/0/0"},
    {"33 too short", {bar(), wall({{0, -20}, {0, 70}})}, "0/0/0/1"},
    {"33 no length", {bar(), wall({{0, 0}, {0, 0}}), wall({{5, 5}}), wall({})}, "0/0/0/0"},
    {"28 two closing segments",
     {ring({{0, 0}, {4000, 0}, {4000, 4000}, {0, 4000}}),
      ring({{1000, 1000}, {1000, 3000}, {-2000, 3000}, {-2000, 1000}})},
     "1/0/0/1"},
    {"29 wide and thin",
     {bar(400), through(60, 50), stem(30, 1500, 50), wall({{-3000, 0}, {-3000, 3000}}, 100)},
     "1/2/1/0"},
    {"31 lopsided",
     {{{{-3000, 0}, {3000, 0}}, {10, -190}}, {{{0, 3000}, {0, 70}}, {150, 0}}},
     "0/1/0/0"},
    {"32 before the axis", {{{{-3000, 0}, {3000, 0}}, {200, 0}}, stem(150)}, "0/1/0/0"},
    {"36 heights", {bar(), {{{0, -3000}, {0, 3000}}, {100, -100}, false, 5.0}}, "0/0/0/1"},
    {"36 normal", {bar(), {{{0, -3000}, {0, 3000}}, {100, -100}, false, 0.0, -1.0}}, "0/0/0/1"},
    {"37 two bars", {bar(), wall({{-3000, -300}, {3000, -300}}), stem(-110)}, "0/1/0/0"},
};

// An end on the axis of a lopsided bar, or next to it, far out and at a small angle.
TEST(PlanJoins, anEndNearTheAxisIsAnEndAtTheBar) {
    const PlanVector far{1e6, -1e6};
    for (const double beside : {0.0, 1e-9, -1e-9, 1e-6, -1e-6, 1e-3, -1e-3}) {
        const PlanVector way = polar(15.0, 1.0);
        const std::vector<WallSketch> plan{
            {{far + PlanVector{-3000, 0}, far + PlanVector{3000, 0}}, {150, -50}},
            wall({far + way * 4000.0, far + way * beside})};
        EXPECT_EQ(countsOf(planJoins(wallsOf(plan), {})), "0/1/0/0") << beside;
    }
}

// A flat, and the same flat drawn carelessly: ends short and over, a little skewed, half reversed.
TEST(PlanJoins, aCarelessPlanHasTheMeetingsOfItsCleanTwin) {
    const Plan clean = framed(false);
    const std::string counts = countsOf(planJoins(wallsOf(clean), {}));
    std::mt19937 random(40);
    std::uniform_real_distribution<double> along(-80.0, 80.0);
    std::uniform_real_distribution<double> beside(-15.0, 15.0);
    for (int i = 0; i < 50; ++i) {
        Plan plan = clean;
        for (WallSketch& sketch : plan) {
            const PlanVector way = sketch.points[1] - sketch.points[0];
            const PlanVector unit = way * (1.0 / way.length());
            for (PlanVector& point : sketch.points) {
                point = point + unit * along(random) + unit.left() * beside(random);
            }
            if (random() % 2 == 0) {
                std::swap(sketch.points[0], sketch.points[1]);
            }
        }
        EXPECT_EQ(countsOf(planJoins(wallsOf(plan), {})), counts);
    }
}

struct Change {
    const char* name;
    Plan (*apply)(Plan);
};

constexpr std::array kChanges{
    Change{"as drawn", [](Plan plan) { return plan; }},
    Change{"reversed", [](Plan plan) { return reversed(std::move(plan)); }},
    Change{"far off",
           [](Plan plan) {
               return moved(std::move(plan), {1e6, -1e6});
           }},
    Change{"turned", [](Plan plan) { return turned(std::move(plan), 30.0); }},
    Change{"turned a little", [](Plan plan) { return turned(std::move(plan), 0.18); }},
    Change{"drawn in another order",
           [](Plan plan) {
               std::reverse(plan.begin(), plan.end());
               return plan;
           }},
};

TEST(PlanJoins, meetingsAreFoundWhereverAndHoweverAPlanIsDrawn) {
    for (const Case& sample : kFortyCases) {
        for (const Change& change : kChanges) {
            const JoinPlan plan = planJoins(wallsOf(change.apply(sample.plan)), {});
            EXPECT_EQ(countsOf(plan), sample.counts) << sample.name << ", " << change.name;
        }
    }
}

// What is joined needs no joint: all planned places of all cases, made as they ought to be, in
// every kind.
TEST(PlanJoins, aJoinedPlanHasNothingToJoin) {
    for (const JoinKind kind : {JoinKind::closed, JoinKind::open, JoinKind::merged}) {
        const JoinOptions options{std::nullopt, kind, kind, true};
        for (const Case& sample : kFortyCases) {
            SCOPED_TRACE(sample.name);
            std::vector<MlineContent> contents;
            for (const WallSketch& sketch : sample.plan) {
                contents.push_back(drawWall(sketch));
            }
            const JoinPlan plan = planJoins(wallsOf(contents), options);
            playIdeally(plan, contents);
            const std::vector<JoinWall> walls = wallsOf(contents);
            for (const unsigned index : plan.order) {
                const JoinPlace& place = plan.places[index];
                EXPECT_TRUE(isJoined(place, {walls[place.first.wall], walls[place.second.wall]}));
            }
            const JoinPlan again = planJoins(walls, options);
            EXPECT_THAT(again.order, ::testing::IsEmpty());
            EXPECT_EQ(again.places.size(), plan.places.size());
        }
    }
}

} // namespace

} // namespace orvex::testing
