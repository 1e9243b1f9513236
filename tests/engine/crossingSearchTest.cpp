// What the search finds is what solving every pair in order finds: the same pairs, in the same
// order, with the same points to the last bit. Whatever is passed over can't be seen from outside.

#include "crossingSearch.h"

#include "CMlineEdit.h"
#include "lineMath.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <random>

using namespace mledit;

namespace {

struct Found {
    int first;
    int second;
    std::array<double, 3> point;
    bool onBoth;

    friend bool operator==(const Found&, const Found&) = default;
};

std::vector<Found> search(const ChainPair& chains, CrossRule rule) {
    std::vector<Found> all;
    CrossingSearch walk(chains, rule);
    SegmentPair pair{};
    bool onBoth = false;
    while (walk.next(pair, onBoth)) {
        all.push_back(
            {pair.first, pair.second, {pair.point[0], pair.point[1], pair.point[2]}, onBoth});
    }
    return all;
}

// One buffer takes every crossing; parallel lines leave in it what the pair before wrote.
std::vector<Found> solveAll(const ChainPair& chains, CrossRule rule) {
    std::vector<Found> all;
    double x[3] = {0.0, 0.0, 0.0};
    const std::size_t wrapped = chains.second.size() - (chains.secondClosed ? 0 : 1);
    for (std::size_t i = 0; i + 1 < chains.first.size(); ++i) {
        for (std::size_t j = 0; j < wrapped; ++j) {
            if (chains.sameEntity && i == j) {
                continue;
            }
            const double* const p = chains.first[i].xyz;
            const double* const pNext = chains.first[i + 1].xyz;
            const double* const q = chains.second[j].xyz;
            const double* const qNext = chains.second[(j + 1) % chains.second.size()].xyz;
            const int r = gx_linexline(p, pNext, q, qNext, x);
            const int a = CMlineEdit::PositionConnection(p, x);
            const int b = CMlineEdit::PositionConnection(x, pNext);
            const int c = CMlineEdit::PositionConnection(q, x);
            const int d = CMlineEdit::PositionConnection(x, qNext);
            const bool ruled =
                rule == CrossRule::cross ? r > 0 : r == 2 || (r == 3 && (a == 0 || b == 0));
            if ((a == b && c == d) || ruled) {
                all.push_back(
                    {static_cast<int>(i), static_cast<int>(j), {x[0], x[1], x[2]}, r == 3});
            }
        }
    }
    return all;
}

// Chains of the kinds that make the search's shortcuts doubtful.
class RandomChains {
public:
    explicit RandomChains(unsigned seed) : m_random(seed) {}

    int upTo(int greatest) { return std::uniform_int_distribution<int>(0, greatest)(m_random); }
    double between(double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(m_random);
    }

    enum Kind { rectilinear, slanting, nearParallel, tiny, steep, mixed, kinds };

    // Near the origin or up to 1e7 away from it; heights 0, all alike or mixed.
    void choosePlace() {
        static constexpr double kPlaces[] = {0.0, 0.0, 1e5, 1e7};
        m_place = kPlaces[upTo(3)];
        m_height = upTo(2) == 0 ? between(-50.0, 50.0) : 0.0;
        m_mixedHeights = upTo(4) == 0;
    }

    std::vector<ChainPoint> chain(int kind) {
        std::vector<ChainPoint> points;
        double at[2] = {m_place + upTo(10), m_place / 3.0 + upTo(10)};
        const double heading = between(0.0, 6.3);
        const int count = 2 + upTo(9);
        while (static_cast<int>(points.size()) < count) {
            const double z = m_mixedHeights ? upTo(3) : 0.0;
            points.push_back({{at[0], at[1], m_height + z}});
            step(kind == mixed ? upTo(mixed - 1) : kind, heading, at);
        }
        return points;
    }

private:
    void step(int kind, double heading, double (&at)[2]) {
        const double small = std::pow(10.0, between(-13.0, -2.0));
        const auto move = [&](double x, double y) { at[0] += x, at[1] += y; };
        if (kind == rectilinear) {
            at[upTo(1)] += upTo(12) - 6;
        } else if (kind == slanting) {
            move(between(-8.0, 8.0), between(-8.0, 8.0));
        } else if (kind == nearParallel) {
            const double length = between(-9.0, 9.0);
            const double turned = heading + small * between(-1.0, 1.0);
            move(length * std::cos(turned), length * std::sin(turned));
        } else if (kind == tiny) {
            move(small * between(-1.0, 1.0), small * between(-1.0, 1.0));
        } else { // long ones that lean a little next to short ones that lean as far
            move(small, upTo(1) == 0 ? between(-4000.0, 4000.0) : between(-0.01, 0.01));
        }
    }

    std::mt19937 m_random;
    double m_place = 0.0;
    double m_height = 0.0;
    bool m_mixedHeights = false;
};

TEST(CrossingSearch, findsWhatSolvingEveryPairInOrderFinds) {
    RandomChains random(4711);
    std::size_t found = 0;
    std::size_t stale = 0;
    for (int round = 0; round < 30000; ++round) {
        random.choosePlace();
        const int kind = random.upTo(RandomChains::kinds - 1);
        const bool alike = random.upTo(2) != 0;
        const std::vector<ChainPoint> first = random.chain(kind);
        const bool same = random.upTo(4) == 0;
        const std::vector<ChainPoint> second =
            same ? first : random.chain(alike ? kind : random.upTo(RandomChains::kinds - 1));
        const ChainPair chains{first, second, random.upTo(2) == 0, same};
        for (const CrossRule rule : {CrossRule::cross, CrossRule::tee}) {
            const std::vector<Found> expected = solveAll(chains, rule);
            ASSERT_EQ(search(chains, rule), expected) << "round " << round << ", kind " << kind;
            found += expected.size();
            for (std::size_t k = 1; k < expected.size(); ++k) {
                stale += expected[k].point == expected[k - 1].point ? 1 : 0;
            }
        }
    }
    // The rounds did reach what they are for.
    EXPECT_GT(found, 30000U);
    EXPECT_GT(stale, 100U);
}

} // namespace
