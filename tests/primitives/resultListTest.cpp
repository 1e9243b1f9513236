#include "resultList.h"

#include <gtest/gtest.h>

namespace {

TEST(ResultList, GivesTheFirstEntryOfAType) {
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

TEST(ResultList, EndsOnAListTiedIntoARing) {
    resbuf ring[3] = {{nullptr, kResultShort, {}}, {nullptr, kResultShort, {}}, {}};
    ring[0].rbnext = &ring[1];
    ring[1].rbnext = &ring[2];
    resbuf* found = nullptr;
    for (resbuf& back : ring) {
        ring[2].rbnext = &back;
        EXPECT_EQ(gx_Associate(ring, kResultText, &found), -1);
    }
    ring[2].restype = kResultText;
    EXPECT_EQ(gx_Associate(ring, kResultText, &found), 0);
    EXPECT_EQ(found, &ring[2]);
}

} // namespace
