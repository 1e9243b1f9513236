#pragma once

#include "Appearance.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace orvex {

// Labels beside entities, none over another one: where several lie together their labels are
// stacked.
class MlineNumbers {
public:
    // Drawing units.
    explicit MlineNumbers(double height) : m_height(height) {}

    // Above the middle of the entity's longest line; nothing for one without lines.
    [[nodiscard]] std::optional<Label> place(const Appearance& appearance, const std::wstring& text,
                                             std::uint32_t rgb);

private:
    using Cell = std::pair<std::int64_t, std::int64_t>;
    [[nodiscard]] std::vector<Cell> cellsOf(const PlanBox& box) const;
    [[nodiscard]] bool isFree(const PlanBox& box) const;

    double m_height;
    std::map<Cell, std::vector<PlanBox>> m_taken; // by cells of the label's height
};

} // namespace orvex
