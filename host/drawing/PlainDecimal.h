#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace orvex {

// What nearly every number of a drawing is: an optional minus sign, digits and at most one point.
// Anything else isn't judged here.
class PlainDecimal {
public:
    explicit PlainDecimal(std::string_view text) {
        const char* at = text.data();
        const char* const end = at + text.size();
        m_isNegative = at != end && *at == '-';
        at += m_isNegative ? 1 : 0;
        const char* const first = at;
        at = takeDigits(at, end);
        m_digits = static_cast<std::size_t>(at - first);
        if (at != end && *at == '.') {
            m_hasPoint = true;
            const char* const fraction = ++at;
            at = takeDigits(at, end);
            m_fractionDigits = static_cast<std::size_t>(at - fraction);
            m_digits += m_fractionDigits;
        }
        m_isPlain = at == end && m_digits > 0;
    }

    // Fewer digits than the greatest double has.
    [[nodiscard]] bool isFinite() const { return m_isPlain && m_digits <= 300; }
    // A double holds the digits and the power of ten, so that one division rounds correctly.
    [[nodiscard]] bool isExact() const { return m_isPlain && m_digits <= 15; }
    [[nodiscard]] bool isShortInteger() const { return m_isPlain && !m_hasPoint && m_digits <= 9; }
    [[nodiscard]] int integer() const { // of a short one
        const auto size = static_cast<int>(m_number);
        return m_isNegative ? -size : size;
    }
    [[nodiscard]] double value() const { // of what is exact
        const double size = static_cast<double>(m_number) / kPowers[m_fractionDigits];
        return m_isNegative ? -size : size;
    }

private:
    static constexpr std::array kPowers{1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                        1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};

    // Of many digits the number is the rest of an overflow, which nobody asks for.
    const char* takeDigits(const char* at, const char* end) {
        for (; at != end && *at >= '0' && *at <= '9'; ++at) {
            m_number = m_number * 10 + static_cast<std::uint64_t>(*at - '0');
        }
        return at;
    }

    std::uint64_t m_number = 0; // of all digits, the point left out
    std::size_t m_digits = 0;
    std::size_t m_fractionDigits = 0;
    bool m_isNegative = false;
    bool m_hasPoint = false;
    bool m_isPlain = false;
};

} // namespace orvex
