#include "DrawnPlaces.h"
#include "RandomMline.h"
#include "auditMline.h"
#include "geometry.h"
#include "reverse.h"
#include "stretch.h"

#include <gmock/gmock.h>

namespace {

using namespace orvex;
using namespace orvex::testing;

bool isBefore(const KdGePoint3d& a, const KdGePoint3d& b) {
    return a.x != b.x ? a.x < b.x : a.y != b.y ? a.y < b.y : a.z < b.z;
}

TEST(Reverse, looksTheSameAndLeadsBack) {
    forRandomMlines(
        31,
        [&](RandomMline& /*random*/, const MlineContent& mline, const StyleLayout& style) {
            const auto turned = reversed(mline);
            ASSERT_TRUE(turned);
            ASSERT_THAT(auditMline(*turned, &style), ::testing::IsEmpty());
            ASSERT_EQ(turned->vertices[1].position,
                      mline.vertices[mline.vertices.size() - (mline.closed ? 1 : 2)].position);
            auto was = drawnPlaces(mline);
            auto is = drawnPlaces(*turned);
            std::sort(was.begin(), was.end(), isBefore);
            std::sort(is.begin(), is.end(), isBefore);
            ASSERT_LT(farthest(was, is), 1e-9);
            ASSERT_LT(farthest(drawnPlaces(*reversed(*turned)), drawnPlaces(mline)), 1e-9);
        },
        true);
}

// Gaps go with segments of which both vertices go; along all others they stay where they are.
TEST(Stretch, keepsOffsetsAndTakesOnlyGapsOfWholeSegmentsAlong) {
    forRandomMlines(
        32, [&](RandomMline& random, const MlineContent& mline, const StyleLayout& style) {
            const unsigned from = random.upTo(static_cast<unsigned>(mline.vertices.size()) - 1);
            const auto goes = [&](unsigned v) { return v >= from; };
            const auto isChosen = [&](const KdGePoint3d& point) {
                for (unsigned v = 0; v < mline.vertices.size(); ++v) {
                    if (mline.vertices[v].position == point) {
                        return goes(v);
                    }
                }
                return false;
            };
            const KdGeVector3d shift = random.inPlaneOf(mline, 8);
            const auto result = stretched(mline, style, isChosen, shift);
            ASSERT_TRUE(result);
            ASSERT_THAT(auditMline(*result, &style), ::testing::IsEmpty());
            const MlineChain was(mline);
            const MlineChain is(*result);
            for (unsigned s = 0; s < was.segmentCount(); ++s) {
                const bool first = goes(s);
                const bool second = goes(was.next(s));
                for (unsigned e = 0; e < was.elementCount(); ++e) {
                    const auto before = was.line(s, e);
                    const auto after = is.line(s, e);
                    ASSERT_EQ(before.size(), after.size());
                    const KdGeVector3d moved = first && second ? shift : KdGeVector3d();
                    const MlineTrack track = is.track(s, e);
                    for (std::size_t g = 2; g < before.size(); ++g) {
                        const KdGeVector3d off =
                            track.at(after[g]) - (was.track(s, e).at(before[g]) + moved);
                        ASSERT_NEAR(dot(off, track.direction), 0.0, 1e-9) << "segment " << s;
                    }
                }
            }
        });
}

} // namespace
