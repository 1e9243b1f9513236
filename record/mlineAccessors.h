#pragma once

class KdDbMline;
class KdDbMlineStyle;

// A multiline's parts as plain arrays; names and results are fixed by the interface. All functions
// take an open entity, for write in the Set forms. The result is 1 for done and 0 for refused
// (GetAreaArray: always 0); a refused call changes nothing and reports nothing. A null multiline is
// refused everywhere.
//
// Get forms clamp a vertex or element index to the valid range, so that a read at an
// end of the chain always gives a value. Set forms refuse an index that is out of range.

namespace mledit {

// Bits of the flag word.
inline constexpr int kFlagHasVertex = 1; // read only
inline constexpr int kFlagClosed = 2;
inline constexpr int kFlagNoStartCaps = 4;
inline constexpr int kFlagNoEndCaps = 8;

bool isClosed(const KdDbMline* mline); // false for null

} // namespace mledit

// A chain of two vertices keeps its closed bit as it is.
int SetFlag(KdDbMline* mline, int flags);
int GetFlag(const KdDbMline* mline, int* flags);

// The number of vertices, at least 2. New ones are at the origin; nothing else is touched.
int SetNumVertices(KdDbMline* mline, int count);

// The number of elements, as it is at vertex 0. It is set at every vertex, at least 1.
int GetSegmentsSize(const KdDbMline* mline, int* count);
int SetSegmentsSize(KdDbMline* mline, int count);

// Line parameters (group 41) of an element at a vertex: its offset along the miter, then the
// break distances. Set the count first, then the values: SetLineArray takes its count from the
// entity, and is refused while it is 0. `size` is the capacity of `out` in doubles; if it is too
// small, nothing is copied.
int SetNumLine(KdDbMline* mline, int count, int vertex, int element);
int GetNumLine(const KdDbMline* mline, int* count, int vertex, int element);
int SetLineArray(KdDbMline* mline, const double* values, int vertex, int element);
int GetLineArray(const KdDbMline* mline, double* out, int size, int vertex, int element);

// The same for area parameters (group 42). GetAreaArray's result is 0 after a full copy too.
int SetNumArea(KdDbMline* mline, int count, int vertex, int element);
int GetNumArea(const KdDbMline* mline, int* count, int vertex, int element);
int SetAreaArray(KdDbMline* mline, const double* values, int vertex, int element);
int GetAreaArray(const KdDbMline* mline, double* out, int size, int vertex, int element);

// Positions, axes and miters of all vertices in order, as many as the entity has.
int SetVertices(KdDbMline* mline, const double (*points)[3]);
int GetVertices(const KdDbMline* mline, double (*out)[3]);
int SetAxis(KdDbMline* mline, const double (*vectors)[3]);
int GetAxis(const KdDbMline* mline, double (*out)[3]);
int SetMilters(KdDbMline* mline, const double (*vectors)[3]);
int GetMilters(const KdDbMline* mline, double (*out)[3]);

// Opens the style for read; the caller closes it. Without a style `out` stays as it was, and the
// result is 1 nevertheless: start from null.
int GetMlStyle(const KdDbMline* mline, KdDbMlineStyle** out);

int GetNormal(const KdDbMline* mline, double* out);
