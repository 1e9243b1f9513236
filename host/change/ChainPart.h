#pragma once

#include "MlineContent.h"
#include "mlineTrack.h"

namespace orvex {

// Puts multilines together from segments of others. Vertices come in order; the lists of a segment
// are measured anew, so that what it draws stays where it is.
class ChainPart {
public:
    // Takes everything but the chain.
    explicit ChainPart(MlineContent pattern);

    // A vertex of another chain; `segment` is what leaves it there.
    void addVertex(const MlineContent& from, unsigned vertex, unsigned segment);
    // A place inside of a segment, square to it.
    void addPlace(const MlineContent& from, unsigned segment, const KdGePoint3d& place);
    // A vertex of both: the last segment of one chain leads to it, the first of another leaves it.
    // What a joint made them draw beyond it is cut off.
    void addJoint(const MlineContent& incoming, const MlineContent& outgoing);

    // Open, with what the segments draw; what lies beyond new ends is cut off.
    [[nodiscard]] MlineContent finished() const;

private:
    struct Origin {
        const MlineContent* mline = nullptr;
        unsigned segment = 0; // that leaves the vertex
        bool isNew = false;   // a place or a joint: nothing is drawn beyond it
    };
    void add(const ChainVertex& vertex, const MlineContent& from, unsigned listsOf, double factor,
             const Origin& origin);
    void relist(MlineContent& result, unsigned segment) const;

    MlineContent m_result;
    std::vector<Origin> m_origins;
};

} // namespace orvex
