#pragma once

#include "EntityTraits.h"
#include "KdDbObjectId.h"
#include "KdGePoint3d.h"
#include "KdGeVector3d.h"
#include "KdMLSegment.h"
#include "ObjectContent.h"

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace orvex {

// A vertex of the chain in world coordinates. Axis and miter are directions as stored.
struct ChainVertex {
    KdGePoint3d position;
    KdGeVector3d axis;
    KdGeVector3d miter;

    friend bool operator==(const ChainVertex&, const ChainVertex&) = default;
};

// The parameter lists of a chain, for each vertex and element one of lines and one of areas. What
// was read from a file lies flat in one array; a vertex that was written to, or whose record was
// asked for, has its nested record beside it.
class ParameterLists {
public:
    // From a file: `counts` has, for each vertex and element, the number of line and of area
    // values; `values` has them in that order.
    void assignFlat(unsigned elements, std::vector<std::uint32_t> counts,
                    std::vector<double> values);

    [[nodiscard]] unsigned vertexCount() const { return static_cast<unsigned>(m_nested.size()); }
    // Elements of one vertex; those of vertex 0 count for the multiline.
    [[nodiscard]] unsigned elementCount(unsigned vertex) const;

    [[nodiscard]] std::span<const double> line(unsigned vertex, unsigned element) const;
    [[nodiscard]] std::span<const double> area(unsigned vertex, unsigned element) const;

    // The nested record, made at the first call and kept at its address till the vertex is
    // written or dropped.
    [[nodiscard]] const VoVector<KdMLSegment>& nested(unsigned vertex) const;
    void setNested(unsigned vertex, const VoVector<KdMLSegment>& record);
    void appendVertex(); // as many empty records as vertex 0 has
    void dropLastVertex();

    friend bool operator==(const ParameterLists& a, const ParameterLists& b);

private:
    struct Flat {
        unsigned elements = 0;
        std::vector<std::uint32_t> ends; // of each list in `values`, lines and areas in turn
        std::vector<double> values;
    };
    std::shared_ptr<const Flat> m_flat; // shared by copies
    mutable std::vector<std::shared_ptr<const VoVector<KdMLSegment>>>
        m_nested; // null: as in m_flat
};

// A multiline.
struct MlineContent final : ObjectContent {
    std::shared_ptr<const EntityTraits> traits;
    KdDbObjectId style;     // null when the drawing has no such style
    std::wstring styleName; // as the file has it, for a style that isn't there
    double scale = 1.0;
    int justification = 0; // 0 top, 1 zero, 2 bottom
    bool closed = false;
    bool startCapsSuppressed = false;
    bool endCapsSuppressed = false;
    KdGeVector3d normal{0.0, 0.0, 1.0};
    std::vector<ChainVertex> vertices;
    ParameterLists lists; // one entry a vertex, always

    [[nodiscard]] unsigned elementCount() const {
        return vertices.empty() ? 0 : lists.elementCount(0);
    }
    [[nodiscard]] bool equals(const ObjectContent& other) const override;
};

} // namespace orvex
