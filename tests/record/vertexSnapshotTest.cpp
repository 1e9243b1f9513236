#include "vertexSnapshot.h"

#include "MlineBuilder.h"
#include "parameterLists.h"

#include <gtest/gtest.h>

#include <memory>

using namespace mledit;

namespace {

using Snapshot = std::unique_ptr<db_mlvertlink[]>;

TEST(VertexSnapshot, copiesTheWholeChain) {
    KdDbMline mline;
    const KdGePoint3d chain[] = {{0, 0, 1}, {10, 0, 2}, {10, 10, 3}};
    const double offsets[] = {1.0, -2.0};
    orvex::testing::buildMline(mline, chain, offsets);
    storeLineList(&mline, 1, 1, {0.5, 0, 3});
    storeAreaList(&mline, 1, 1, {4, 6});
    storeLineList(&mline, 2, 0, {});

    const Snapshot snapshot(ret_vert(&mline));
    ASSERT_NE(snapshot, nullptr);
    EXPECT_EQ(snapshot[2].pt[2], 3.0);
    EXPECT_EQ(snapshot[0].axis[0], 1.0);
    EXPECT_EQ(snapshot[0].miter[1], 1.0);
    const db_mlelemlink& element = snapshot[1].elem[1];
    ASSERT_EQ(element.numLine, 3);
    EXPECT_EQ(element.lineParams[2], 3.0);
    ASSERT_EQ(element.numArea, 2);
    EXPECT_EQ(element.areaParams[1], 6.0);
    EXPECT_EQ(snapshot[2].elem[0].numLine, 0);
    EXPECT_EQ(snapshot[2].elem[0].lineParams, nullptr);

    // A copy: what is written to it stays in it.
    element.lineParams[0] = 99.0;
    EXPECT_EQ(elementOffset(mline, 1, 1), 0.5);
}

// Drawings exist whose vertices differ in their number of elements; vertex 0 counts.
TEST(VertexSnapshot, repeatsTheLastElementAtAVertexThatHasFewer) {
    KdDbMline mline;
    EXPECT_EQ(ret_vert(&mline), nullptr);
    EXPECT_EQ(ret_vert(nullptr), nullptr);
    const KdGePoint3d chain[] = {{0, 0, 0}, {10, 0, 0}};
    const double offsets[] = {1.0, 0.0, -1.0};
    orvex::testing::buildMline(mline, chain, offsets);
    VoVector<KdMLSegment> record;
    KdArray<void*> entry;
    entry.append(&record);
    record.append(orvex::testing::segmentRecord({5.0, 0.0}));
    mline.setParametersAt(1, entry);
    const Snapshot fewer(ret_vert(&mline));
    EXPECT_EQ(fewer[0].elem[2].lineParams[0], -1.0);
    EXPECT_EQ(fewer[1].elem[2].lineParams[0], 5.0);

    mline.setParametersAt(0, entry);
    const Snapshot single(ret_vert(&mline));
    ASSERT_NE(single[0].elem, nullptr);
    EXPECT_EQ(single[0].elem[0].lineParams[0], 5.0);

    record.resize(0);
    mline.setParametersAt(0, entry);
    const Snapshot none(ret_vert(&mline));
    ASSERT_NE(none, nullptr);
    EXPECT_EQ(none[0].elem, nullptr);
}

} // namespace
