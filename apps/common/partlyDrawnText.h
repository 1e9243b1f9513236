#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace orvex {

// The message about entities that are drawn in part, given by handle; at least one. UTF-8.
std::string partlyDrawnText(const std::vector<std::uint64_t>& handles);

} // namespace orvex
