// What all of it gives for random points, many of them equal, in line, upright or apart by about a
// tolerance: settled.

#include "Chance.h"
#include "Digest.h"
#include "comparisons.h"
#include "lineMath.h"
#include "vectorMath.h"

#include <gtest/gtest.h>

#include <array>
#include <map>

namespace {

using orvex::testing::Chance;
using orvex::testing::Digest;
using Point = std::array<double, 3>;

class RandomPoints : public Chance {
public:
    RandomPoints() : Chance(4) {}

    // A small whole number, sometimes far out or off by about a tolerance.
    double number() {
        static constexpr double kFar[] = {0.0, 0.0, 0.0, 1e5, -3e8};
        static constexpr double kOff[] = {1e-6, 1e-7, 1e-8, 1e-10, 1e-11, 1e-12};
        const double whole = below(5) - 1.0 + m_far;
        m_far = below(40) == 0 ? of(kFar) : m_far;
        const double part = below(41) / 10.0 - 2.0;
        return below(4) == 0 ? whole + part * of(kOff) : whole;
    }
    Point point() { return {number(), number(), number()}; }
    // On the line through two points, or nearly.
    Point onLine(const Point& a, const Point& b) {
        const double t = below(9) / 4.0 - 0.5;
        Point on{};
        for (std::size_t i = 0; i < on.size(); ++i) {
            on[i] = a[i] + (b[i] - a[i]) * t + (below(8) == 0 ? number() * 1e-7 : 0.0);
        }
        return on;
    }

private:
    double m_far = 0.0;
};

constexpr int kRounds = 200000;

TEST(Settled, isWhatLinesGive) {
    RandomPoints random;
    std::array<Digest, 3> digests;
    std::map<int, int> results;
    for (int round = 0; round < kRounds; ++round) {
        const Point a = random.point();
        const Point b = random.below(4) == 0 ? Point{a[0], a[1], random.number()} : random.point();
        const Point c = random.below(2) == 0 ? random.onLine(a, b) : random.point();
        const Point d = random.below(3) == 0 ? random.onLine(a, b) : random.point();
        double distance = 0.0;
        Point foot{};
        digests[0].add(gx_ptlndist(c.data(), a.data(), b.data(), &distance, foot.data()), distance,
                       foot);
        Point out{7.0, 8.0, random.below(2) * c[2]};
        digests[1].add(gx_linexline(a.data(), b.data(), c.data(), d.data(), out.data()), out);
        out = {7.0, 8.0, 9.0};
        const int result = linexline3d(a.data(), b.data(), c.data(), d.data(), out.data());
        digests[2].add(result, out);
        ++results[result];
    }
    EXPECT_EQ(results.size(), 8U); // from -4 to 3
    for (const auto& [result, count] : results) {
        EXPECT_GT(count, kRounds / 2000) << result;
    }
    EXPECT_EQ(digests[0].text(), "8D42401210B103D6");
    EXPECT_EQ(digests[1].text(), "63A9DF181E290028");
    EXPECT_EQ(digests[2].text(), "79366D6761FB3219");
}

TEST(Settled, isWhatComparisonsAndProductsGive) {
    RandomPoints random;
    std::array<Digest, 2> digests;
    for (int round = 0; round < kRounds; ++round) {
        static constexpr double kTolerances[] = {1e-6, 1e-7, 1e-10, 1e-11};
        const double tolerance = random.of(kTolerances);
        const Point a = random.point();
        const Point b = random.below(2) == 0 ? random.onLine(a, a) : random.point();
        digests[0].add(
            mlineRealEqual(a[0], b[0], tolerance), mlineRealBetween(a[0], b[0], b[1], tolerance),
            mlineAngleEqual(a[0], b[0], tolerance), mlineAngleEqual(-a[1], b[1] * 7.0, tolerance),
            IMvelaIsZero(a[0], tolerance), IMvelaRealEqual(a[0], b[0], tolerance),
            IMvelaPointEqual(a.data(), b.data(), tolerance), gx_pt_equal(a.data(), b.data()));
        Point product{};
        gx_crossproduct(a.data(), b.data(), product.data());
        C3Point normal(b[1], a[2], a[0]);
        digests[1].add(product, tklengine_distance(a.data(), b.data()),
                       tklengine_angle(a.data(), b.data()),
                       Determinant(C3Point(a[0], a[1], a[2]), C3Point(b[0], b[1], b[2]), nullptr),
                       Determinant(C3Point(a[0], a[1], a[2]), C3Point(b[2], b[1], b[0]), &normal));
    }
    EXPECT_EQ(digests[0].text(), "21F8BE393F7B048B");
    EXPECT_EQ(digests[1].text(), "480B80062094FBE3");
}

} // namespace
