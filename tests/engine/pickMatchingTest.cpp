#include "CMlineEdit.h"

#include "DatabaseCore.h"
#include "EngineWorld.h"
#include "parameterLists.h"
#include "pickTests.h"

#include <limits>

using namespace mledit;

namespace {

const std::vector<KdGePoint3d> kStraight = {{0, 0, 0}, {10, 0, 0}, {20, 0, 0}};

class PickMatching : public orvex::testing::EngineWorld {
protected:
    CMlineEdit run;

    // Fills a record from a pick at that place; what it holds before is an unlikely mark.
    CMlineSegment& pickAt(const KdDbMline* mline, double x, double y) {
        CMlineSegment& seg = run.m_first;
        seg.m_segment = kOldSegment;
        seg.m_element = kOldElement;
        nameOf(mline, run.m_pickedName);
        run.m_pickedPoint[0] = x;
        run.m_pickedPoint[1] = y;
        run.mlineEditInitialize(&seg, run.m_pickedName, nullptr);
        return seg;
    }
    static bool missed(const CMlineSegment& seg) {
        return seg.m_segment == kOldSegment && seg.m_element == kOldElement;
    }

    static constexpr int kOldSegment = 77;
    static constexpr int kOldElement = 88;
};

TEST_F(PickMatching, theApertureIsStrictAndTheLowerElementWinsOverTheNearer) {
    KdDbMline* const mline = addMline(kStraight, {0.5, -0.5});
    const double radius = 3 * 0.1 * 1.4142135623730951;
    KdDbMline* const onAxis = addMline(kStraight, {0.0});
    EXPECT_TRUE(missed(pickAt(onAxis, 3.0, radius)));
    EXPECT_FALSE(missed(pickAt(onAxis, 3.0, radius - 1e-9)));
    view.unitsPerPixel = 1.0; // aperture 4.24: both elements within
    EXPECT_EQ(pickAt(mline, 3.0, -0.5).m_element, 0);
}

TEST_F(PickMatching, onlyWhatIsDrawnIsPicked) {
    KdDbMline* const mline = addMline({{0, 0, 0}, {10, 0, 0}}, {0.0});
    storeLineList(mline, 0, 0, {0.0, 1, 3, 5});
    for (const double drawn : {1.0, 2.0, 5.0, 9.0}) {
        EXPECT_FALSE(missed(pickAt(mline, drawn, 0.0))) << drawn;
    }
    for (const double gap : {0.5, 3.0, 4.0}) {
        EXPECT_TRUE(missed(pickAt(mline, gap, 0.0))) << gap;
    }
    storeLineList(mline, 0, 0, {});
    EXPECT_TRUE(missed(pickAt(mline, 2.0, 0.0)));
}

TEST_F(PickMatching, withoutAViewNothingIsWithinTheAperture) {
    view.links = 2;
    KdDbMline* const mline = addMline(kStraight, {0.0});
    EXPECT_TRUE(missed(pickAt(mline, 3.0, 0.0)));
    EXPECT_EQ(run.m_pickRadius, 0.0);
    // The view's aperture stays when the view goes.
    view.links = 3;
    pickAt(mline, 3.0, 0.0);
    view.links = 0;
    EXPECT_FALSE(missed(pickAt(mline, 3.0, 0.0)));
}

TEST_F(PickMatching, thePickIsInTheUsersSystemAndASecondOneSharesTheOpening) {
    database.core().setVariable("UCSORG", KdGePoint3d{100, 0, 0});
    KdDbMline* const mline = addMline(kStraight, {0.0});
    CMlineSegment& seg = pickAt(mline, -97.0, 0.0);
    EXPECT_EQ(seg.m_segment, 0);
    EXPECT_DOUBLE_EQ(seg.m_pickPoint[0], 3.0);
    mline->close();
    nameOf(mline, run.m_pickedName);
    run.mlineEditInitialize(&run.m_second, run.m_pickedName, &seg);
    EXPECT_EQ(run.m_second.m_mline, mline);
    EXPECT_FALSE(isOpen(mline)) << "not opened again";
}

TEST_F(PickMatching, onlyAMultilineEndsAPromptForOne) {
    KdDbMline* const mline = addMline(kStraight, {0.5});
    long name[2];
    nameOf(mline, name);
    EXPECT_TRUE(needBreak(name));
    EXPECT_FALSE(isOpen(mline)) << "nothing stays open";
    mline->erase();
    EXPECT_FALSE(needBreak(name));
    nameOf(addLine(), name);
    EXPECT_FALSE(needBreak(name));
    const long unknown[2] = {123456789, 0};
    EXPECT_FALSE(needBreak(unknown));
}

TEST(Collinear, segmentsLieOnOneLineWhateverTheirDirection) {
    const struct {
        const char* name = "";
        KdGePoint3d p[4];
        bool collinear = false;
    } cases[] = {
        {"against each other", {{0, 0, 0}, {2, 0, 0}, {9, 0, 0}, {5, 0, 0}}, true},
        {"ends meet: the start stands in", {{0, 0, 0}, {2, 0, 0}, {5, 0, 0}, {2, 0, 0}}, true},
        {"parallel", {{0, 0, 0}, {2, 0, 0}, {5, 1, 0}, {9, 1, 0}}, false},
        {"off in height", {{0, 0, 0}, {2, 0, 0}, {5, 0, 1}, {9, 0, 1}}, false},
        // The directions are compared as vectors of length 1, at 1e-10.
        {"turned within the tolerance", {{0, 0, 0}, {1, 0, 0}, {1, 0, 0}, {2, 0.9e-10, 0}}, true},
        {"turned beyond it", {{0, 0, 0}, {1, 0, 0}, {1, 0, 0}, {2, 1.2e-10, 0}}, false},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(isCollinear(c.p[0], c.p[1], c.p[2], c.p[3]), c.collinear) << c.name;
    }
}

TEST(Compass, sortsPlacesIntoEightDirections) {
    const double from[3] = {5, 5, 0};
    struct {
        double x, y;
        int code;
    } const cases[] = {{9, 5, 1}, {9, 9, 2},          {5, 9, 3},          {1, 9, 4},
                       {5, 5, 0}, {5 + 1e-11, 10, 3}, {5 + 2e-10, 10, 2}, {10, 5 - 1e-11, 1}};
    for (const auto& c : cases) {
        const double to[3] = {c.x, c.y, 77};
        EXPECT_EQ(CMlineEdit::PositionConnection(from, to), c.code) << c.x << " " << c.y;
        EXPECT_EQ(CMlineEdit::PositionConnection(to, from), -c.code) << c.x << " " << c.y;
    }
    const double nowhere[3] = {std::numeric_limits<double>::quiet_NaN(), 9, 0};
    EXPECT_EQ(CMlineEdit::PositionConnection(from, nowhere), -5001);
    EXPECT_EQ(CMlineEdit::PositionConnection(nowhere, from), -5001);
}

} // namespace
