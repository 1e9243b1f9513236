#include "DatabaseCore.h"
#include "FlatSource.h"
#include "KdDbDatabase.h"
#include "kddbObjects.h"

#include <gtest/gtest.h>

namespace {

using orvex::testing::flatMline;

std::unique_ptr<KdDbMline> chainOfThree() {
    auto mline = std::make_unique<KdDbMline>();
    mline->setContent(flatMline(3, 2));
    return mline;
}

VoVector<KdMLSegment>* parametersOf(const KdDbMline& mline, int vertex) {
    KdArray<void*> parameters;
    mline.getParametersAt(vertex, parameters);
    return parameters.isEmpty() ? nullptr : static_cast<VoVector<KdMLSegment>*>(parameters[0]);
}

KdArray<void*> entryOf(VoVector<KdMLSegment>& record) {
    KdArray<void*> parameters;
    parameters.append(&record);
    return parameters;
}

TEST(KdDbMline, aListIsSeenAsItWasSet) {
    const auto mline = chainOfThree();
    VoVector<KdMLSegment> record(*parametersOf(*mline, 1));
    // Neither ascending nor positive nor of different values.
    for (const double value : {9.0, 9.0, -4.0}) {
        record[1].m_lineParams.append(value);
    }
    ASSERT_EQ(mline->setParametersAt(1, entryOf(record)), Status::done);
    record[1].m_lineParams.setAt(0, 100.0); // the caller's own again
    const KdMLSegment& stored = parametersOf(*mline, 1)->at(1);
    ASSERT_EQ(stored.m_lineParams.size(), 6U);
    EXPECT_EQ(stored.m_lineParams[0], 1.0);
    EXPECT_EQ(stored.m_lineParams[3], 9.0);
    EXPECT_EQ(stored.m_lineParams[5], -4.0);
    EXPECT_EQ(parametersOf(*mline, 0)->at(1).m_lineParams.size(), 3U);
    // What belongs to the multiline itself can be handed back to it.
    for (const int from : {1, 2}) {
        ASSERT_EQ(mline->setParametersAt(2, entryOf(*parametersOf(*mline, from))), Status::done);
        EXPECT_EQ(parametersOf(*mline, 2)->at(0).m_lineParams[0], 1.0);
    }
}

TEST(KdDbMline, oddParameterArraysAreRefused) {
    const auto mline = chainOfThree();
    const auto before = mline->content();
    VoVector<KdMLSegment> record(5U);
    KdArray<void*> none;
    KdArray<void*> two = entryOf(record);
    two.append(&record);
    KdArray<void*> null;
    null.append(nullptr);
    for (const KdArray<void*>& odd : {none, two, null}) {
        EXPECT_NE(mline->setParametersAt(0, odd), Status::done);
    }
    for (const int outside : {-1, 3}) {
        EXPECT_NE(mline->setParametersAt(outside, entryOf(record)), Status::done);
        EXPECT_EQ(parametersOf(*mline, outside), nullptr);
    }
    EXPECT_EQ(mline->content(), before);
}

TEST(KdDbMline, verticesComeBareAndGoFromTheEnd) {
    const auto mline = chainOfThree();
    VoVector<KdMLSegment> record(5U);
    mline->setParametersAt(0, entryOf(record));
    KdGePoint3d removed;
    ASSERT_EQ(mline->removeLastSeg(removed), Status::done);
    EXPECT_EQ(removed, (KdGePoint3d{20.0, 0.0, 0.0}));
    EXPECT_EQ(parametersOf(*mline, 2), nullptr);
    ASSERT_EQ(mline->appendSeg({0.0, 0.0, 0.0}), Status::done);
    EXPECT_EQ(mline->numVertices(), 3);
    EXPECT_EQ(mline->axisAt(2), KdGeVector3d());
    EXPECT_EQ(mline->miterAt(2), KdGeVector3d());
    ASSERT_EQ(parametersOf(*mline, 2)->size(), 5U);                     // as vertex 0
    EXPECT_TRUE(parametersOf(*mline, 2)->at(0).m_lineParams.isEmpty()); // not what stood there
    EXPECT_EQ(parametersOf(*mline, 1)->size(), 2U);
    EXPECT_NE(KdDbMline().removeLastSeg(removed), Status::done);
    EXPECT_EQ(removed, KdGePoint3d());
}

TEST(KdDbMline, theImplementationReplacesInOrder) {
    const auto mline = chainOfThree();
    KdDbMlineImp* const imp = KdDbSystemInternals::getImpObject(mline.get());
    KdArray<KdGePoint3d> points;
    points.append({1.0, 1.0, 1.0});
    points.append({2.0, 2.0, 2.0});
    imp->appendSegments(points); // one less than there are
    KdArray<KdGeVector3d> vectors;
    for (int i = 0; i < 4; ++i) { // one more
        vectors.append({0.0, 0.0, i + 0.5});
    }
    imp->appendSeg(vectors, true);
    EXPECT_EQ(mline->numVertices(), 3);
    EXPECT_EQ(mline->vertexAt(1), (KdGePoint3d{2.0, 2.0, 2.0}));
    EXPECT_EQ(mline->vertexAt(2), (KdGePoint3d{20.0, 0.0, 0.0}));
    EXPECT_EQ(mline->axisAt(2), (KdGeVector3d{0.0, 0.0, 2.5}));
    EXPECT_EQ(mline->miterAt(2), (KdGeVector3d{0.0, 1.0, 0.0}));
    imp->appendSeg(vectors, false);
    EXPECT_EQ(mline->miterAt(0), (KdGeVector3d{0.0, 0.0, 0.5}));
}

TEST(KdDbMline, aCopyIsAValueOfItsOwn) {
    const auto original = chainOfThree();
    original->setLayer(L"Walls");
    KdDbMline copy;
    ASSERT_EQ(copy.copyFrom(original.get()), Status::done);
    const auto image = original->content();
    original->setScale(3.0);
    KdGePoint3d removed;
    original->removeLastSeg(removed);
    EXPECT_TRUE(copy.content()->equals(*image));
    EXPECT_EQ(copy.layer(), L"Walls");
    ASSERT_EQ(original->copyFrom(&copy), Status::done);
    EXPECT_TRUE(original->content()->equals(*image));
    EXPECT_EQ(original->copyFrom(original.get()), Status::done);
}

TEST(KdDbMline, aContentWithTooFewListsIsFilledUp) {
    auto content = flatMline(2, 1);
    content->vertices.resize(4);
    content->traits = nullptr;
    KdDbMline mline;
    ASSERT_EQ(mline.setContent(content), Status::done);
    EXPECT_EQ(mline.numVertices(), 4);
    EXPECT_EQ(parametersOf(mline, 3)->size(), 1U);
    EXPECT_EQ(content->lists.vertexCount(), 2U); // the giver's value isn't touched
}

// The header of a file may hold what no command would have set.
TEST(KdDbMline, takesNoCurrentValueThatIsNone) {
    KdDbDatabase database;
    orvex::DatabaseCore& core = database.core();
    core.setVariable("CMLJUST", 9);
    core.setVariable("CECOLOR", -7);
    core.setVariable("CELTYPE", std::wstring(L"GONE"));
    KdDbMline mline;
    mline.setDatabaseDefaults(&database);
    EXPECT_EQ(mline.justification(), 0);
    EXPECT_EQ(mline.color().colorIndex(), 256);
    EXPECT_EQ(mline.linetype(), L"ByLayer");
    core.setVariable("CMLJUST", 2);
    core.setVariable("CECOLOR", 3);
    core.setVariable("CELTYPE", std::wstring(L"BYBLOCK"));
    mline.setDatabaseDefaults(&database);
    EXPECT_EQ(mline.justification(), 2);
    EXPECT_EQ(mline.color().colorIndex(), 3);
    EXPECT_EQ(mline.linetype(), L"BYBLOCK");
}

} // namespace
