#include "JoinWall.h"

#include <algorithm>

namespace orvex {

namespace {

constexpr double kTolerance = 1e-9; // of the largest coordinate

PlanVector inPlan(const KdGePoint3d& point) {
    return {point.x, point.y};
}

PlanLine lineBetween(PlanVector start, PlanVector end, PlanVector otherwise) {
    const PlanVector way = end - start;
    const double length = way.length();
    return {start, length > 0.0 ? way * (1.0 / length) : otherwise, length};
}

} // namespace

JoinWall::JoinWall(std::uint64_t handle, unsigned order, const MlineContent& content)
    : m_handle(handle), m_order(order), m_elements(content.elementCount()),
      m_closed(content.closed && content.vertices.size() > 1),
      m_hasStyle(content.style.isValid()), m_capSuppressed{content.startCapsSuppressed,
                                                           content.endCapsSuppressed},
      m_lists(content.lists) {
    const KdGeVector3d& normal = content.normal;
    m_facesUp = normal.z > 0.0 && std::hypot(normal.x, normal.y) <= kTolerance * normal.z;
    bool finite = true;
    double low = 0.0;
    double high = 0.0;
    m_chain.reserve(content.vertices.size());
    m_positions.reserve(content.vertices.size() * m_elements);
    for (unsigned v = 0; v < content.vertices.size(); ++v) {
        const ChainVertex& vertex = content.vertices[v];
        const double z = vertex.position.z;
        low = v == 0 ? z : std::min(low, z);
        high = v == 0 ? z : std::max(high, z);
        m_chain.push_back(inPlan(vertex.position));
        for (unsigned e = 0; e < m_elements; ++e) {
            const auto list = m_lists.line(v, e);
            const double offset = list.empty() ? 0.0 : list.front();
            const PlanVector at = inPlan(vertex.position + vertex.miter * offset);
            finite = finite && std::isfinite(at.x) && std::isfinite(at.y) && std::isfinite(z);
            m_largest = std::max({m_largest, std::abs(at.x), std::abs(at.y)});
            m_positions.push_back(at);
        }
    }
    m_height = low;
    m_level = high - low <= kTolerance * std::max(m_largest, 1.0);

    double longest = 0.0;
    for (unsigned s = 0; m_elements > 0 && s < segmentCount(); ++s) {
        longest = std::max(longest, axis(s).length);
    }
    m_usable = finite && longest > kTolerance * m_largest;
    m_hasOuterElements = m_usable && m_elements > 1;
    for (unsigned s = 0; m_hasOuterElements && s < segmentCount(); ++s) {
        const PlanLine line = axis(s);
        const double first = line.aside(position(s, 0));
        const double last = line.aside(position(s, lastElement()));
        const double slack = kTolerance * std::max(m_largest, 1.0);
        m_hasOuterElements = line.length == 0.0 || std::abs(first - last) > slack;
        for (unsigned e = 1; e < lastElement() && m_hasOuterElements; ++e) {
            const double side = line.aside(position(s, e));
            m_hasOuterElements =
                side >= std::min(first, last) - slack && side <= std::max(first, last) + slack;
        }
    }
}

unsigned JoinWall::segmentCount() const {
    const unsigned count = vertexCount();
    return m_closed || count == 0 ? count : count - 1;
}

PlanLine JoinWall::axis(unsigned segment) const {
    return lineBetween(m_chain[segment], m_chain[nextVertex(segment)], {1.0, 0.0});
}

PlanLine JoinWall::track(unsigned segment, unsigned element) const {
    return lineBetween(position(segment, element), position(nextVertex(segment), element),
                       axis(segment).direction);
}

PlanLine JoinWall::middle(unsigned segment) const {
    const auto between = [this](unsigned v) {
        const PlanVector first = position(v, 0);
        return first + (position(v, lastElement()) - first) * 0.5;
    };
    return lineBetween(between(segment), between(nextVertex(segment)), axis(segment).direction);
}

double JoinWall::halfWidth(unsigned segment) const {
    const PlanLine line = axis(segment);
    return std::abs(
               cross(line.direction, position(segment, lastElement()) - position(segment, 0))) *
           0.5;
}

bool JoinWall::firstIsLeft(unsigned segment) const {
    const PlanLine line = axis(segment);
    return cross(line.direction, position(segment, lastElement()) - position(segment, 0)) < 0.0;
}

WallEnd JoinWall::endAtStart(unsigned segment) const {
    return !m_closed && segment == 0 ? WallEnd::start : WallEnd::none;
}

WallEnd JoinWall::endAtEnd(unsigned segment) const {
    return !m_closed && segment + 2 == vertexCount() ? WallEnd::end : WallEnd::none;
}

bool JoinWall::capSuppressed(WallEnd end) const {
    return end != WallEnd::none && m_capSuppressed[end == WallEnd::end ? 1 : 0];
}

std::span<const double> JoinWall::stops(unsigned segment, unsigned element) const {
    const auto list = m_lists.line(segment, element);
    return list.empty() ? list : list.subspan(1);
}

std::vector<DrawnSpan> JoinWall::drawn(unsigned segment, unsigned element) const {
    const auto list = stops(segment, element);
    std::vector<DrawnSpan> spans;
    spans.reserve(list.size() / 2 + 1);
    for (std::size_t i = 0; i < list.size(); i += 2) {
        const bool open = i + 1 == list.size();
        const double to = open ? track(segment, element).length : list[i + 1];
        if (to > list[i]) {
            spans.push_back({list[i], to});
        }
    }
    return spans;
}

double joinTolerance(const JoinWall& a, const JoinWall& b) {
    return kTolerance * std::max({a.largestCoordinate(), b.largestCoordinate(), 1e-3});
}

} // namespace orvex
