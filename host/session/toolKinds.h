#pragma once

#include <span>
#include <string_view>

namespace orvex {

// What the host knows of the module's multiline tools, to tell users what goes on. It decides
// nothing: what a tool does is up to the module.
struct ToolKind {
    const wchar_t* keyword; // of -MLEDIT, which no language changes
    enum class Picks : unsigned char {
        one,
        twoMultilines, // which may be one
        twoOnOne,      // two places of one multiline
    } picks;
    enum class Refuses : unsigned char { none, closedFirst, closedBoth } refuses;
    bool readsCrossing; // needs two chains that cross
    bool matchesGaps;   // a pick counts where a line is cut away, too
};

// In the module's order.
std::span<const ToolKind> toolKinds();

// Null for no tool; keywords ignore case.
const ToolKind* findToolKind(std::wstring_view keyword);

} // namespace orvex
