#include "readableColor.h"

#include <gtest/gtest.h>

#include <random>

namespace orvex::testing {
namespace {

// What can be read stays; on the dark ground blue, dark red and black become lighter by just as
// much white in linear light as a contrast of 3 takes.
TEST(ReadableColor, knownColors) {
    struct Case {
        std::uint32_t rgb;
        std::uint32_t ground;
        std::uint32_t shown;
    };
    for (const Case& each :
         {Case{0xFFFFFF, kDarkGround, 0xFFFFFF}, Case{0xFF0000, kDarkGround, 0xFF0000},
          Case{0x0000FF, kDarkGround, 0x5050FF}, Case{0xFFFFFF, kLightGround, 0},
          Case{0x0000FF, kLightGround, 0x0000FF}}) {
        EXPECT_EQ(readableRgb(each.rgb, each.ground), each.shown) << std::hex << each.rgb;
    }
    EXPECT_NEAR(contrastOf(0x0000FF, kDarkGround), 1.88, 0.01);
    EXPECT_NEAR(contrastOf(0x000000, 0xFFFFFF), 21.0, 1e-9);
}

TEST(ReadableColor, everyColorIsReadableOnEitherGround) {
    std::mt19937 random(3);
    for (int i = 0; i < 20'000; ++i) {
        const std::uint32_t rgb = random() & 0xFFFFFFU;
        for (const std::uint32_t ground : {kDarkGround, kLightGround}) {
            EXPECT_GE(contrastOf(readableRgb(rgb, ground), ground), 3.0) << std::hex << rgb;
        }
    }
}

} // namespace
} // namespace orvex::testing
