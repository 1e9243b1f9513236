#include "resultList.h"

#include <gtest/gtest.h>

namespace {

TEST(ResultList, givesTheFirstEntryOfAType) {
    resbuf third{nullptr, kResultReal, {}};
    resbuf second{&third, kResultReal, {}};
    resbuf first{&second, kResultShort, {}};
    resbuf* found = nullptr;
    EXPECT_EQ(gx_Associate(&first, kResultReal, &found), 0);
    EXPECT_EQ(found, &second);
    EXPECT_EQ(gx_Associate(&first, kResultText, &found), -1);
    EXPECT_EQ(found, &second) << "a miss writes nothing";
    EXPECT_EQ(gx_Associate(nullptr, kResultReal, &found), -1);
}

TEST(ResultList, endsOnAListTiedIntoARing) {
    resbuf second{nullptr, kResultShort, {}};
    resbuf first{&second, kResultShort, {}};
    second.rbnext = &first;
    resbuf* found = nullptr;
    EXPECT_EQ(gx_Associate(&first, kResultText, &found), -1);
    resbuf before{&first, kResultShort, {}}; // leads into the ring and is no part of it
    EXPECT_EQ(gx_Associate(&before, kResultText, &found), -1);
    second.restype = kResultText;
    EXPECT_EQ(gx_Associate(&first, kResultText, &found), 0);
}

} // namespace
