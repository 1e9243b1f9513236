#include "DatabaseCore.h"
#include "ToolWorld.h"

#include <array>

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

TEST_F(VertexShift, anElementKeepsItsOffsetWhenItsSegmentIsShorter) {
    KdDbMline* const mline = add("0,0 10,0 10,10 : 1 -1");
    setBreaks(mline, 0, {{3, 5}, {0}});
    move(mline, 1, {0.5, 0, 0});
    EXPECT_EQ(lists(mline, 0), "1 | -1 0");
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

TEST_F(VertexShift, aSegmentWithoutLengthHasNoDirection) {
    const auto make = [this] {
        KdDbMline* const mline = add("0,0 10,0 10,0 20,0 : 1 -1");
        storeLineList(mline, 1, 0, {1, 0, 3});
        storeLineList(mline, 1, 1, {-1, 0, 3});
        return mline;
    };
    KdDbMline* const start = make();
    move(start, 1, {5, 0, 0});
    EXPECT_EQ(chain(start), "0,0 5,0 10,0 20,0");
    EXPECT_EQ(lists(start, 1), "1 | -1");
    KdDbMline* const end = make();
    move(end, 2, {15, 0, 0});
    EXPECT_EQ(chain(end), "0,0 10,0 10,0 20,0") << "it stays";
}

// Also where it points the other way than a new one would, in the plane of x and z.
TEST_F(VertexShift, theMiterOfTheNextVertexKeepsItsSense) {
    for (const double sense : {1.0, -1.0}) {
        KdDbMline* const mline = add("0,0 4,0 10,0 20,0 : 1 -1");
        const double miter[3] = {0.0, 0.0, sense};
        std::array<double[3], 4> miters{};
        for (double(&each)[3] : miters) {
            copyPoint(miter, each);
        }
        SetMilters(mline, miters.data());
        mline->setNormal({0, -1, 0});
        move(mline, 1, {6, 0, 0});
        EXPECT_EQ(mline->miterAt(2).z, sense);
        mline->erase();
    }
}

} // namespace
