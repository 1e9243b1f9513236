#include "ToolWorld.h"

using namespace mledit;

namespace {

class VertexTools : public orvex::testing::ToolWorld {
protected:
    const std::string root3half = number(std::sqrt(3.0) / 2);

    void addAt(KdDbMline* mline, double x, double y) {
        play(addVertex, {pick(mline, x, y), cancel()});
    }
    void deleteAt(KdDbMline* mline, double x, double y) {
        play(deleteVertex, {pick(mline, x, y), cancel()});
    }
};

TEST_F(VertexTools, addEndsEveryIntervalAtTheNewVertex) {
    KdDbMline* const mline = add("0,0 10,0 : 1 -1");
    setBreaks(mline, 0, {{0, 5, 7}, {0, 5, 7}});
    storeAreaList(mline, 0, 1, {3, 4});
    addAt(mline, 8, -1);
    EXPECT_EQ(drawn(mline), "0,0 (1 0 5 7 | -1 0 5 7) 8,0 (1 0 | -1 0) 10,0");
    EXPECT_EQ(directions(mline, 1), "1,0 / 0,1");
    EXPECT_EQ(areaList(mline, 0, 1), (std::vector<double>{3, 4}));
    EXPECT_EQ(areaList(mline, 1, 1), (std::vector<double>{3, 4})) << "stands twice";
    // The runs after the vertex are dropped.
    addAt(mline, 3, 1);
    EXPECT_EQ(drawn(mline), "0,0 (1 0 | -1 0) 3,0 (1 0 | -1 0) 8,0 (1 0 | -1 0) 10,0");

    KdDbMline* const square = add("0,0 10,0 10,10 0,10 : 1 -1 closed");
    addAt(square, 1, 4);
    EXPECT_EQ(chain(square), "0,0 10,0 10,10 0,10 0,4") << "appended on the closing segment";
    EXPECT_EQ(lists(square, 4), "1 0 | -1 0");
    EXPECT_EQ(directions(square, 4), "0,-1 / 1,0");
}

// Straight, so that all offsets stay 1 and -1 but for the miters: the style's ends stand at 30 and
// 150 degrees, whose sines are a half.
TEST_F(VertexTools, deleteTurnsTheNeighboursAsItsRulesSay) {
    setStyle({1, -1}, 30, 150);
    const struct {
        const char* name;
        double pickAt;
        std::string chain;
        int slot; // a neighbour
        std::string directions, lists;
    } cases[] = {
        {"a free first vertex takes the end angle", 5, "0,0 7,0 10,0", 0,
         "1,0 / -" + root3half + ",0.5", "2 0 | -2 0"},
        // Its start moves by -1 to the square miter; the offset's own run at 0 doesn't move.
        {"after the gap breaks move with the start", 5, "0,0 7,0 10,0", 1, "1,0 / 0,1",
         "1 0 1 1.5 | -1 0 1"},
        {"a new last vertex is square", 9.8, "0,0 4,0 7,0", 2, "1,0 / 0,1", "1 0 | -1 0"},
        {"the last takes the start angle", 6.8, "0,0 4,0 10,0", 2, "1,0 / " + root3half + ",0.5",
         "2 0 | -2 0"},
        {"and so does a new first vertex", 1, "4,0 7,0 10,0", 0, "1,0 / " + root3half + ",0.5",
         "2 0 | -2 0"},
        {"an exact middle means the start", 5.5, "0,0 7,0 10,0", 0, "1,0 / -" + root3half + ",0.5",
         "2 0 | -2 0"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        KdDbMline* const mline = add("0,0 4,0 7,0 10,0 : 1 -1");
        setBreaks(mline, 2, {{0, 2, 2.5}, {0, 2}});
        deleteAt(mline, c.pickAt, 1);
        EXPECT_EQ(chain(mline), c.chain);
        EXPECT_EQ(directions(mline, c.slot), c.directions);
        EXPECT_EQ(lists(mline, c.slot), c.lists);
        mline->erase();
    }
}

TEST_F(VertexTools, deleteLeavesTheLeastThatAMultilineNeeds) {
    KdDbMline* const two = add("0,0 10,0 : 1 -1");
    KdDbMline* const triangle = add("20,0 30,0 30,10 : 1 -1 closed");
    for (KdDbMline* const mline : {two, triangle}) {
        const auto before = mline->content();
        deleteAt(mline, mline == two ? 2 : 25, 1);
        EXPECT_TRUE(mline->content()->equals(*before));
        EXPECT_TRUE(isUndoOffered());
    }
}

} // namespace
