#include "MlineContent.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

using orvex::ParameterLists;

template <class List>
std::vector<double> values(const List& list) {
    return {list.begin(), list.end()};
}

TEST(ParameterLists, countsBeyondTheValuesAreCutAndWhatIsOutsideIsEmpty) {
    ParameterLists lists;
    lists.assignFlat(1, {2, 0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF}, {1.0, 2.0, 3.0});
    EXPECT_EQ(values(lists.line(0, 0)), (std::vector{1.0, 2.0}));
    EXPECT_EQ(values(lists.area(0, 0)), (std::vector{3.0}));
    EXPECT_TRUE(lists.line(1, 0).empty());
    EXPECT_TRUE(lists.line(0, 1).empty());
    EXPECT_TRUE(lists.line(2, 0).empty());
    EXPECT_EQ(lists.nested(2).size(), 0U);
    lists.setNested(2, VoVector<KdMLSegment>(3));
    EXPECT_EQ(lists.vertexCount(), 2U);
}

TEST(ParameterLists, equalityGoesByBits) {
    const auto with = [](double value, bool nested) {
        ParameterLists lists;
        lists.assignFlat(1, {1, 0}, {value});
        if (nested) {
            const VoVector<KdMLSegment> record = lists.nested(0);
            lists.setNested(0, record);
        }
        return lists;
    };
    const double nan = std::nan("");
    const ParameterLists lists = with(1.0, false);
    const ParameterLists copy = lists; // NOLINT(performance-unnecessary-copy-initialization)
    EXPECT_TRUE(lists == copy);
    EXPECT_TRUE(lists == with(1.0, true));
    EXPECT_TRUE(with(nan, false) == with(nan, true));
    EXPECT_FALSE(with(0.0, false) == with(-0.0, false));
    EXPECT_FALSE(with(0.0, true) == with(-0.0, true));
}

} // namespace
