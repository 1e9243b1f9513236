#include "frames.h"

#include "FakeDocument.h"

#include <gtest/gtest.h>

namespace {

using orvex::testing::FakeDocument;

TEST(Frames, withoutADrawingTheUsersSystemIsTheWorlds) {
    const double point[3] = {1.0, 2.0, 3.0};
    for (const bool displacement : {false, true}) {
        double user[3] = {};
        double world[3] = {};
        EXPECT_TRUE(wc2uc(point, user, displacement));
        EXPECT_TRUE(uc2wc(user, world, displacement));
        EXPECT_EQ(user[2], 3.0);
        EXPECT_EQ(world[0], 1.0);
    }
}

TEST(Frames, displayCoordinatesAreTheViewsAndFlat) {
    const double point[3] = {1.0, 2.0, 3.0};
    for (int links = 0; links <= 3; ++links) {
        FakeDocument document;
        document.displayOffset = 100.0;
        document.links = links;
        const bool hasView = links == 3;
        double out[3] = {9.0, 9.0, 9.0};
        EXPECT_EQ(tkl_wcs2dcs(point, out), hasView ? 0 : -1) << links;
        EXPECT_EQ(out[0], hasView ? 101.0 : 9.0) << links;
        EXPECT_EQ(out[2], hasView ? 0.0 : 9.0) << links;
        EXPECT_EQ(mledit::activeView() != nullptr, hasView) << links;
    }
}

} // namespace
