#pragma once

#include "MlineContent.h"

#include <span>
#include <vector>

namespace orvex {

// The line of one element over one segment. Distances along it count from its start.
struct MlineTrack {
    KdGePoint3d start;
    KdGePoint3d end;
    KdGeVector3d direction; // unit
    double length = 0.0;

    [[nodiscard]] KdGePoint3d at(double distance) const { return start + direction * distance; }
};

// A drawn part of a track, from where it begins to where it ends.
struct MlineStretch {
    double begin = 0.0;
    double end = 0.0;
    bool toTrackEnd = false; // a last stretch that no value ends
};

// By how much a distance may miss an end of a track and still be meant to reach it, drawing units.
double reachTolerance(double trackLength);

// Reads the chain of a multiline. Lists that are missing read as empty, so nothing has to be
// asked for twice.
class MlineChain {
public:
    explicit MlineChain(const MlineContent& mline) : m_mline(mline) {}

    [[nodiscard]] unsigned vertexCount() const {
        return static_cast<unsigned>(m_mline.vertices.size());
    }
    [[nodiscard]] unsigned elementCount() const { return m_mline.elementCount(); }
    // The last vertex of an open chain begins no segment.
    [[nodiscard]] unsigned segmentCount() const;
    [[nodiscard]] bool isClosed() const { return m_mline.closed && vertexCount() > 1; }
    [[nodiscard]] const ChainVertex& vertex(unsigned index) const {
        return m_mline.vertices[index];
    }
    [[nodiscard]] unsigned next(unsigned vertex) const { return (vertex + 1) % vertexCount(); }

    [[nodiscard]] std::span<const double> line(unsigned vertex, unsigned element) const;
    [[nodiscard]] std::span<const double> area(unsigned vertex, unsigned element) const;

    // Where an element crosses the miter of a vertex; on the chain when it has no list there.
    [[nodiscard]] KdGePoint3d position(unsigned vertex, unsigned element) const;
    [[nodiscard]] MlineTrack track(unsigned segment, unsigned element) const;
    // The same for an edge of the fill, whose positions are in the area lists.
    [[nodiscard]] MlineTrack areaTrack(unsigned segment, unsigned element) const;

    // Whether an element is drawn up to the start, or the end, of a segment.
    [[nodiscard]] bool reachesStart(unsigned segment, unsigned element) const;
    [[nodiscard]] bool reachesEnd(unsigned segment, unsigned element) const;

    // Elements by position, the greatest offset first; of equal ones the earlier first.
    [[nodiscard]] std::vector<unsigned> elementsAcross() const;

private:
    [[nodiscard]] MlineTrack trackBetween(unsigned segment, const KdGePoint3d& start,
                                          const KdGePoint3d& end) const;

    const MlineContent& m_mline; // has to outlive the chain
};

// Calls `visit` with each stretch of a list, in its order: a value at an odd place begins one, the
// next one ends it.
template <class Visitor>
void forEachStretch(std::span<const double> list, double length, Visitor&& visit) {
    for (std::size_t i = 1; i < list.size(); i += 2) {
        const bool open = i + 1 == list.size();
        visit(MlineStretch{list[i], open ? length : list[i + 1], open});
    }
}

// The end of a stretch; an open one ends exactly where the next segment starts.
inline KdGePoint3d stretchEnd(const MlineTrack& track, const MlineStretch& stretch) {
    return stretch.toTrackEnd ? track.end : track.at(stretch.end);
}

} // namespace orvex
