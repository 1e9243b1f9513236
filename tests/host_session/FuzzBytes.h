#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace orvex::testing {

// The bytes of a fuzzer's input as choices; zeros after their end.
class FuzzBytes {
public:
    explicit FuzzBytes(std::span<const std::uint8_t> bytes) : m_bytes(bytes) {}

    [[nodiscard]] bool isAtEnd() const { return m_bytes.empty(); }
    unsigned next() {
        if (m_bytes.empty()) {
            return 0;
        }
        const unsigned byte = m_bytes.front();
        m_bytes = m_bytes.subspan(1);
        return byte;
    }
    template <class List>
    const auto& oneOf(const List& list) {
        return list[next() % std::size(list)];
    }
    // Mostly on a grid, so that things meet.
    double coordinate() {
        const unsigned byte = next();
        constexpr double kOdd[] = {0.0,       -0.0, 1e-9, 33.333333333333336,
                                   1e5 + 0.1, -1e9, 1e17, 1e300};
        return byte >= 248 ? kOdd[byte - 248] : byte % 16 * 10.0 + (byte < 192 ? 0.0 : 0.37);
    }

private:
    std::span<const std::uint8_t> m_bytes;
};

} // namespace orvex::testing
