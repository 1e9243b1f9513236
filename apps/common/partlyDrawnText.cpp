#include "partlyDrawnText.h"

#include "handleText.h"

#include <algorithm>

namespace orvex {

std::string partlyDrawnText(const std::vector<std::uint64_t>& handles) {
    constexpr std::size_t kMostNamed = 5;
    const std::size_t named = std::min(handles.size(), kMostNamed);
    std::string text = "blocks repeat too often to be drawn in full, in the insert";
    text += handles.size() > 1 ? "s" : "";
    for (std::size_t i = 0; i < named; ++i) {
        text += (i > 0 ? ", #" : " #") + handleText(handles[i]);
    }
    if (handles.size() > named) {
        text += " and " + std::to_string(handles.size() - named) + " more";
    }
    return text;
}

} // namespace orvex
