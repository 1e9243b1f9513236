// The lists of mlineRecord.h: line and area parameters of an element at a vertex.

#include "mlineRecord.h"

#include "boundedCopy.h"
#include "vertexParameters.h"

#include <algorithm>
#include <cstddef>

namespace {

using List = VoVector<double> KdMLSegment::*;

constexpr List kLine = &KdMLSegment::m_lineParams;
constexpr List kArea = &KdMLSegment::m_areaParams;

int setCount(KdDbMline* mline, int count, int vertex, int element, List list) {
    if (count < 0) {
        return 0;
    }
    return changeRecord(mline, vertex, element, [count, list](KdMLSegment& record) {
        record.*list = VoVector<double>(static_cast<unsigned>(count));
        return true;
    });
}

int setValues(KdDbMline* mline, const double* values, int vertex, int element, List list) {
    if (values == nullptr) {
        return 0;
    }
    return changeRecord(mline, vertex, element, [values, list](KdMLSegment& record) {
        VoVector<double>& present = record.*list;
        if (present.isEmpty()) {
            return false;
        }
        std::copy(values, values + present.size(), present.data());
        return true;
    });
}

int getCount(const KdDbMline* mline, int* count, int vertex, int element, List list) {
    if (mline == nullptr) {
        return 0;
    }
    *count = static_cast<int>((clampedRecord(*mline, vertex, element).*list).size());
    return 1;
}

int getValues(const KdDbMline* mline, double* out, int size, int vertex, int element, List list) {
    if (mline == nullptr) {
        return 0;
    }
    const VoVector<double> values = clampedRecord(*mline, vertex, element).*list;
    const std::size_t room = sizeof(double) * static_cast<std::size_t>(std::max(size, 0));
    memcpy_s(out, room, values.data(), sizeof(double) * values.size());
    return 1;
}

} // namespace

int SetNumLine(KdDbMline* mline, int count, int vertex, int element) {
    return setCount(mline, count, vertex, element, kLine);
}

int GetNumLine(const KdDbMline* mline, int* count, int vertex, int element) {
    return getCount(mline, count, vertex, element, kLine);
}

int SetLineArray(KdDbMline* mline, const double* values, int vertex, int element) {
    return setValues(mline, values, vertex, element, kLine);
}

int GetLineArray(const KdDbMline* mline, double* out, int size, int vertex, int element) {
    return getValues(mline, out, size, vertex, element, kLine);
}

int SetNumArea(KdDbMline* mline, int count, int vertex, int element) {
    return setCount(mline, count, vertex, element, kArea);
}

int GetNumArea(const KdDbMline* mline, int* count, int vertex, int element) {
    return getCount(mline, count, vertex, element, kArea);
}

int SetAreaArray(KdDbMline* mline, const double* values, int vertex, int element) {
    return setValues(mline, values, vertex, element, kArea);
}

int GetAreaArray(const KdDbMline* mline, double* out, int size, int vertex, int element) {
    getValues(mline, out, size, vertex, element, kArea);
    return 0;
}
