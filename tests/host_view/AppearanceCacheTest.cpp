#include "AppearanceCache.h"
#include "KdDbStub.h"

#include <gtest/gtest.h>

namespace orvex {
namespace {

TEST(AppearanceCache, staysWithinItsMemoryAndKeepsWhatIsUsed) {
    constexpr std::size_t kBytes = 64 << 10;
    AppearanceCache cache(kBytes);
    std::vector<KdDbStub> stubs(1000);
    const auto appearance = [](double x) {
        Appearance made;
        made.strokes.push_back({.points = std::vector<PlanPoint>(10, {x, 0})});
        return made;
    };
    for (std::size_t i = 0; i < stubs.size(); ++i) {
        const Appearance& kept = cache.keep(stubs[i], appearance(static_cast<double>(i)));
        const Appearance* first = cache.find(stubs.front()); // used all the time
        ASSERT_NE(first, nullptr) << i;
        EXPECT_EQ(first->strokes[0].points[0].x, 0.0);
        EXPECT_EQ(kept.strokes[0].points[0].x, static_cast<double>(i));
    }
    EXPECT_LT(cache.size(), kBytes / sizeof(Appearance));
    EXPECT_GT(cache.size(), 20U);
    cache.drop(stubs.front());
    EXPECT_EQ(cache.find(stubs.front()), nullptr);
}

} // namespace
} // namespace orvex
