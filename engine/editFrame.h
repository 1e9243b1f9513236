#pragma once

#include "resbuf.h"

class KdDbMline;
class KdDbMlineStyle;

// The frames in which vertices are moved, added and removed, and what is read of a multiline and
// its style for that. Points are x, y, z; angles in radians.

namespace mledit {

// Turns points and directions between the world and a frame given by the multiline's normal.
class EditFrame {
public:
    // The plane of the normal through the world's origin: vertices move in it.
    static EditFrame ofPlane(const double* normal);

    // What adding and removing vertices work in: the normal lies over a frame number, so that the
    // low bits of its X choose the frame. For a normal whose X is 0 that is the world itself.
    static EditFrame overlaid(const double* normal);

    // Where the host refuses the conversion, the values stay as they are.
    void toFrame(const double* world, double* out) const;
    void directionToFrame(const double* world, double* out) const;
    // The direction at an angle to the frame's X axis, in the world.
    void direction(double angle, double* world) const;

private:
    EditFrame(short type, const double* normal);

    resbuf m_world;
    resbuf m_frame;
};

// Halfway between the directions a and b from a vertex to its neighbours: the miter. Not
// normalised.
double bisect(double a, double b);

// Vertices around one; on an open chain they simply lie outside its range.
struct Neighbours {
    int next;
    int afterNext;
    int previous;
    int beforePrevious;
};
Neighbours neighboursOf(int vertex, int numVertices, bool closed);

// The angles that a style gives to the ends of a multiline, in the sense of the multiline's normal
// and the user coordinate system: their sign is reversed when both point to the same side.
struct EndAngles {
    double start;
    double end;
};
EndAngles endAngles(const KdDbMlineStyle& style, const double* normal);

} // namespace mledit
