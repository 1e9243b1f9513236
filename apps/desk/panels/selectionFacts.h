#pragma once

#include <QString>

#include <cstddef>
#include <optional>
#include <vector>

struct KdDbStub;

namespace orvex {

// What the multilines of a selection have in common; nothing where they differ.
struct SelectionFacts {
    std::size_t mlines = 0;
    std::size_t locked = 0; // of these, on locked layers
    std::optional<QString> style;
    std::optional<QString> layer;
    std::optional<double> scale;
    std::optional<int> justification; // 0 top, 1 zero, 2 bottom
    std::optional<int> caps;          // 1 at the start, 2 at the end, 3 both
    std::optional<bool> closed;
};

SelectionFacts factsOf(const std::vector<KdDbStub*>& entities);

} // namespace orvex
