#include "frames.h"

#include "FakeDocument.h"

#include <gtest/gtest.h>

namespace {

using orvex::testing::FakeDocument;

TEST(Frames, DisplayCoordinatesAreTheViewsAndFlat) {
    FakeDocument document;
    document.displayOffset = 100.0;
    const double point[3] = {1.0, 2.0, 3.0};
    double out[3] = {9.0, 9.0, 9.0};
    EXPECT_EQ(tkl_wcs2dcs(point, out), 0);
    EXPECT_EQ(out[0], 101.0);
    EXPECT_EQ(out[1], 102.0);
    EXPECT_EQ(out[2], 0.0);
}

TEST(Frames, WithoutAViewTheDisplayIsRefused) {
    const double point[3] = {1.0, 2.0, 3.0};
    for (int links = 0; links <= 2; ++links) {
        FakeDocument document;
        document.links = links;
        double out[3] = {9.0, 9.0, 9.0};
        EXPECT_EQ(tkl_wcs2dcs(point, out), -1) << links;
        EXPECT_EQ(out[0], 9.0) << links;
        EXPECT_EQ(activeView(), nullptr) << links;
    }
    ASSERT_EQ(GetRvexAppCtxActiveDocContext(), nullptr);
    double out[3] = {9.0, 9.0, 9.0};
    EXPECT_EQ(tkl_wcs2dcs(point, out), -1);
}

TEST(Frames, WithoutAUserSystemOfItsOwnUserIsWorld) {
    const double point[3] = {1.25, 2.5, 3.75};
    double user[3] = {};
    double world[3] = {};
    ASSERT_TRUE(wc2uc(point, user, false));
    ASSERT_TRUE(uc2wc(user, world, false));
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(user[i], point[i]);
        EXPECT_EQ(world[i], point[i]);
    }
}

} // namespace
