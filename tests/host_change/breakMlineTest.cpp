#include "breakMline.h"

#include "DrawnPlaces.h"
#include "RandomMline.h"
#include "auditMline.h"
#include "reverse.h"

#include <gmock/gmock.h>

namespace {

using namespace orvex;
using namespace orvex::testing;

// Of all elements together, at scale 1 of the tracks.
double drawnLength(const MlineContent& mline) {
    const MlineChain chain(mline);
    double drawn = 0.0;
    for (unsigned s = 0; s < chain.segmentCount(); ++s) {
        for (unsigned e = 0; e < chain.elementCount(); ++e) {
            const MlineTrack track = chain.track(s, e);
            forEachStretch(chain.line(s, e), track.length, [&](const MlineStretch& stretch) {
                drawn += stretch.end - stretch.begin;
            });
        }
    }
    return drawn;
}

KdGePoint3d placeOn(const MlineContent& mline, unsigned segment, double distance) {
    const ChainVertex& vertex = mline.vertices[segment];
    return vertex.position + vertex.axis * distance;
}

// In one point nothing is lost, and an open one becomes itself again, but for the new vertex.
TEST(BreakMline, losesNothingInOnePointAndConnectsAgain) {
    forRandomMlines(51,
                    [&](RandomMline& random, const MlineContent& mline, const StyleLayout& style) {
                        const unsigned segment = random.upTo(MlineChain(mline).segmentCount() - 1);
                        const bool isVertex = random.upTo(2) == 0 && (mline.closed || segment > 0);
                        const KdGePoint3d place =
                            placeOn(mline, segment, isVertex ? 0.0 : random.between(35.0, 45.0));
                        const auto parts = broken(mline, place, std::nullopt);
                        ASSERT_TRUE(parts);
                        ASSERT_EQ(parts->size(), mline.closed ? 1U : 2U);
                        double drawn = 0.0;
                        for (const MlineContent& part : *parts) {
                            ASSERT_THAT(auditMline(part, &style), ::testing::IsEmpty());
                            drawn += drawnLength(part);
                        }
                        // At a bend the square ends are shorter at one side and longer at the
                        // other.
                        if (!isVertex) {
                            ASSERT_NEAR(drawn, drawnLength(mline), 1e-8);
                        } else if (mline.closed) {
                            ASSERT_EQ(parts->front().vertices.size(), mline.vertices.size() + 1);
                        }
                        if (mline.closed) {
                            return;
                        }
                        const auto one = connected(parts->back(), parts->front());
                        ASSERT_TRUE(one);
                        ASSERT_THAT(auditMline(*one, &style), ::testing::IsEmpty());
                        ASSERT_EQ(one->vertices.size(), mline.vertices.size() + (isVertex ? 0 : 1));
                        ASSERT_EQ(one->vertices.back(), mline.vertices.back());
                        ASSERT_NEAR(drawnLength(*one), drawnLength(mline), 1e-8);
                        const auto turned = connected(parts->front(), *reversed(parts->back()));
                        ASSERT_TRUE(turned);
                        ASSERT_NEAR(drawnLength(*turned), drawnLength(mline), 1e-8);
                    });
}

// What is left is as long as the chain without what was taken out, with ends at its places.
TEST(BreakMline, takesOutWhatLiesBetweenTwoPoints) {
    forRandomMlines(
        52, [&](RandomMline& random, const MlineContent& mline, const StyleLayout& style) {
            const unsigned segments = MlineChain(mline).segmentCount();
            const KdGePoint3d a = placeOn(mline, random.upTo(segments - 1), random.between(31, 35));
            const KdGePoint3d b = placeOn(mline, random.upTo(segments - 1), random.between(36, 45));
            const auto parts = broken(mline, a, b);
            ASSERT_TRUE(parts);
            std::vector<KdGePoint3d> ends;
            for (const MlineContent& part : *parts) {
                ASSERT_THAT(auditMline(part, &style), ::testing::IsEmpty());
                ends.push_back(part.vertices.front().position);
                ends.push_back(part.vertices.back().position);
            }
            for (const KdGePoint3d& place : {a, b}) {
                ASSERT_TRUE(std::any_of(ends.begin(), ends.end(), [&](const KdGePoint3d& end) {
                    return (end - place).length() < 1e-9;
                }));
            }
            if (mline.closed) {
                ASSERT_LT((ends[0] - b).length(), 1e-9);
            } else {
                ASSERT_EQ(ends.front(), mline.vertices.front().position);
                ASSERT_EQ(ends.back(), mline.vertices.back().position);
            }
        });
}

} // namespace
