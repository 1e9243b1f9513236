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
// was read from a file lies flat in one array; a vertex that was written to has lists of its own.
class ParameterLists {
public:
    // From a file: `counts` has, for each vertex and element, the number of line and of area
    // values; `values` has them in that order. Counts beyond the values are cut. Without elements
    // there is nothing to tell vertices by: call appendVertex for each of them.
    void assignFlat(unsigned elements, std::vector<std::uint32_t> counts,
                    std::vector<double> values);

    [[nodiscard]] unsigned vertexCount() const { return m_vertices; }
    // Elements of one vertex; those of vertex 0 count for the multiline.
    [[nodiscard]] unsigned elementCount(unsigned vertex) const;

    [[nodiscard]] std::span<const double> line(unsigned vertex, unsigned element) const;
    [[nodiscard]] std::span<const double> area(unsigned vertex, unsigned element) const;

    // The lists of a vertex as the interface has them, made at each call.
    [[nodiscard]] VoVector<KdMLSegment> nested(unsigned vertex) const;
    // The same into a record; arrays of it that nobody shares and that fit serve again.
    void readNested(unsigned vertex, VoVector<KdMLSegment>& record) const;
    void setNested(unsigned vertex, const VoVector<KdMLSegment>& record);
    void appendVertex(); // as many empty records as vertex 0 has
    void dropLastVertex();

    // Bytes that no copy shares.
    [[nodiscard]] std::size_t memoryUse() const;

    // Bit for bit.
    friend bool operator==(const ParameterLists& a, const ParameterLists& b);

private:
    struct Flat {
        unsigned elements = 0;
        std::vector<std::uint32_t> ends; // of each list in `values`, lines and areas in turn
        std::vector<double> values;
    };
    // The lists of one vertex in one piece, since a chain may have millions: the number of
    // elements, where each list ends among the values, lines and areas in turn, and the values.
    using OwnLists = std::shared_ptr<const double[]>;

    [[nodiscard]] static OwnLists pack(const VoVector<KdMLSegment>& record);
    [[nodiscard]] const double* ownOrNull(unsigned vertex) const;
    [[nodiscard]] std::span<const double> list(unsigned vertex, std::size_t index) const;

    unsigned m_vertices = 0;
    std::shared_ptr<const Flat> m_flat; // shared by copies
    // A null entry, and every entry of an empty array, is as in m_flat. Most multilines are only
    // looked at and never have any.
    std::vector<OwnLists> m_own;
};

// The bits of a multiline's flags in files and listings.
enum MlineFlag : int {
    kMlineHasVertices = 1,
    kMlineClosed = 2,
    kMlineNoStartCaps = 4,
    kMlineNoEndCaps = 8,
};

// A multiline.
struct MlineContent final : ObjectContent {
    std::shared_ptr<const EntityTraits> traits; // null: those that the entity has
    KdDbObjectId style;                         // null when the drawing has no such style
    std::wstring styleName; // as the file has it; matters only where `style` is null
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
    [[nodiscard]] int flags() const; // of MlineFlag
    [[nodiscard]] bool equals(const ObjectContent& other) const override;
    [[nodiscard]] std::size_t memoryUse() const override;
};

} // namespace orvex
