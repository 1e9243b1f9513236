#include "parameterLists.h"

#include "MlineBuilder.h"
#include "mlineRecord.h"

#include <gtest/gtest.h>

namespace {

using Values = std::vector<double>;

class ParameterListsOfAMline : public ::testing::Test {
protected:
    KdDbMline mline;

    void SetUp() override {
        const KdGePoint3d chain[] = {{0, 0, 0}, {10, 0, 0}};
        const double offsets[] = {1.0, -1.0};
        orvex::testing::buildMline(mline, chain, offsets);
    }
};

TEST_F(ParameterListsOfAMline, ComeBackAsStored) {
    storeLineList(&mline, 1, 0, {0.5, 0, 3, 5});
    storeAreaList(&mline, 1, 0, {7, 8});
    EXPECT_EQ(lineList(&mline, 1, 0), (Values{0.5, 0, 3, 5}));
    EXPECT_EQ(areaList(&mline, 1, 0), (Values{7, 8}));
    EXPECT_EQ(lineList(&mline, 99, -1), (Values{0.5, 0, 3, 5})) << "reads clamp";
    int count = 0;
    GetNumLine(&mline, &count, 1, 0);
    EXPECT_EQ(count, 4);
    storeLineList(&mline, 1, 0, {});
    EXPECT_TRUE(lineList(&mline, 1, 0).empty());
    EXPECT_EQ(elementOffset(mline, 1, 0), 0.0);
    EXPECT_EQ(elementOffset(mline, 1, 1), -1.0);
}

TEST_F(ParameterListsOfAMline, AreNotStoredWhereThereIsNoPlace) {
    storeLineList(&mline, 2, 0, {1});
    storeLineList(&mline, 0, -1, {1});
    storeLineList(nullptr, 0, 0, {1});
    EXPECT_EQ(lineList(&mline, 0, 0), (Values{1, 0}));
    EXPECT_EQ(lineList(&mline, 1, 0), (Values{1, 0}));
    EXPECT_TRUE(lineList(nullptr, 0, 0).empty());
}

} // namespace
