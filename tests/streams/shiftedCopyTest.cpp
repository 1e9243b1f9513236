#include "shiftedCopy.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace {

TEST(ShiftedCopyTest, EveryLengthAndShiftGivesTheSameAsBitByBit) {
    std::mt19937 random(1);
    for (std::size_t count = 0; count < 70; ++count) {
        std::vector<unsigned char> source(count + 1);
        for (unsigned char& byte : source) {
            byte = static_cast<unsigned char>(random());
        }
        for (unsigned shift = 1; shift < 8; ++shift) {
            std::vector<unsigned char> expected(count, 0);
            for (std::size_t bit = 0; bit < count * 8; ++bit) {
                const std::size_t from = bit + shift;
                const unsigned value = source[from / 8] >> (7 - from % 8) & 1U;
                expected[bit / 8] =
                    static_cast<unsigned char>(expected[bit / 8] | value << (7 - bit % 8));
            }
            std::vector<unsigned char> target(count + 1, 0xEE);
            orvex::copyShiftedLeft(target.data(), source.data(), count, shift);
            EXPECT_EQ(target[count], 0xEE);
            target.resize(count);
            EXPECT_EQ(target, expected) << count << ' ' << shift;

            std::vector<unsigned char> same = source;
            orvex::copyShiftedLeft(same.data(), same.data(), count, shift);
            EXPECT_EQ(same[count], source[count]);
            same.resize(count);
            EXPECT_EQ(same, expected) << count << ' ' << shift;
        }
    }
}

} // namespace
