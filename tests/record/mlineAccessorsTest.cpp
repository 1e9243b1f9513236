#include "mlineAccessors.h"

#include "KdDbDatabase.h"
#include "KdDbMlineStyle.h"
#include "MlineBuilder.h"
#include "parameterLists.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

using namespace mledit;

namespace {

using orvex::testing::buildMline;

using Values = std::vector<double>;

// Three vertices around a right angle, two elements.
class MlineAccessors : public ::testing::Test {
protected:
    KdDbMline mline;

    void SetUp() override {
        const KdGePoint3d chain[] = {{0, 0, 0}, {10, 0, 0}, {10, 10, 0}};
        const double offsets[] = {1.0, -1.0};
        buildMline(mline, chain, offsets);
    }
    Values lines(int vertex, int element) const {
        int count = -1;
        EXPECT_EQ(GetNumLine(&mline, &count, vertex, element), 1);
        Values values(static_cast<std::size_t>(count));
        EXPECT_EQ(GetLineArray(&mline, values.data(), count, vertex, element), 1);
        return values;
    }
    void setLines(int vertex, int element, const Values& values) {
        ASSERT_EQ(SetNumLine(&mline, static_cast<int>(values.size()), vertex, element), 1);
        ASSERT_EQ(SetLineArray(&mline, values.data(), vertex, element), 1);
    }
};

TEST_F(MlineAccessors, onlyItsOwnFlagsAreSetAndAChainOfTwoKeepsItsClosedBit) {
    const auto after = [this](int flags) {
        EXPECT_EQ(SetFlag(&mline, flags), 1);
        EXPECT_EQ(GetFlag(&mline, &flags), 1);
        return flags;
    };
    EXPECT_EQ(after(kFlagClosed | kFlagNoStartCaps | 64),
              kFlagHasVertex | kFlagClosed | kFlagNoStartCaps);
    EXPECT_EQ(after(0), kFlagHasVertex);
    EXPECT_EQ(SetNumVertices(&mline, 1), 0);
    EXPECT_EQ(mline.numVertices(), 3);
    EXPECT_EQ(SetNumVertices(&mline, 5), 1);
    EXPECT_EQ(mline.numVertices(), 5);
    EXPECT_EQ(SetNumVertices(&mline, 2), 1);
    EXPECT_EQ(after(kFlagClosed | kFlagNoStartCaps | kFlagNoEndCaps),
              kFlagHasVertex | kFlagNoStartCaps | kFlagNoEndCaps);
    mline.setClosedMline(true);
    EXPECT_EQ(after(0), kFlagHasVertex | kFlagClosed);
}

TEST_F(MlineAccessors, theNumberOfElementsChangesAtEveryVertex) {
    EXPECT_EQ(SetSegmentsSize(&mline, 0), 0);
    EXPECT_EQ(SetSegmentsSize(&mline, 3), 1);
    for (int vertex = 0; vertex < 3; ++vertex) {
        EXPECT_EQ(lines(vertex, 0).size(), 2U) << vertex;
        EXPECT_EQ(lines(vertex, 2).size(), 0U) << vertex;
    }
    EXPECT_EQ(SetSegmentsSize(&mline, 1), 1);
    int count = 0;
    EXPECT_EQ(GetSegmentsSize(&mline, &count), 1);
    EXPECT_EQ(count, 1);
}

TEST_F(MlineAccessors, readsClampTheirIndicesAndWritesRefuseThem) {
    setLines(0, 0, {1, 10});
    setLines(2, 1, {2, 20, 21});
    EXPECT_EQ(lines(-5, -5), (Values{1, 10}));
    EXPECT_EQ(lines(99, 99), (Values{2, 20, 21}));

    const double values[] = {7, 7, 7};
    const int bad[][2] = {{3, 0}, {-1, 0}, {0, 2}, {0, -1}};
    for (const auto& [vertex, element] : bad) {
        EXPECT_EQ(SetNumLine(&mline, 3, vertex, element), 0) << vertex << " " << element;
        EXPECT_EQ(SetLineArray(&mline, values, vertex, element), 0) << vertex << " " << element;
        EXPECT_EQ(SetNumArea(&mline, 3, vertex, element), 0) << vertex << " " << element;
    }
    EXPECT_EQ(lines(0, 0), (Values{1, 10}));
    // An empty list takes no values.
    SetNumLine(&mline, 0, 1, 1);
    EXPECT_EQ(SetLineArray(&mline, values, 1, 1), 0);
    EXPECT_EQ(lines(1, 1), Values{});
    // A target that is too small is left alone.
    double out[] = {9, 9};
    EXPECT_EQ(GetLineArray(&mline, out, 2, 2, 1), 1);
    EXPECT_EQ(out[0], 9.0);
}

TEST_F(MlineAccessors, areasAreKeptApartFromLinesAndTheirReadReturnsRefused) {
    const double areas[] = {4, 5};
    EXPECT_EQ(SetNumArea(&mline, 2, 1, 0), 1);
    EXPECT_EQ(SetAreaArray(&mline, areas, 1, 0), 1);
    int count = 0;
    EXPECT_EQ(GetNumArea(&mline, &count, 1, 0), 1);
    ASSERT_EQ(count, 2);
    double out[2] = {};
    EXPECT_EQ(GetAreaArray(&mline, out, 2, 1, 0), 0);
    EXPECT_EQ(out[0], 4.0);
    EXPECT_EQ(out[1], 5.0);
}

TEST_F(MlineAccessors, positionsAxesAndMitersReplaceWhatIsThere) {
    const double in[3][3][3] = {{{1, 2, 3}, {4, 5, 6}, {7, 8, 9}},
                                {{11, 2, 3}, {4, 5, 6}, {7, 8, 19}},
                                {{21, 2, 3}, {4, 5, 6}, {7, 8, 29}}};
    EXPECT_EQ(SetVertices(&mline, in[0]) + SetAxis(&mline, in[1]) + SetMilters(&mline, in[2]), 3);
    double out[3][3][3] = {};
    EXPECT_EQ(GetVertices(&mline, out[0]) + GetAxis(&mline, out[1]) + GetMilters(&mline, out[2]),
              3);
    EXPECT_TRUE(std::equal(&in[0][0][0], &in[0][0][0] + 27, &out[0][0][0]));
    EXPECT_EQ(mline.numVertices(), 3);
    EXPECT_EQ(lines(2, 1).size(), 2U);
    double normal[3] = {};
    EXPECT_EQ(GetNormal(&mline, normal), 1);
    EXPECT_EQ(normal[2], 1.0);
}

TEST_F(MlineAccessors, refuseANullMultilineAndNullValues) {
    KdDbMline* const none = nullptr;
    int number = 9;
    double values[1][3] = {{9, 9, 9}};
    KdDbMlineStyle* style = nullptr;
    for (const int result :
         {SetFlag(none, 2), GetFlag(none, &number), SetNumVertices(none, 3),
          GetSegmentsSize(none, &number), SetSegmentsSize(none, 2), SetNumLine(none, 1, 0, 0),
          GetNumLine(none, &number, 0, 0), SetLineArray(none, values[0], 0, 0),
          GetLineArray(none, values[0], 3, 0, 0), SetVertices(none, values),
          SetVertices(&mline, nullptr), GetVertices(none, values), GetVertices(&mline, nullptr),
          SetAxis(none, values), SetAxis(&mline, nullptr), GetMlStyle(none, &style),
          GetNormal(none, values[0]), SetNumLine(&mline, -1, 0, 0),
          SetLineArray(&mline, nullptr, 0, 0)}) {
        EXPECT_EQ(result, 0);
    }
    EXPECT_EQ(number, 9);
    EXPECT_EQ(values[0][0], 9.0);
    EXPECT_FALSE(isClosed(none));
}

TEST_F(MlineAccessors, theStyleIsOpenedWhenThereIsOne) {
    KdDbMlineStyle* style = nullptr;
    EXPECT_EQ(GetMlStyle(&mline, &style), 1);
    EXPECT_EQ(style, nullptr) << "no style, and yet done";
    const KdDbDatabase database;
    mline.setStyle(database.cmlstyle());
    EXPECT_EQ(GetMlStyle(&mline, &style), 1);
    ASSERT_NE(style, nullptr);
    style->close();
}

TEST_F(MlineAccessors, wholeListsComeBackAsStored) {
    storeLineList(&mline, 1, 0, {0.5, 0, 3, 5});
    storeAreaList(&mline, 1, 0, {7, 8});
    EXPECT_EQ(lineList(&mline, 1, 0), (Values{0.5, 0, 3, 5}));
    EXPECT_EQ(areaList(&mline, 1, 0), (Values{7, 8}));
    storeLineList(&mline, 1, 0, {});
    EXPECT_EQ(elementOffset(mline, 1, 0), 0.0);
    storeLineList(&mline, 3, 0, {1});
    storeLineList(nullptr, 0, 0, {1});
    EXPECT_EQ(lines(2, 0), (Values{1, 0}));
    EXPECT_TRUE(lineList(nullptr, 0, 0).empty());
}

} // namespace
