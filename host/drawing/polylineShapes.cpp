// Polylines, flat and in space, meshes and polyfaces.

#include "EntityShapes.h"
#include "NumberText.h"
#include "blanks.h"

#include <algorithm>
#include <cstdlib>

namespace orvex {

namespace {

enum PolylineFlag : int { kClosed = 1, kInSpace = 8, kMesh = 16, kClosedAcross = 32, kFaces = 64 };
enum VertexFlag : int { kFrame = 16, kFaceVertex = 64, kFace = 128 };

bool isVertex(const ShapeTags& tags) {
    return trimBlanks(tags.text(0)) == "VERTEX";
}

std::vector<KdGePoint3d> points(const std::vector<ShapeTags>& records) {
    std::vector<KdGePoint3d> result;
    for (const ShapeTags& record : records) {
        const int flags = record.integer(70);
        const bool isFace = (flags & kFace) != 0 && (flags & kFaceVertex) == 0;
        if (isVertex(record) && !isFace && (flags & kFrame) == 0) {
            result.push_back(record.point(10));
        }
    }
    return result;
}

PolylineShape chain(const std::vector<KdGePoint3d>& all, std::size_t first, std::size_t step,
                    std::size_t count, bool closed) {
    PolylineShape shape;
    shape.closed = closed;
    for (std::size_t i = 0; i < count && first + i * step < all.size(); ++i) {
        shape.vertices.push_back({all[first + i * step], 0.0});
    }
    return shape;
}

// M rows (code 71) of N points (code 72) each.
EntityShape meshShape(const std::vector<ShapeTags>& records, int flags) {
    const std::vector<KdGePoint3d> all = points(records);
    const auto limit = static_cast<int>(std::min<std::size_t>(all.size(), 0x7FFF));
    const auto rows = static_cast<std::size_t>(std::clamp(records[0].integer(71), 0, limit));
    const auto columns = static_cast<std::size_t>(std::clamp(records[0].integer(72), 0, limit));
    OutlinesShape shape;
    for (std::size_t row = 0; row < rows && row * columns < all.size(); ++row) {
        shape.paths.push_back(chain(all, row * columns, 1, columns, (flags & kClosedAcross) != 0));
    }
    for (std::size_t column = 0; column < columns; ++column) {
        shape.paths.push_back(chain(all, column, columns, rows, (flags & kClosed) != 0));
    }
    return shape;
}

// Faces name their vertices from 1; a negative one has no visible edge after it.
EntityShape facesShape(const std::vector<ShapeTags>& records) {
    const std::vector<KdGePoint3d> all = points(records);
    OutlinesShape shape;
    for (const ShapeTags& record : records) {
        const int flags = record.integer(70);
        if (!isVertex(record) || (flags & kFace) == 0 || (flags & kFaceVertex) != 0) {
            continue;
        }
        PolylineShape face;
        face.closed = true;
        for (const int code : {71, 72, 73, 74}) {
            const auto index = static_cast<std::size_t>(std::abs(long{record.integer(code)}));
            if (index >= 1 && index <= all.size()) {
                face.vertices.push_back({all[index - 1], 0.0});
            }
        }
        shape.paths.push_back(std::move(face));
    }
    return shape;
}

} // namespace

EntityShape lwPolylineShape(const ShapeTags& tags) {
    const EntityPlane plane = EntityPlane::of(tags);
    const double elevation = tags.real(38);
    PolylineShape shape;
    shape.closed = (tags.integer(70) & kClosed) != 0;
    shape.normal = plane.normal;
    std::vector<KdGePoint3d> flat;
    for (const Tag& tag : tags.all()) {
        const bool isUsed = tag.code == 10 || tag.code == 20 || tag.code == 42;
        const auto value = isUsed ? parseReal(tag.value) : std::nullopt;
        if (!value) {
            continue;
        }
        if (tag.code == 10) {
            flat.push_back({*value, 0.0, elevation});
            shape.vertices.emplace_back();
        } else if (tag.code == 20 && !flat.empty()) {
            flat.back().y = *value;
        } else if (tag.code == 42 && !flat.empty()) {
            shape.vertices.back().bulge = *value;
        }
    }
    for (std::size_t i = 0; i < flat.size(); ++i) {
        shape.vertices[i].position = plane.toWorld(flat[i]);
    }
    return shape;
}

EntityShape polylineShape(const std::vector<ShapeTags>& records) {
    const int flags = records[0].integer(70);
    if ((flags & kMesh) != 0) {
        return meshShape(records, flags);
    }
    if ((flags & kFaces) != 0) {
        return facesShape(records);
    }
    const EntityPlane plane = EntityPlane::of(records[0]);
    const bool inSpace = (flags & kInSpace) != 0;
    const double elevation = records[0].real(30);
    PolylineShape shape;
    shape.closed = (flags & kClosed) != 0;
    shape.normal = plane.normal;
    for (const ShapeTags& record : records) {
        if (!isVertex(record) || (record.integer(70) & kFrame) != 0) {
            continue;
        }
        KdGePoint3d position = record.point(10);
        if (!inSpace) {
            position.z = elevation;
            position = plane.toWorld(position);
        }
        shape.vertices.push_back({position, inSpace ? 0.0 : record.real(42)});
    }
    return shape;
}

} // namespace orvex
