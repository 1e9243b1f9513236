#include "DatabaseCore.h"
#include "ToolWorld.h"

using namespace mledit;

namespace {

class VertexShift : public orvex::testing::ToolWorld {
protected:
    VertexShift() { setStyle({1, -1}); }

    static void move(KdDbMline* mline, int vertex, const KdGePoint3d& place) {
        CMlineEdit run;
        CMlineSegment seg;
        GetSegmentsSize(mline, &seg.m_numElements);
        run.ptListInitialize(mline, mline->numVertices(), seg.m_numElements, &seg.m_ptList,
                             &seg.m_ptListSize);
        const double to[3] = {place.x, place.y, place.z};
        run.changePTPosition(mline, vertex, to, seg.m_ptList);
        freePointTable(seg.m_ptList, seg.m_ptListSize);
    }
};

TEST_F(VertexShift, alongItsSegmentsKeepsTheBreaksInPlace) {
    const struct {
        const char* name;
        int vertex;
        double to;
        std::string breaks; // at vertices 0 to 3
    } cases[] = {
        {"back into the gap", 1, 6, "0 5, 4 9 11, 0 5 7, 0 5 7"},
        // Seen from the vertex before, the new place lies behind: its lists stay.
        {"back past the neighbour", 1, -2, "0 5 7, 12 17 19, 0 5 7, 0 5 7"},
        {"onto the neighbour", 1, 0, ", 10 15 17, 0 5 7, 0 5 7"},
        {"the first", 0, 6, "1, 0 5 7, 0 5 7, 0 5 7"},
        {"an inner one to where it is", 1, 10, "0 5 7, 0 5 7, 0 5 7, 0 5 7"},
        // The last vertex is written anew even then.
        {"the last to where it is", 3, 30, "0 5 7, 0 5 7, 0 5 7, 0"},
    };
    for (const auto& c : cases) {
        KdDbMline* const mline = add("0,0 10,0 20,0 30,0 : 1");
        for (int v = 0; v < 4; ++v) {
            setBreaks(mline, v, {{0, 5, 7}});
        }
        setStyle({1});
        move(mline, c.vertex, {c.to, 0, 0});
        EXPECT_EQ(mline->vertexAt(c.vertex), (KdGePoint3d{c.to, 0, 0}));
        EXPECT_EQ(breaksAt(mline, 0) + ", " + breaksAt(mline, 1) + ", " + breaksAt(mline, 2) +
                      ", " + breaksAt(mline, 3),
                  c.breaks)
            << c.name;
        mline->erase();
    }
    KdDbMline* const mline = add("0,0 10,0 20,0 : 1 -1");
    mline->setStyle(KdDbObjectId());
    const auto styleless = mline->content();
    move(mline, 1, {13, 0, 0});
    EXPECT_TRUE(mline->content()->equals(*styleless)) << "no style, no offsets to keep";
}

// Two vertices along 3, 4, 5: offsets are the style's by justification and scale, whatever stood
// in the lists, and the ends stand at the style's angles.
TEST_F(VertexShift, sidewaysTakesOffsetsAndAnglesFromTheStyle) {
    const struct {
        int justification;
        double scale;
        std::string lists; // of the style's 3, 1, -1
    } cases[] = {{0, 1, "0 0 | -2 0 | -4 0"},
                 {1, 1, "2 0 | 0 0 | -2 0"},
                 {2, 1, "4 0 | 2 0 | 0 0"},
                 {1, 0.5, "1 0 | 0 0 | -1 0"}};
    setStyle({3, 1, -1});
    for (const auto& c : cases) {
        KdDbMline* const mline = add("0,0 10,0 : 7 7 7");
        setBreaks(mline, 0, {{0, 5, 7}, {3}, {0}});
        mline->setJustification(c.justification);
        mline->setScale(c.scale);
        move(mline, 1, {6, 8, 0});
        EXPECT_EQ(lists(mline, 0), c.lists);
        EXPECT_EQ(lists(mline, 1), c.lists);
        EXPECT_EQ(directions(mline, 0), "0.6,0.8 / -0.8,0.6");
        EXPECT_EQ(directions(mline, 1), "0.6,0.8 / -0.8,0.6");
        mline->erase();
    }
}

TEST_F(VertexShift, endAnglesTurnWithTheNormalAndTheUserSystem) {
    const std::string cosine = number(std::sqrt(3.0) / 2);
    setStyle({1, -1}, 30, 150);
    // In the plane of a normal that points down, angles run the other way round.
    const struct {
        double normal, userY; // of the user system, its X being the world's
        std::string y, lists; // of the last miter
    } cases[] = {{1, 1, "0.5", "2 0 | -2 0"},
                 {1, -1, "-0.5", "-2 0 | 2 0"},
                 {-1, 1, "0.5", "-2 0 | 2 0"},
                 {-1, -1, "-0.5", "2 0 | -2 0"}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.y + ", normal " + number(c.normal));
        database.core().setVariable("UCSYDIR", KdGePoint3d{0, c.userY, 0});
        KdDbMline* const mline = add("0,0 10,0 : 1 -1");
        mline->setNormal({0, 0, c.normal});
        move(mline, 1, {5, 0, 0});
        EXPECT_EQ(directions(mline, 0), "1,0 / " + cosine + "," + c.y);
        EXPECT_EQ(directions(mline, 1), "1,0 / -" + cosine + "," + c.y);
        EXPECT_EQ(lists(mline, 1), c.lists);
        mline->erase();
    }
}

// A corner that becomes straight: vertex 2 at (10, 10) gets its neighbour before it moved to
// (20, 10), on the line of the segment behind.
TEST_F(VertexShift, slidesTheStartsBehindToTheNewMiter) {
    const std::string root2 = number(std::sqrt(2.0));
    KdDbMline* const mline = add("0,0 10,0 10,10 0,10 : 1 -1");
    setBreaks(mline, 2, {{2, 5}, {0, 5, 7}});
    ASSERT_EQ(lists(mline, 2), root2 + " 2 5 | -" + root2 + " 0 5 7");
    move(mline, 1, {20, 10, 0});
    EXPECT_EQ(directions(mline, 2), "-1,0 / 0,-1");
    // Element 0 starts at (10, 9) and not at (9, 9): 1 longer. Element 1 at (10, 11), 1 shorter.
    EXPECT_EQ(lists(mline, 2), "1 3 6 | -1 0 4 6");
}

// Vertex 0 onto the last one: by number there is no vertex before it, so the closing segment keeps
// its runs.
TEST_F(VertexShift, aClosedChainHasNoVertexBeforeTheFirst) {
    KdDbMline* const mline = add("0,0 10,0 10,10 0,10 : 1 -1 closed");
    setBreaks(mline, 3, {{0, 5, 7}, {0, 5, 7}});
    const std::string kept = lists(mline, 3);
    move(mline, 0, {0, 10, 0});
    EXPECT_EQ(chain(mline), "0,10 10,0 10,10 0,10");
    EXPECT_EQ(lists(mline, 3), kept);
}

} // namespace
