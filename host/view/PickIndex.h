#pragma once

#include "Appearance.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace orvex {

// Finds numbered boxes in the plan: an R-tree, packed when it is built and balanced from then on.
// Queries and changes cost the same in large and small drawings, but for the tree's height.
class PickIndex {
public:
    PickIndex();
    ~PickIndex();
    PickIndex(PickIndex&&) noexcept;
    PickIndex& operator=(PickIndex&&) noexcept;

    // Anew from boxes that are numbered as they stand; empty ones aren't found.
    void build(std::vector<PlanBox> boxes);
    // Gives a number another box; numbers may be new.
    void set(std::uint32_t number, const PlanBox& box);

    // The numbers of all boxes that meet the area, edges included, in ascending order.
    [[nodiscard]] std::vector<std::uint32_t> query(const PlanBox& area) const;
    // The same of at most `most` boxes, those nearest to the place.
    [[nodiscard]] std::vector<std::uint32_t> nearest(const PlanBox& area, const PlanPoint& place,
                                                     std::size_t most) const;
    [[nodiscard]] PlanBox bounds() const;
    [[nodiscard]] const PlanBox& box(std::uint32_t number) const;     // empty for an unknown number
    [[nodiscard]] std::size_t size() const { return m_boxes.size(); } // empty boxes count

private:
    struct Tree;
    std::unique_ptr<Tree> m_tree;
    std::vector<PlanBox> m_boxes; // by number, to take them out of the tree again
};

} // namespace orvex
