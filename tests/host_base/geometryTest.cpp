#include "geometry.h"

#include "blanks.h"
#include "handleText.h"

#include <limits>

#include <gtest/gtest.h>

namespace orvex {
namespace {

TEST(Geometry, axesOfAPlaneFollowTheArbitraryAxisRule) {
    const KdGeVector3d x{1.0, 0.0, 0.0};
    const KdGeVector3d y{0.0, 1.0, 0.0};
    const KdGeVector3d z{0.0, 0.0, 1.0};
    EXPECT_EQ(cross(x, y), z);
    EXPECT_EQ(dot({1.0, 2.0, 3.0}, {4.0, -5.0, 6.0}), 12.0);
    const struct {
        KdGeVector3d normal;
        KdGeVector3d xAxis;
        KdGeVector3d yAxis;
    } cases[] = {
        {z, x, y},
        {-z, -x, y},
        {x, y, z}, // far from the pole: Z x normal
        {y, -x, z},
        // 1/64 to the side and the pole isn't near any more
        {{1.0 / 64.0, 0.0, std::sqrt(1.0 - 1.0 / 4096.0)}, y, {-1.0, 0.0, 1.0 / 64.0}},
    };
    for (const auto& each : cases) {
        const PlaneAxes axes = arbitraryAxes(each.normal);
        EXPECT_TRUE(axes.x.isEqualTo(each.xAxis)) << each.normal.x << ' ' << each.normal.z;
        EXPECT_TRUE(axes.y.isEqualTo(each.yAxis, {1e-3, 1e-3})) << each.normal.x;
    }
}

TEST(HandleText, isHexadecimalBothWays) {
    EXPECT_EQ(handleText(0xABC12), "ABC12");
    EXPECT_EQ(handleText(0), "0");
    EXPECT_EQ(parseHandle(" \tfFfFfFfFfFfFfFfF "), std::numeric_limits<std::uint64_t>::max());
    for (const char* const text : {"", "G", "1G", "-1", "10000000000000000", "0x1", "1 2"}) {
        EXPECT_FALSE(parseHandle(text)) << text;
    }
    EXPECT_EQ(trimBlanks(std::wstring_view(L"\t a b \t")), L"a b");
}

} // namespace
} // namespace orvex
