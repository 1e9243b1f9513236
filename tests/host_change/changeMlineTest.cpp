#include "changeMline.h"

#include "DrawnPlaces.h"
#include "RandomMline.h"
#include "auditMline.h"
#include "geometry.h"
#include "straightMline.h"

#include <gmock/gmock.h>

#include <cmath>

namespace {

using namespace orvex;
using namespace orvex::testing;

// The distances of gaps' ends along their segments, from where the chain's vertex lies.
std::vector<double> gapEnds(const MlineContent& mline, unsigned segments) {
    const MlineChain chain(mline);
    std::vector<double> ends;
    for (unsigned s = 0; s < segments; ++s) {
        for (unsigned e = 0; e < chain.elementCount(); ++e) {
            const MlineTrack track = chain.track(s, e);
            const auto list = chain.line(s, e);
            for (std::size_t i = 2; i < list.size(); ++i) {
                const KdGeVector3d way = track.at(list[i]) - chain.vertex(s).position;
                ends.push_back(dot(way, chain.vertex(s).axis));
            }
        }
    }
    return ends;
}

TEST(ChangeMline, laysRightAndLeavesGapsWhereTheyLie) {
    forRandomMlines(
        41, [&](RandomMline& random, const MlineContent& mline, const StyleLayout& style) {
            MlineChange change;
            change.justification = static_cast<int>(random.upTo(2));
            if (random.upTo(1) == 0) {
                change.scale = random.between(0.5, 3.0);
            }
            if (random.upTo(1) == 0) {
                change.closed = mline.closed ? random.upTo(1) == 0 : false;
            }
            StyleLayout other = random.style();
            if (other.offsets.size() == style.offsets.size()) {
                change.style = MlineChange::Style{KdDbObjectId(), other};
            } else {
                other = style;
            }
            const auto result = changed(mline, &style, change);
            ASSERT_TRUE(result);
            ASSERT_THAT(auditMline(result->mline, &other), ::testing::IsEmpty());
            if (!result->mline.closed) { // the ends are cut as the style wants it
                const ChainVertex& start = result->mline.vertices.front();
                const ChainVertex& end = result->mline.vertices.back();
                ASSERT_NEAR(dot(start.miter, start.axis), std::cos(other.startAngle), 1e-9);
                ASSERT_NEAR(dot(end.miter, end.axis), std::cos(other.endAngle), 1e-9);
            }
            const unsigned segments = MlineChain(result->mline).segmentCount();
            const auto was = gapEnds(mline, segments);
            const auto is = gapEnds(result->mline, segments);
            ASSERT_EQ(was.size(), is.size());
            for (std::size_t g = 0; g < was.size(); ++g) {
                ASSERT_NEAR(was[g], is[g], 1e-9);
            }
        });
}

TEST(ChangeMline, keepsTheLinesUnderAnotherJustification) {
    unsigned kept = 0;
    forRandomMlines(
        42, [&](RandomMline& /*random*/, const MlineContent& mline, const StyleLayout& style) {
            MlineChange change;
            change.justification = (mline.justification + 1) % 3;
            change.keepsLines = true;
            const auto result = changed(mline, &style, change);
            if (!result) {
                return;
            }
            ++kept;
            ASSERT_THAT(auditMline(result->mline, &style), ::testing::IsEmpty());
            ASSERT_LT(farthest(drawnPlaces(mline), drawnPlaces(result->mline)), 1e-9);
        });
    EXPECT_GT(kept, 1800U);
}

// Along x from 0 to 100, elements at 5 and -5 with these breaks.
MlineContent wall(std::vector<double> upper, std::vector<double> lower) {
    upper.insert(upper.begin(), 5.0);
    lower.insert(lower.begin(), -5.0);
    return straightMline({}, 100, {upper, lower});
}

// 10 to 20 is a gap of both, 40 to 50 of the upper one, 70 to the end of the lower one.
TEST(ChangeMline, givesGapsToTheElementsOfAnotherStyle) {
    const MlineContent mline = wall({0, 10, 20, 40, 50}, {0, 10, 20, 70});
    StyleLayout pair;
    pair.offsets = {5.0, -5.0};
    StyleLayout more;
    more.offsets = {8.0, 4.0, -6.0};
    MlineChange change;
    change.style = MlineChange::Style{KdDbObjectId(), more};
    const auto result = changed(mline, &pair, change);
    ASSERT_TRUE(result);
    EXPECT_TRUE(result->hasMovedGaps);
    EXPECT_THAT(auditMline(result->mline, &more), ::testing::IsEmpty());
    const auto line = [&](unsigned element) {
        const auto list = result->mline.lists.line(0, element);
        return std::vector<double>(list.begin(), list.end());
    };
    EXPECT_THAT(line(0), ::testing::ElementsAre(8, 0, 10, 20));
    EXPECT_THAT(line(1), ::testing::ElementsAre(4, 0, 10, 20, 40, 50));
    EXPECT_THAT(line(2), ::testing::ElementsAre(-6, 0, 10, 20, 70));
}

TEST(ChangeMline, refusesWhatCantBe) {
    const MlineContent mline = wall({0}, {0});
    StyleLayout pair;
    pair.offsets = {5.0, -5.0};
    const auto isRefused = [&](auto&& fill, const MlineContent& of) {
        MlineChange change;
        fill(change);
        return !changed(of, &pair, change);
    };
    EXPECT_TRUE(isRefused([](MlineChange& change) { change.scale = 0.0; }, mline));
    EXPECT_TRUE(isRefused([](MlineChange& change) { change.scale = std::nan(""); }, mline));
    EXPECT_TRUE(isRefused([](MlineChange& change) { change.closed = true; }, mline));
    EXPECT_TRUE(isRefused([](MlineChange& change) { change.scale = 2.0; }, wall({0, 9, 5}, {0})));
    EXPECT_TRUE(isRefused(
        [](MlineChange& change) {
            change.style = MlineChange::Style{KdDbObjectId(), {std::vector<double>(17, 1.0)}};
        },
        mline));
    MlineChange justified;
    justified.justification = 0;
    EXPECT_FALSE(changed(mline, nullptr, justified));
    MlineChange capless;
    capless.caps = MlineChange::Caps{false, true};
    const auto result = changed(mline, nullptr, capless);
    EXPECT_TRUE(result && result->mline.startCapsSuppressed && !result->mline.endCapsSuppressed);
}

} // namespace
