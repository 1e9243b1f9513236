#pragma once

#include "KdArray.h"
#include "KdDbMline.h"
#include "KdMLSegment.h"
#include "VoVector.h"

#include <algorithm>

namespace mledit {

// The host keeps the parameters of a vertex in one record for all its elements, and each access
// moves the whole of it. So everything here is one fetch, or one fetch and one store.

using VertexParameters = VoVector<KdMLSegment>;

// The records of a vertex, one per element, sharing memory with the host's; empty for a vertex
// that doesn't exist.
inline VertexParameters vertexParameters(const KdDbMline& mline, int vertex) {
    KdArray<void*> entries;
    mline.getParametersAt(vertex, entries);
    if (entries.length() != 1) {
        return {};
    }
    return VertexParameters(static_cast<const VertexParameters*>(entries[0]));
}

inline void storeVertexParameters(KdDbMline& mline, int vertex, VertexParameters& parameters) {
    KdArray<void*> entries;
    entries.append(&parameters);
    mline.setParametersAt(vertex, entries);
}

// The record that a clamped read means; empty when the multiline has no vertices or elements.
inline KdMLSegment clampedRecord(const KdDbMline& mline, int vertex, int element) {
    const int lastVertex = mline.numVertices() - 1;
    const VertexParameters records =
        vertexParameters(mline, std::max(0, std::min(vertex, lastVertex)));
    if (records.isEmpty()) {
        return {};
    }
    return records.at(std::clamp(element, 0, static_cast<int>(records.size()) - 1));
}

// Changes one record through `change`, which returns false to store nothing. 0 when there is no
// such record or nothing was stored, else 1.
template <class Change>
int changeRecord(KdDbMline* mline, int vertex, int element, Change change) {
    if (mline == nullptr || vertex < 0 || vertex >= mline->numVertices()) {
        return 0;
    }
    VertexParameters records = vertexParameters(*mline, vertex);
    if (element < 0 || element >= static_cast<int>(records.size()) ||
        !change(records.at(element))) {
        return 0;
    }
    storeVertexParameters(*mline, vertex, records);
    return 1;
}

// The records of `count` elements at a vertex as clamped reads see them.
inline VertexParameters elementLists(const KdDbMline& mline, int vertex, int count) {
    const VertexParameters records = vertexParameters(mline, vertex);
    if (static_cast<int>(records.size()) == count || records.isEmpty()) {
        VertexParameters same = records;
        same.resize(static_cast<unsigned>(std::max(count, 0)));
        return same;
    }
    VertexParameters lists(static_cast<unsigned>(std::max(count, 0)));
    for (int k = 0; k < count; ++k) {
        lists.at(k) = records.at(std::min(k, static_cast<int>(records.size()) - 1));
    }
    return lists;
}

// Those that a vertex has no element for are dropped, and elements without one keep theirs.
inline void storeElementLists(KdDbMline& mline, int vertex, const VertexParameters& lists) {
    VertexParameters records = vertexParameters(mline, vertex);
    for (int k = 0; k < static_cast<int>(std::min(records.size(), lists.size())); ++k) {
        records.at(k) = lists.at(k);
    }
    storeVertexParameters(mline, vertex, records);
}

} // namespace mledit
