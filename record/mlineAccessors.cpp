#include "mlineAccessors.h"

#include "KdDbMlineImp.h"
#include "KdDbMlineStyle.h"
#include "KdDbSystemInternals.h"
#include "boundedCopy.h"
#include "kddbObjects.h"
#include "vertexParameters.h"

#include <algorithm>
#include <cstddef>

using namespace mledit;

namespace {

// Line and area parameters of an element at a vertex.
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
    const std::size_t capacity = sizeof(double) * static_cast<std::size_t>(std::max(size, 0));
    memcpy_s(out, capacity, values.data(), sizeof(double) * values.size());
    return 1;
}

// One value of each vertex, by a member of the multiline, into plain points.
template <class Value>
int readAll(const KdDbMline* mline, double (*out)[3], Value (KdDbMline::*at)(int) const) {
    if (mline == nullptr || out == nullptr) {
        return 0;
    }
    const int count = mline->numVertices();
    for (int i = 0; i < count; ++i) {
        const Value value = (mline->*at)(i);
        out[i][0] = value.x;
        out[i][1] = value.y;
        out[i][2] = value.z;
    }
    return 1;
}

template <class Value>
KdArray<Value> valuesFrom(const KdDbMline& mline, const double (*points)[3]) {
    const int count = mline.numVertices();
    KdArray<Value> values;
    values.reserve(count);
    for (int i = 0; i < count; ++i) {
        values.append({points[i][0], points[i][1], points[i][2]});
    }
    return values;
}

int writeVectors(KdDbMline* mline, const double (*vectors)[3], bool axes) {
    if (mline == nullptr || vectors == nullptr) {
        return 0;
    }
    KdDbSystemInternals::getImpObject(mline)->appendSeg(valuesFrom<KdGeVector3d>(*mline, vectors),
                                                        axes);
    return 1;
}

} // namespace

int SetFlag(KdDbMline* mline, int flags) {
    if (mline == nullptr) {
        return 0;
    }
    const bool closed = (flags & kFlagClosed) != 0;
    if (mline->numVertices() > 2 && closed != mline->closedMline()) {
        mline->setClosedMline(closed);
    }
    const bool noStartCaps = (flags & kFlagNoStartCaps) != 0;
    if (noStartCaps != mline->supressStartCaps()) {
        mline->setSupressStartCaps(noStartCaps);
    }
    const bool noEndCaps = (flags & kFlagNoEndCaps) != 0;
    if (noEndCaps != mline->supressEndCaps()) {
        mline->setSupressEndCaps(noEndCaps);
    }
    return 1;
}

int GetFlag(const KdDbMline* mline, int* flags) {
    if (mline == nullptr) {
        return 0;
    }
    *flags = (mline->numVertices() > 0 ? kFlagHasVertex : 0) |
             (mline->closedMline() ? kFlagClosed : 0) |
             (mline->supressStartCaps() ? kFlagNoStartCaps : 0) |
             (mline->supressEndCaps() ? kFlagNoEndCaps : 0);
    return 1;
}

int SetNumVertices(KdDbMline* mline, int count) {
    if (mline == nullptr || count < 2) {
        return 0;
    }
    for (int i = mline->numVertices(); i > count; --i) {
        KdGePoint3d removed;
        mline->removeLastSeg(removed);
    }
    for (int i = mline->numVertices(); i < count; ++i) {
        mline->appendSeg(KdGePoint3d());
    }
    return 1;
}

int GetSegmentsSize(const KdDbMline* mline, int* count) {
    if (mline == nullptr) {
        return 0;
    }
    *count = static_cast<int>(vertexParameters(*mline, 0).size());
    return 1;
}

int SetSegmentsSize(KdDbMline* mline, int count) {
    if (mline == nullptr || count < 1) {
        return 0;
    }
    const int vertices = mline->numVertices();
    for (int i = 0; i < vertices; ++i) {
        VertexParameters records = vertexParameters(*mline, i);
        records.resize(static_cast<unsigned>(count));
        storeVertexParameters(*mline, i, records);
    }
    return 1;
}

int SetVertices(KdDbMline* mline, const double (*points)[3]) {
    if (mline == nullptr || points == nullptr) {
        return 0;
    }
    KdDbSystemInternals::getImpObject(mline)->appendSegments(
        valuesFrom<KdGePoint3d>(*mline, points));
    return 1;
}

int GetVertices(const KdDbMline* mline, double (*out)[3]) {
    return readAll(mline, out, &KdDbMline::vertexAt);
}

int SetAxis(KdDbMline* mline, const double (*vectors)[3]) {
    return writeVectors(mline, vectors, true);
}

int GetAxis(const KdDbMline* mline, double (*out)[3]) {
    return readAll(mline, out, &KdDbMline::axisAt);
}

int SetMilters(KdDbMline* mline, const double (*vectors)[3]) {
    return writeVectors(mline, vectors, false);
}

int GetMilters(const KdDbMline* mline, double (*out)[3]) {
    return readAll(mline, out, &KdDbMline::miterAt);
}

int GetMlStyle(const KdDbMline* mline, KdDbMlineStyle** out) {
    if (mline == nullptr) {
        return 0;
    }
    const KdDbObjectId style = mline->style();
    if (style.isValid()) {
        kddbOpenObject(*out, style, kForRead);
    }
    return 1;
}

int GetNormal(const KdDbMline* mline, double* out) {
    if (mline == nullptr) {
        return 0;
    }
    const KdGeVector3d normal = mline->normal();
    out[0] = normal.x;
    out[1] = normal.y;
    out[2] = normal.z;
    return 1;
}

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

bool mledit::isClosed(const KdDbMline* mline) {
    int flags = 0;
    GetFlag(mline, &flags);
    return (flags & kFlagClosed) != 0;
}
