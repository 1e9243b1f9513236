#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>

// Capacity of a flat buffer: doubled up to 64 KiB, from there on 64 KiB more each time, or what is
// needed if that is more. All numbers are bytes.
class VoVectorFlatMemBufGrowPolicy {
public:
    [[nodiscard]] unsigned growCount(unsigned logical, unsigned physical, unsigned wanted) const {
        if (wanted == 0) {
            return bounded(std::uint64_t{logical} + m_step);
        }
        if (wanted < physical || wanted == logical) {
            return physical;
        }
        constexpr unsigned kMostAtOnce = 65536;
        const unsigned missing = wanted > logical ? wanted - logical : 0;
        const unsigned more = std::max(std::min(physical, kMostAtOnce), std::max(m_step, missing));
        return bounded(std::uint64_t{physical} + more);
    }

private:
    static unsigned bounded(std::uint64_t count) {
        constexpr std::uint64_t kMost = std::numeric_limits<unsigned>::max();
        return static_cast<unsigned>(std::min(count, kMost));
    }

    unsigned m_step = 8;
};
