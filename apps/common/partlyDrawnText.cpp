#include "partlyDrawnText.h"

#include "handleText.h"
#include "hostText.h"

#include <algorithm>

namespace orvex {

std::string partlyDrawnText(const std::vector<std::uint64_t>& handles) {
    constexpr std::size_t kMostNamed = 5;
    const std::size_t named = std::min(handles.size(), kMostNamed);
    std::string list;
    for (std::size_t i = 0; i < named; ++i) {
        list += (i > 0 ? ", #" : "#") + handleText(handles[i]);
    }
    if (handles.size() > named) {
        list += hostText(" and %1 more", {std::to_string(handles.size() - named)});
    }
    return handles.size() > 1
               ? hostText("blocks repeat too often to be drawn in full, in the inserts %1", {list})
               : hostText("blocks repeat too often to be drawn in full, in the insert %1", {list});
}

} // namespace orvex
