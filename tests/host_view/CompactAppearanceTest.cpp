#include "CompactAppearance.h"

#include <gtest/gtest.h>

#include <cmath>

namespace orvex {
namespace {

TEST(CompactAppearance, hasTheLinesOfTheAppearance) {
    Appearance appearance;
    std::vector<PlanPoint> chain;
    chain.reserve(600);
    for (int i = 0; i < 600; ++i) {
        chain.push_back({1000.0 + i, 50.0 + std::sin(i * 0.1)});
    }
    appearance.strokes.push_back({.points = chain, .rgb = 0x123456, .dashes = 1});
    appearance.strokes.push_back({.points = {{1000, 60}}, .rgb = 0xFFFFFF}); // a dot
    appearance.fills.push_back({.outline = {{1000, 50}, {1100, 50}, {1000, 51}}, .rgb = 0x00FF00});
    appearance.dashPatterns = {{3.0, -1.5}};
    appearance.labels.push_back({.anchor = {1001, 52}, .height = 2.5, .text = L"A"});
    const PlanBox box = appearance.box();
    CompactAppearances compactAppearances;
    CompactAppearance compactAppearance(compactAppearances.keep(7, appearance, box));
    EXPECT_EQ(compactAppearance.rgb(), 0x123456U);
    EXPECT_TRUE(compactAppearance.hasFills());
    EXPECT_EQ(compactAppearance.labelHeight(), 2.5F);
    CompactAppearance::Line line;
    ASSERT_TRUE(compactAppearance.next(line));
    EXPECT_TRUE(line.isFill);
    EXPECT_EQ(line.rgb, 0x00FF00U);
    EXPECT_EQ(line.points.size(), 3U);
    ASSERT_TRUE(compactAppearance.next(line));
    EXPECT_EQ(line.rgb, 0x123456U);
    EXPECT_EQ(line.period, 4.5F);
    ASSERT_EQ(line.points.size(), chain.size());
    for (std::size_t i = 0; i < chain.size(); ++i) {
        const PlanPoint drawn = CompactAppearance::decoded(line.points[i], box);
        EXPECT_NEAR(drawn.x, chain[i].x, 600 / 65535.0);
        EXPECT_NEAR(drawn.y, chain[i].y, 12 / 65535.0);
    }
    ASSERT_TRUE(compactAppearance.next(line));
    EXPECT_FALSE(line.isFill);
    EXPECT_EQ(line.points.size(), 1U);
    EXPECT_FALSE(compactAppearance.next(line));
    EXPECT_FALSE(compactAppearances.find(7).empty());
    compactAppearances.drop(7);
    EXPECT_TRUE(compactAppearances.find(7).empty());
    EXPECT_TRUE(compactAppearances.find(8).empty());
}

} // namespace
} // namespace orvex
