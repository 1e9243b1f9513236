#pragma once

#include <algorithm>
#include <cmath>
#include <limits>

namespace orvex {

// Of numbers that were computed from some no larger than `size`.
inline bool differsByNoise(double a, double b, double size) {
    constexpr double kNoise = 4.0 * std::numeric_limits<double>::epsilon();
    return std::abs(a - b) <= kNoise * size;
}

// A computed number, or the one of twelve digits that it differs from by nothing but what rounding
// to doubles leaves, as 365 for 364.99999999999994. `size`: of the largest number that it comes
// from.
inline double withoutNoise(double value, double size) {
    constexpr double kDigits = 12.0;
    const double largest = std::max(std::abs(value), std::abs(size));
    if (!(largest > 0.0) || !std::isfinite(largest)) {
        return value;
    }
    const double decimals = kDigits - std::ceil(std::log10(largest));
    const double grid = std::pow(10.0, std::abs(decimals));
    const double round =
        decimals < 0.0 ? std::round(value / grid) * grid : std::round(value * grid) / grid;
    return differsByNoise(round, value, largest) ? round : value;
}

} // namespace orvex
