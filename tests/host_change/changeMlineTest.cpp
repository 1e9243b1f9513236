#include "changeMline.h"

#include "DrawnPlaces.h"
#include "RandomMline.h"
#include "auditMline.h"
#include "geometry.h"

#include <gmock/gmock.h>

#include <cmath>

namespace {

using namespace orvex;
using orvex::testing::drawnPlaces;
using orvex::testing::farthest;
using orvex::testing::RandomMline;

constexpr unsigned kMlines = 2000;

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
    RandomMline random(41);
    for (unsigned i = 0; i < kMlines; ++i) {
        const StyleLayout style = random.style();
        const MlineContent mline = random.mline(style);
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
        ASSERT_TRUE(result) << i;
        ASSERT_THAT(auditMline(result->mline, &other), ::testing::IsEmpty()) << i;
        if (!result->mline.closed) { // the ends are cut as the style wants it
            const ChainVertex& start = result->mline.vertices.front();
            const ChainVertex& end = result->mline.vertices.back();
            ASSERT_NEAR(dot(start.miter, start.axis), std::cos(other.startAngle), 1e-9) << i;
            ASSERT_NEAR(dot(end.miter, end.axis), std::cos(other.endAngle), 1e-9) << i;
        }
        const unsigned segments = MlineChain(result->mline).segmentCount();
        const auto was = gapEnds(mline, segments);
        const auto is = gapEnds(result->mline, segments);
        ASSERT_EQ(was.size(), is.size()) << i;
        for (std::size_t g = 0; g < was.size(); ++g) {
            ASSERT_NEAR(was[g], is[g], 1e-9) << i;
        }
    }
}

TEST(ChangeMline, keepsTheLinesUnderAnotherJustification) {
    RandomMline random(42);
    unsigned kept = 0;
    for (unsigned i = 0; i < kMlines; ++i) {
        const StyleLayout style = random.style();
        const MlineContent mline = random.mline(style);
        MlineChange change;
        change.justification = (mline.justification + 1) % 3;
        change.keepsLines = true;
        const auto result = changed(mline, &style, change);
        if (!result) {
            continue;
        }
        ++kept;
        ASSERT_THAT(auditMline(result->mline, &style), ::testing::IsEmpty()) << i;
        ASSERT_LT(farthest(drawnPlaces(mline), drawnPlaces(result->mline)), 1e-9) << i;
    }
    EXPECT_GT(kept, kMlines * 9 / 10);
}

// Along x from 0 to 100, elements at 5 and -5 with these breaks.
MlineContent wall(const std::vector<double>& upper, const std::vector<double>& lower) {
    MlineContent mline;
    mline.justification = 1;
    mline.vertices = {{{0, 0, 0}, {1, 0, 0}, {0, 1, 0}}, {{100, 0, 0}, {1, 0, 0}, {0, 1, 0}}};
    for (unsigned v = 0; v < 2; ++v) {
        VoVector<KdMLSegment> record;
        for (const bool isUpper : {true, false}) {
            KdMLSegment element;
            element.m_lineParams.append(isUpper ? 5.0 : -5.0);
            for (const double value :
                 v == 1 ? std::vector<double>{0.0} : (isUpper ? upper : lower)) {
                element.m_lineParams.append(value);
            }
            record.append(element);
        }
        mline.lists.appendVertex();
        mline.lists.setNested(v, record);
    }
    return mline;
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
