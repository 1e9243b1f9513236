#include "vertexEdits.h"
#include "DrawnPlaces.h"
#include "RandomMline.h"
#include "auditMline.h"
#include "geometry.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

namespace {

using namespace orvex;
using namespace orvex::testing;

// Elements keep their offsets, and gaps of segments that don't turn stay to the last digit; those
// of segments that do lie on the line square to the middle of both directions.
TEST(VertexMoved, keepsOffsetsAndGapsAndLeadsBack) {
    forRandomMlines(41, [&](RandomMline& random, const MlineContent& mline,
                            const StyleLayout& style) {
        const unsigned vertex = random.upTo(static_cast<unsigned>(mline.vertices.size()) - 1);
        const KdGePoint3d from = mline.vertices[vertex].position;
        const KdGePoint3d inPlane = from + random.inPlaneOf(mline, 8.0);
        KdGePoint3d to = inPlane;
        to.z +=
            random.between(-5.0, 5.0); // it stays in its plane, in the place that the plan shows
        const auto result = withVertexMoved(mline, style, vertex, to);
        ASSERT_TRUE(result);
        ASSERT_EQ(result->lostGaps, 0U);
        ASSERT_LT((result->mline.vertices[vertex].position - inPlane).length(), 1e-9);
        ASSERT_THAT(auditMline(result->mline, &style), ::testing::IsEmpty());
        const MlineChain was(mline);
        const MlineChain is(result->mline);
        for (unsigned s = 0; s < was.segmentCount(); ++s) {
            const bool turns = s == vertex || was.next(s) == vertex;
            ASSERT_TRUE(s == vertex || is.vertex(s).position == was.vertex(s).position);
            for (unsigned e = 0; e < was.elementCount(); ++e) {
                const auto before = was.line(s, e);
                const auto after = is.line(s, e);
                ASSERT_EQ(before.size(), after.size());
                const MlineTrack old = was.track(s, e);
                const MlineTrack track = is.track(s, e);
                for (std::size_t g = 2; g < before.size(); ++g) {
                    const KdGeVector3d off = track.at(after[g]) - old.at(before[g]);
                    ASSERT_NEAR(dot(off, track.direction + old.direction), 0.0, 1e-9);
                    ASSERT_TRUE(turns || off.length() < 1e-9);
                }
            }
        }
        const auto back = withVertexMoved(result->mline, style, vertex, from);
        ASSERT_TRUE(back);
        ASSERT_LT(farthest(drawnPlaces(back->mline), drawnPlaces(mline)), 1e-9);
    });
}

// Whether an end of a gap may lie in the wedge that a new corner takes from the elements inside.
bool gapEndsNear(const MlineChain& chain, unsigned segment, const KdGePoint3d& corner) {
    constexpr double kWedge =
        4.0; // of lines up to 6 from the chain that turn by less than 70 degrees
    for (unsigned e = 0; e < chain.elementCount(); ++e) {
        const MlineTrack track = chain.track(segment, e);
        const auto list = chain.line(segment, e);
        for (std::size_t g = 2; g < list.size(); ++g) {
            if (std::abs(dot(track.at(list[g]) - corner, track.direction)) < kWedge) {
                return true;
            }
        }
    }
    return false;
}

// A vertex added and removed leads back, but for what its corner takes.
TEST(VertexAdded, andRemovedLeadsBack) {
    unsigned compared = 0;
    forRandomMlines(
        42, [&](RandomMline& random, const MlineContent& mline, const StyleLayout& style) {
            const MlineChain chain(mline);
            const unsigned segment = random.upTo(chain.segmentCount() - 1);
            const KdGePoint3d start = chain.vertex(segment).position;
            const KdGeVector3d way = chain.vertex(chain.next(segment)).position - start;
            const KdGePoint3d middle = start + way * random.between(0.1, 0.9);
            const KdGePoint3d corner = middle + random.inPlaneOf(mline, 5.0);
            const auto added = withVertexAdded(mline, style, segment, corner);
            ASSERT_TRUE(added);
            ASSERT_EQ(added->mline.vertices.size(), mline.vertices.size() + 1);
            ASSERT_EQ(added->mline.closed, mline.closed);
            ASSERT_THAT(auditMline(added->mline, &style), ::testing::IsEmpty());
            const auto removed = withVertexRemoved(added->mline, style, segment + 1);
            ASSERT_TRUE(removed);
            ASSERT_THAT(auditMline(removed->mline, &style), ::testing::IsEmpty());
            compared += gapEndsNear(chain, segment, corner) ? 0 : 1;
            ASSERT_TRUE(gapEndsNear(chain, segment, corner) ||
                        farthest(drawnPlaces(removed->mline), drawnPlaces(mline)) < 1e-9);
        });
    EXPECT_GT(compared, 1500U);
}

TEST(VertexRemoved, laysRightWhatIsLeft) {
    unsigned refused = 0;
    forRandomMlines(43,
                    [&](RandomMline& random, const MlineContent& mline, const StyleLayout& style) {
                        const auto count = static_cast<unsigned>(mline.vertices.size());
                        const unsigned vertex = random.upTo(count - 1);
                        const auto result = withVertexRemoved(mline, style, vertex);
                        refused += result ? 0 : 1;
                        ASSERT_EQ(bool(result), !mline.closed || count > 3);
                        if (result) {
                            ASSERT_EQ(result->mline.vertices.size(), count - 1);
                            ASSERT_THAT(auditMline(result->mline, &style), ::testing::IsEmpty());
                            ASSERT_LE(heldGaps(result->mline) + result->lostGaps, heldGaps(mline));
                        }
                    });
    EXPECT_GT(refused, 0U);
}

TEST(VertexEdits, refuseWhatHasNoShape) {
    RandomMline random(44);
    StyleLayout style = random.style();
    MlineContent mline = random.mline(style);
    while (mline.closed) {
        mline = random.mline(style);
    }
    const KdGePoint3d next = mline.vertices[1].position;
    EXPECT_FALSE(withVertexMoved(mline, style, 0, next));
    EXPECT_FALSE(withVertexMoved(mline, style, 2, next));
    EXPECT_FALSE(withVertexMoved(mline, style, 99, {}));
    EXPECT_FALSE(withVertexMoved(mline, style, 0, {std::nan(""), 0, 0}));
    EXPECT_FALSE(withVertexAdded(mline, style, 0, next));
    EXPECT_FALSE(withVertexAdded(mline, style, 0, mline.vertices[0].position));
    MlineContent contradictory = mline;
    VoVector<KdMLSegment> record = mline.lists.nested(0);
    VoVector<double>& list = record[0].m_lineParams;
    for (const double value : {40.0, 30.0, 20.0}) {
        list.append(value);
    }
    contradictory.lists.setNested(0, record);
    EXPECT_FALSE(withVertexMoved(contradictory, style, 0, {1, 1, 5}));

    // A gap that a shorter segment doesn't hold any more is told: [15, 20] to [22, 30] are they.
    unsigned lost = 0;
    for (unsigned i = 0; i < 100; ++i) {
        style = random.style();
        mline = random.mline(style);
        const KdGePoint3d start = mline.vertices[0].position;
        const KdGeVector3d way = mline.vertices[1].position - start;
        const KdGePoint3d near = start + way * (21.0 / way.length());
        const auto shorter = withVertexMoved(mline, style, 1, near);
        ASSERT_TRUE(shorter);
        lost += static_cast<unsigned>(shorter->lostGaps);
        const auto held = static_cast<unsigned>(heldGaps(mline));
        ASSERT_EQ(shorter->lostGaps, held - heldGaps(shorter->mline));
    }
    EXPECT_GT(lost, 50U);
}

} // namespace
