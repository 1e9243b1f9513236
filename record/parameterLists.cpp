#include "parameterLists.h"

#include "mlineRecord.h"

std::vector<double> lineList(const KdDbMline* mline, int vertex, int element) {
    int count = 0;
    GetNumLine(mline, &count, vertex, element);
    std::vector<double> list(static_cast<std::size_t>(count));
    GetLineArray(mline, list.data(), count, vertex, element);
    return list;
}

void storeLineList(KdDbMline* mline, int vertex, int element, const std::vector<double>& list) {
    SetNumLine(mline, static_cast<int>(list.size()), vertex, element);
    SetLineArray(mline, list.data(), vertex, element);
}

std::vector<double> areaList(const KdDbMline* mline, int vertex, int element) {
    int count = 0;
    GetNumArea(mline, &count, vertex, element);
    std::vector<double> list(static_cast<std::size_t>(count));
    GetAreaArray(mline, list.data(), count, vertex, element);
    return list;
}

void storeAreaList(KdDbMline* mline, int vertex, int element, const std::vector<double>& list) {
    SetNumArea(mline, static_cast<int>(list.size()), vertex, element);
    SetAreaArray(mline, list.data(), vertex, element);
}
