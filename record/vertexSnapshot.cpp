#include "vertexSnapshot.h"

#include "mlineAccessors.h"
#include "vertexParameters.h"

#include <algorithm>
#include <memory>

using namespace mledit;

namespace {

// A plain array of the values and their number; null for none.
double* plainCopy(const VoVector<double>& values, int& count) {
    count = static_cast<int>(values.size());
    if (count == 0) {
        return nullptr;
    }
    auto* const copy = new double[values.size()];
    std::copy(values.begin(), values.end(), copy);
    return copy;
}

void copyElements(const KdDbMline& mline, int vertex, int elements, db_mlvertlink& record) {
    const VertexParameters parameters = vertexParameters(mline, vertex);
    const int last = static_cast<int>(parameters.size()) - 1;
    record.elem = new db_mlelemlink[static_cast<std::size_t>(elements)];
    for (int e = 0; e < elements && last >= 0; ++e) {
        // A vertex with fewer elements than vertex 0 repeats its last one, as clamped reads do.
        const KdMLSegment& source = parameters.at(std::min(e, last));
        db_mlelemlink& target = record.elem[e];
        target.lineParams = plainCopy(source.m_lineParams, target.numLine);
        target.areaParams = plainCopy(source.m_areaParams, target.numArea);
    }
}

template <class Value>
void copyValue(const Value& from, double* to) {
    to[0] = from.x;
    to[1] = from.y;
    to[2] = from.z;
}

} // namespace

db_mlelemlink::~db_mlelemlink() {
    delete[] lineParams;
    delete[] areaParams;
}

db_mlvertlink::~db_mlvertlink() {
    delete[] elem;
}

db_mlvertlink* ret_vert(const KdDbMline* mline) {
    int elements = 0;
    GetSegmentsSize(mline, &elements);
    const int count = mline != nullptr ? mline->numVertices() : 0;
    if (count < 1) {
        return nullptr;
    }
    auto records = std::make_unique<db_mlvertlink[]>(static_cast<std::size_t>(count));
    for (int v = 0; v < count; ++v) {
        db_mlvertlink& record = records[static_cast<std::size_t>(v)];
        copyValue(mline->vertexAt(v), record.pt);
        copyValue(mline->axisAt(v), record.axis);
        copyValue(mline->miterAt(v), record.miter);
        if (elements > 0) {
            copyElements(*mline, v, elements, record);
        }
    }
    return records.release();
}
