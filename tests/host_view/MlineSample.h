#pragma once

#include "MlineContent.h"
#include "MlineStyleContent.h"

#include <initializer_list>
#include <vector>

namespace orvex::testing {

// One element's values at one vertex.
using ValueList = std::vector<double>;

struct SampleVertex {
    KdGePoint3d position;
    KdGeVector3d axis;
    KdGeVector3d miter;
    std::vector<ValueList> lines; // by element
    std::vector<ValueList> areas; // by element; none at all for an empty vector
};

inline MlineContent sampleMline(const std::vector<SampleVertex>& vertices, bool closed = false) {
    MlineContent mline;
    mline.traits = std::make_shared<EntityTraits>();
    mline.closed = closed;
    std::vector<std::uint32_t> counts;
    std::vector<double> values;
    const auto add = [&](const ValueList& list) {
        counts.push_back(static_cast<std::uint32_t>(list.size()));
        values.insert(values.end(), list.begin(), list.end());
    };
    for (const SampleVertex& vertex : vertices) {
        mline.vertices.push_back({vertex.position, vertex.axis, vertex.miter});
        for (std::size_t element = 0; element < vertex.lines.size(); ++element) {
            add(vertex.lines[element]);
            add(vertex.areas.empty() ? ValueList{} : vertex.areas[element]);
        }
    }
    const auto elements = vertices.empty() ? 0 : vertices.front().lines.size();
    mline.lists.assignFlat(static_cast<unsigned>(elements), counts, values);
    return mline;
}

// Eastwards from (x, y), with the elements' lists at the first vertex; at the last vertex every
// element has its position alone.
inline MlineContent sampleEastward(double x, double y, double length,
                                   const std::vector<ValueList>& lines) {
    std::vector<ValueList> last;
    last.reserve(lines.size());
    for (const ValueList& list : lines) {
        last.push_back({list.front(), 0.0});
    }
    return sampleMline({{{x, y, 0}, {1, 0, 0}, {0, 1, 0}, lines, {}},
                        {{x + length, y, 0}, {1, 0, 0}, {0, 1, 0}, last, {}}});
}

inline MlineStyleContent sampleStyle(int flags, std::initializer_list<double> offsets) {
    MlineStyleContent style;
    style.name = L"SAMPLE";
    style.flags = flags;
    for (const double offset : offsets) {
        style.elements.emplace_back().offset = offset;
    }
    return style;
}

} // namespace orvex::testing
