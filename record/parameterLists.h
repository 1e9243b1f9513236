#pragma once

#include <vector>

class KdDbMline;

// Parameter lists as vectors: the accessors of mlineRecord.h in the order in which they have to be
// used. Reads clamp their indices, writes to a place that doesn't exist do nothing.

std::vector<double> lineList(const KdDbMline* mline, int vertex, int element);
void storeLineList(KdDbMline* mline, int vertex, int element, const std::vector<double>& list);

std::vector<double> areaList(const KdDbMline* mline, int vertex, int element);
void storeAreaList(KdDbMline* mline, int vertex, int element, const std::vector<double>& list);
