#include "reverse.h"

#include "breakLists.h"
#include "hostText.h"
#include "impossible.h"

#include <algorithm>

namespace orvex {

namespace {

// -0.0 would not be the same bytes after the way back.
double negated(double value) {
    return 0.0 - value;
}

KdGeVector3d negated(const KdGeVector3d& v) {
    return {negated(v.x), negated(v.y), negated(v.z)};
}

// The distances of a list, measured from the other end of the track.
std::vector<double> mirrored(std::span<const double> list, double length) {
    std::vector<MlineStretch> stretches;
    forEachStretch(list, length,
                   [&](const MlineStretch& stretch) { stretches.push_back(stretch); });
    // A list that reaches the end by a distance goes on doing so.
    const bool spellsEnd =
        !stretches.empty() && !stretches.back().toTrackEnd && stretches.back().end == length;
    std::reverse(stretches.begin(), stretches.end());
    std::vector<double> result;
    for (const MlineStretch& stretch : stretches) {
        result.push_back(stretch.toTrackEnd ? 0.0 : length - stretch.end);
        const bool isLast = &stretch == &stretches.back();
        if (!isLast || stretch.begin != 0.0 || spellsEnd) {
            // What would begin beyond the end is empty, and stays it.
            result.push_back(stretch.toTrackEnd ? std::max(0.0, length - stretch.begin)
                                                : length - stretch.begin);
        }
    }
    return result;
}

VoVector<double> joined(std::span<const double> positionOf, std::span<const double> distances) {
    std::vector<double> list;
    if (!positionOf.empty()) {
        list.push_back(negated(positionOf.front()));
        list.insert(list.end(), distances.begin(), distances.end());
    }
    return toParameters(list);
}

std::vector<double> tailOf(std::span<const double> list) {
    return {list.begin() + (list.empty() ? 0 : 1), list.end()};
}

class Reverser {
public:
    explicit Reverser(const MlineContent& mline) : m_mline(mline), m_chain(mline) {}

    [[nodiscard]] MlineContent run() const {
        MlineContent result = m_mline;
        result.scale = negated(m_mline.scale);
        result.startCapsSuppressed = m_mline.endCapsSuppressed;
        result.endCapsSuppressed = m_mline.startCapsSuppressed;
        const unsigned count = m_chain.vertexCount();
        for (unsigned v = 0; v < count; ++v) {
            const ChainVertex& old = m_chain.vertex(oldVertex(v));
            result.vertices[v] = {old.position, negated(m_chain.vertex(oldSegment(v)).axis),
                                  negated(old.miter)};
        }
        for (unsigned v = 0; v < count; ++v) {
            result.lists.setNested(v, record(v));
        }
        return result;
    }

private:
    [[nodiscard]] unsigned oldVertex(unsigned v) const {
        const unsigned count = m_chain.vertexCount();
        return m_chain.isClosed() ? (count - v) % count : count - 1 - v;
    }
    // What leaves a vertex now arrived there before; at the last of an open chain it is as at the
    // one before it.
    [[nodiscard]] unsigned oldSegment(unsigned v) const {
        const unsigned count = m_chain.vertexCount();
        if (m_chain.isClosed()) {
            return count - 1 - v;
        }
        return v + 1 < count ? count - 2 - v : 0;
    }
    [[nodiscard]] VoVector<KdMLSegment> record(unsigned v) const {
        const bool isOpenEnd = !m_chain.isClosed() && v + 1 == m_chain.vertexCount();
        const unsigned segment = isOpenEnd ? v : oldSegment(v); // the last list stays the last
        const unsigned from = oldVertex(v);
        VoVector<KdMLSegment> record = m_mline.lists.nested(from);
        for (unsigned e = 0; e < record.size(); ++e) {
            const auto line = m_chain.line(segment, e);
            const auto area = m_chain.area(segment, e);
            KdMLSegment& element = record[static_cast<int>(e)];
            element.m_lineParams =
                joined(m_chain.line(from, e),
                       isOpenEnd ? tailOf(line) : mirrored(line, m_chain.track(segment, e).length));
            element.m_areaParams = joined(
                m_chain.area(from, e),
                isOpenEnd ? tailOf(area) : mirrored(area, m_chain.areaTrack(segment, e).length));
        }
        return record;
    }

    const MlineContent& m_mline;
    MlineChain m_chain;
};

} // namespace

Result<MlineContent> reversed(const MlineContent& mline) {
    if (mline.vertices.size() < 2) {
        return impossible(hostText("it has fewer than two vertices"));
    }
    if (const auto contradiction = gapContradiction(mline)) {
        return *contradiction;
    }
    return Reverser(mline).run();
}

} // namespace orvex
