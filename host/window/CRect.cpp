#include "CRect.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace {

int distance(int from, int to) {
    using Limits = std::numeric_limits<int>;
    return static_cast<int>(std::clamp(std::int64_t{to} - from, std::int64_t{Limits::min()},
                                       std::int64_t{Limits::max()}));
}

} // namespace

int CRect::Width() const {
    return distance(left, right);
}

int CRect::Height() const {
    return distance(top, bottom);
}
