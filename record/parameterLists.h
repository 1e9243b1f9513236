#pragma once

#include <vector>

class KdDbMline;

namespace mledit {

// Parameter lists as vectors, with the results of the accessors of mlineAccessors.h but one call to
// the host for each list. Reads clamp their indices, writes with an index out of range do nothing;
// a null multiline reads as empty.

std::vector<double> lineList(const KdDbMline* mline, int vertex, int element);
// The same into a vector whose capacity is reused.
void readLineList(const KdDbMline* mline, int vertex, int element, std::vector<double>& list);
void storeLineList(KdDbMline* mline, int vertex, int element, const std::vector<double>& list);

std::vector<double> areaList(const KdDbMline* mline, int vertex, int element);
void storeAreaList(KdDbMline* mline, int vertex, int element, const std::vector<double>& list);

// Entry 0 of the line parameters, the element's offset along the miter in drawing units; 0 when
// the list is empty.
double elementOffset(const KdDbMline& mline, int vertex, int element);

} // namespace mledit
