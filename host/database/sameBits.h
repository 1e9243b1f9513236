#pragma once

#include <cstring>
#include <span>
#include <type_traits>

namespace orvex {

// Equality of what would be written: -0.0 differs from 0.0, a NaN equals itself. For values without
// padding.
template <class T>
[[nodiscard]] bool sameBits(std::span<const T> a, std::span<const T> b) {
    static_assert(std::is_trivially_copyable_v<T>);
    return a.size() == b.size() &&
           (a.empty() || std::memcmp(a.data(), b.data(), a.size_bytes()) == 0);
}

template <class T>
[[nodiscard]] bool sameBits(const T& a, const T& b) {
    return sameBits(std::span<const T>(&a, 1), std::span<const T>(&b, 1));
}

} // namespace orvex
