#include "parameterLists.h"

#include "vertexParameters.h"

#include <algorithm>

namespace mledit {

namespace {

using List = VoVector<double> KdMLSegment::*;

void read(const KdDbMline* mline, int vertex, int element, List list, std::vector<double>& out) {
    out.clear();
    if (mline != nullptr) {
        const VoVector<double> values = clampedRecord(*mline, vertex, element).*list;
        out.assign(values.begin(), values.end());
    }
}

void store(KdDbMline* mline, int vertex, int element, const std::vector<double>& values,
           List list) {
    changeRecord(mline, vertex, element, [&values, list](KdMLSegment& record) {
        VoVector<double> fresh(static_cast<unsigned>(values.size()));
        std::copy(values.begin(), values.end(), fresh.data());
        record.*list = fresh;
        return true;
    });
}

} // namespace

std::vector<double> lineList(const KdDbMline* mline, int vertex, int element) {
    std::vector<double> list;
    readLineList(mline, vertex, element, list);
    return list;
}

void readLineList(const KdDbMline* mline, int vertex, int element, std::vector<double>& list) {
    read(mline, vertex, element, &KdMLSegment::m_lineParams, list);
}

void storeLineList(KdDbMline* mline, int vertex, int element, const std::vector<double>& list) {
    store(mline, vertex, element, list, &KdMLSegment::m_lineParams);
}

std::vector<double> areaList(const KdDbMline* mline, int vertex, int element) {
    std::vector<double> list;
    read(mline, vertex, element, &KdMLSegment::m_areaParams, list);
    return list;
}

void storeAreaList(KdDbMline* mline, int vertex, int element, const std::vector<double>& list) {
    store(mline, vertex, element, list, &KdMLSegment::m_areaParams);
}

double elementOffset(const KdDbMline& mline, int vertex, int element) {
    const KdMLSegment record = clampedRecord(mline, vertex, element);
    const VoVector<double>& values = record.m_lineParams;
    return values.isEmpty() ? 0.0 : values.at(0);
}

} // namespace mledit
