#pragma once

namespace mledit {

// Tables of points as the members of CMlineEdit and CMlineSegment hold them: a plain array of
// rows, each a plain array of x, y, z. The holder of the table owns it and keeps the number of
// rows.

using PointRow = double (*)[3];
using PointTable = PointRow*;

// A table of zero points; negative counts count as 0.
PointTable newPointTable(int rows, int columns);

// Frees the table with its rows and leaves null and 0. A null table or row is skipped.
void freePointTable(PointTable& table, int& rows);

} // namespace mledit
