#pragma once

#include "KdDbMline.h"
#include "KdDbMlineImp.h"
#include "KdDbSystemInternals.h"
#include "KdMLSegment.h"

#include <cmath>
#include <span>
#include <vector>

// Multilines for tests: elements as parallels of a chain in plan, whole from end to end.
namespace orvex::testing {

inline KdMLSegment segmentRecord(const std::vector<double>& line,
                                 const std::vector<double>& area = {}) {
    KdMLSegment record;
    for (const double value : line) {
        record.m_lineParams.append(value);
    }
    for (const double value : area) {
        record.m_areaParams.append(value);
    }
    return record;
}

// Unit vector from a to b in plan.
inline KdGeVector3d direction(const KdGePoint3d& a, const KdGePoint3d& b) {
    KdGeVector3d d{b.x - a.x, b.y - a.y, 0.0};
    return d.normalize();
}

// Gives an empty multiline its chain. Offsets are to the left of the chain's direction; at a free
// end the miter is square, inside it halves the angle.
inline void buildMline(KdDbMline& mline, std::span<const KdGePoint3d> chain,
                       std::span<const double> offsets, bool closed = false) {
    const auto left = [](const KdGeVector3d& d) { return KdGeVector3d{-d.y, d.x, 0.0}; };
    const std::size_t count = chain.size();
    KdArray<KdGeVector3d> axes;
    KdArray<KdGeVector3d> miters;
    std::vector<VoVector<KdMLSegment>> records;
    for (std::size_t i = 0; i < count; ++i) {
        mline.appendSeg(chain[i]);
        const bool first = i == 0 && !closed;
        const bool last = i + 1 == count && !closed;
        const KdGePoint3d& before = chain[(i + count - 1) % count];
        const KdGePoint3d& after = chain[(i + 1) % count];
        const KdGeVector3d out = direction(last ? before : chain[i], last ? chain[i] : after);
        const KdGeVector3d in = first || last ? out : direction(before, chain[i]);
        KdGeVector3d miter = left(in) + left(out);
        miter.normalize();
        axes.append(out);
        miters.append(miter);
        // The miter is longer than the offset by 1 / cos of half the turn.
        const KdGeVector3d across = left(out);
        const double cosine = miter.x * across.x + miter.y * across.y;
        VoVector<KdMLSegment> record;
        for (const double offset : offsets) {
            record.append(segmentRecord({offset / cosine, 0.0}));
        }
        records.push_back(record);
    }
    KdDbMlineImp* const imp = KdDbSystemInternals::getImpObject(&mline);
    imp->appendSeg(axes, true);
    imp->appendSeg(miters, false);
    for (std::size_t i = 0; i < count; ++i) {
        KdArray<void*> entry;
        entry.append(&records[i]);
        mline.setParametersAt(static_cast<int>(i), entry);
    }
    mline.setClosedMline(closed);
}

} // namespace orvex::testing
