#pragma once

#include "KdGePoint3d.h"
#include "KdGeVector3d.h"

#include <string>
#include <variant>
#include <vector>

namespace orvex {

// The geometry of entities that are only looked at. All points are in world coordinates with the
// entity's plane already applied; angles in radians.

struct LineShape {
    KdGePoint3d start;
    KdGePoint3d end;
};

struct PolylineShape {
    struct Vertex {
        KdGePoint3d position;
        double bulge = 0.0; // tangent of a quarter of the arc's angle, left-turning positive
    };
    std::vector<Vertex> vertices;
    bool closed = false;
    KdGeVector3d normal{0.0, 0.0, 1.0};
};

// Circle, arc and ellipse: centre + cos(t) * major + sin(t) * minor, from start to end.
struct ConicShape {
    KdGePoint3d center;
    KdGeVector3d major;
    KdGeVector3d minor;
    double start = 0.0;
    double end = 6.283185307179586;
};

struct TextShape {
    KdGePoint3d position;   // of the anchor
    KdGeVector3d direction; // unit, along the base line
    KdGeVector3d up;        // unit
    double height = 0.0;    // drawing units
    int horizontal = 0;     // anchor: 0 left, 1 middle, 2 right
    int vertical = 0;       // anchor: 0 base line, 1 bottom, 2 middle, 3 top
    std::vector<std::wstring> lines;
};

// One entity of a block definition placed in the world.
struct InsertShape {
    std::wstring block;
    KdGePoint3d position;
    KdGeVector3d xAxis; // of the inserted block, scale and rotation included
    KdGeVector3d yAxis;
    KdGeVector3d zAxis;
    int columns = 1;
    int rows = 1;
    KdGeVector3d columnStep;
    KdGeVector3d rowStep;
    std::vector<TextShape> attributes; // where they stand in the world, once for all
};

struct SolidShape {
    std::vector<KdGePoint3d> corners; // three or four, in the order of the outline
};

struct OutlinesShape {
    std::vector<PolylineShape> paths;
    std::vector<ConicShape> arcs;
};

struct PointShape {
    KdGePoint3d position;
};

// Nothing that could be drawn.
using NoShape = std::monostate;

using EntityShape = std::variant<NoShape, LineShape, PolylineShape, ConicShape, TextShape,
                                 InsertShape, SolidShape, OutlinesShape, PointShape>;

} // namespace orvex
