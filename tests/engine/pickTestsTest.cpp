#include "pickTests.h"

#include "EngineWorld.h"

namespace {

using PickTests = orvex::testing::EngineWorld;

TEST_F(PickTests, OnlyAMultilineEndsAPromptForOne) {
    KdDbMline* const mline = addMline({{0, 0, 0}, {10, 0, 0}}, {0.5, -0.5});
    long name[2];
    nameOf(mline, name);
    EXPECT_TRUE(needBreak(name));
    EXPECT_FALSE(isOpen(mline)) << "nothing stays open";

    nameOf(addLine(), name);
    EXPECT_FALSE(needBreak(name));
    const long empty[2] = {0, 0};
    EXPECT_FALSE(needBreak(empty));
    const long secondWordOnly[2] = {0, 5};
    EXPECT_FALSE(needBreak(secondWordOnly));
    const long unknown[2] = {123456789, 0};
    EXPECT_FALSE(needBreak(unknown));

    nameOf(mline, name);
    mline->erase();
    EXPECT_FALSE(needBreak(name));
}

TEST(Collinear, SegmentsLieOnOneLineWhateverTheirDirection) {
    struct {
        const char* name = "";
        KdGePoint3d p[4];
        bool collinear = false;
    } const cases[] = {
        {"one behind the other", {{0, 0, 0}, {2, 0, 0}, {5, 0, 0}, {9, 0, 0}}, true},
        {"against each other", {{0, 0, 0}, {2, 0, 0}, {9, 0, 0}, {5, 0, 0}}, true},
        {"same segment", {{0, 0, 0}, {2, 0, 0}, {0, 0, 0}, {2, 0, 0}}, true},
        {"ends meet: the start stands in", {{0, 0, 0}, {2, 0, 0}, {5, 0, 0}, {2, 0, 0}}, true},
        {"parallel", {{0, 0, 0}, {2, 0, 0}, {5, 1, 0}, {9, 1, 0}}, false},
        {"at an angle", {{0, 0, 0}, {2, 0, 0}, {2, 0, 0}, {2, 2, 0}}, false},
        {"off in height", {{0, 0, 0}, {2, 0, 0}, {5, 0, 1}, {9, 0, 1}}, false},
        // The directions are compared as vectors of length 1, at 1e-10.
        {"turned within the tolerance", {{0, 0, 0}, {1, 0, 0}, {1, 0, 0}, {2, 0.9e-10, 0}}, true},
        {"turned beyond it", {{0, 0, 0}, {1, 0, 0}, {1, 0, 0}, {2, 1.2e-10, 0}}, false},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(isCollinear(c.p[0], c.p[1], c.p[2], c.p[3]), c.collinear) << c.name;
    }
}

} // namespace
