#pragma once

#include "VoVector.h"

// How one element of a multiline runs over the segment that starts at one vertex.
struct KdMLSegment {
    VoVector<double> m_areaParams; // group 42: where the fill runs
    VoVector<double> m_lineParams; // group 41: offset along the miter, then break distances

    friend bool operator==(const KdMLSegment&, const KdMLSegment&) = default;
};
