#pragma once

#include "MlineContent.h"
#include "PlanVector.h"

#include <array>
#include <cstdint>
#include <span>
#include <vector>

namespace orvex {

// An end of an open chain.
enum class WallEnd { none, start, end };

// A part of an element that is drawn: distances along the element's line from its position at the
// segment's first vertex, as the lists have them.
struct DrawnSpan {
    double from = 0.0;
    double to = 0.0;

    friend bool operator==(const DrawnSpan&, const DrawnSpan&) = default;
};

// A multiline as the planner sees it: its lines in the plan, as they are stored. A value; it holds
// no entity, and its lists are shared with the content it was made of.
class JoinWall {
public:
    // `order` is the place in the drawing order. Contents that contradict themselves are fine:
    // what can't be used shows in isUsable().
    JoinWall(std::uint64_t handle, unsigned order, const MlineContent& content);

    [[nodiscard]] std::uint64_t handle() const { return m_handle; }
    [[nodiscard]] unsigned order() const { return m_order; }
    [[nodiscard]] bool isClosed() const { return m_closed; }
    // The normal is +z.
    [[nodiscard]] bool facesUp() const { return m_facesUp; }
    // All vertices have one z.
    [[nodiscard]] bool isLevel() const { return m_level; }
    [[nodiscard]] double height() const { return m_height; }
    // Two elements or more, the first and the last of them apart and outermost.
    [[nodiscard]] bool hasOuterElements() const { return m_hasOuterElements; }
    [[nodiscard]] bool hasStyle() const { return m_hasStyle; }
    // Finite, with at least one segment of some length.
    [[nodiscard]] bool isUsable() const { return m_usable; }
    // The greatest coordinate there is, for tolerances.
    [[nodiscard]] double largestCoordinate() const { return m_largest; }

    [[nodiscard]] unsigned vertexCount() const { return static_cast<unsigned>(m_chain.size()); }
    [[nodiscard]] unsigned elementCount() const { return m_elements; }
    [[nodiscard]] unsigned lastElement() const { return m_elements - 1; }
    // The last vertex of an open chain begins no segment.
    [[nodiscard]] unsigned segmentCount() const;
    [[nodiscard]] unsigned nextVertex(unsigned vertex) const {
        return (vertex + 1) % vertexCount();
    }
    [[nodiscard]] PlanVector vertex(unsigned vertex) const { return m_chain[vertex]; }
    // Where an element passes a vertex.
    [[nodiscard]] PlanVector position(unsigned vertex, unsigned element) const {
        return m_positions[std::size_t{vertex} * m_elements + element];
    }

    // The chain, an element, or the middle between the outer elements over one segment.
    [[nodiscard]] PlanLine axis(unsigned segment) const;
    [[nodiscard]] PlanLine track(unsigned segment, unsigned element) const;
    [[nodiscard]] PlanLine middle(unsigned segment) const;
    // Half the distance between the outer elements, square to the segment.
    [[nodiscard]] double halfWidth(unsigned segment) const;
    // Element 0 lies to the left of the last one.
    [[nodiscard]] bool firstIsLeft(unsigned segment) const;

    // The open end of the chain at which a segment begins (or ends), none at a bend.
    [[nodiscard]] WallEnd endAtStart(unsigned segment) const;
    [[nodiscard]] WallEnd endAtEnd(unsigned segment) const;
    [[nodiscard]] bool capSuppressed(WallEnd end) const;

    // The list of an element without its first value, as it is stored.
    [[nodiscard]] std::span<const double> stops(unsigned segment, unsigned element) const;
    // What the list draws, ascending. A last stretch that nothing ends is cut at the next position.
    [[nodiscard]] std::vector<DrawnSpan> drawn(unsigned segment, unsigned element) const;

private:
    std::uint64_t m_handle;
    unsigned m_order;
    unsigned m_elements = 0;
    bool m_closed = false;
    bool m_facesUp = true;
    bool m_level = true;
    bool m_hasOuterElements = false;
    bool m_usable = false;
    bool m_hasStyle = false;
    std::array<bool, 2> m_capSuppressed{};
    double m_height = 0.0;
    double m_largest = 0.0;
    std::vector<PlanVector> m_chain;
    std::vector<PlanVector> m_positions; // vertex by vertex
    ParameterLists m_lists;
};

// How far two results of the tools may lie apart and still be the same, drawing units: 1e-9 of the
// largest coordinate.
[[nodiscard]] double joinTolerance(const JoinWall& a, const JoinWall& b);

} // namespace orvex
