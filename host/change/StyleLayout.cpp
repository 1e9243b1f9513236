#include "StyleLayout.h"

#include "MlineStyleContent.h"

#include <algorithm>

namespace orvex {

StyleLayout layoutOf(const MlineStyleContent& style) {
    StyleLayout layout;
    layout.startAngle = style.startAngle;
    layout.endAngle = style.endAngle;
    layout.offsets.reserve(style.elements.size());
    for (const StyleElement& element : style.elements) {
        layout.offsets.push_back(element.offset);
    }
    return layout;
}

std::vector<double> elementDistances(const StyleLayout& style, double scale, int justification) {
    std::vector<double> distances = style.offsets;
    if (distances.empty()) {
        return distances;
    }
    const auto [least, most] = std::minmax_element(distances.begin(), distances.end());
    const double onChain = justification == 0 ? *most : justification == 2 ? *least : 0.0;
    for (double& distance : distances) {
        distance = (distance - onChain) * scale;
    }
    return distances;
}

} // namespace orvex
