#pragma once

#include <cmath>
#include <cstdint>
#include <ranges>
#include <string>
#include <type_traits>
#include <variant>

namespace orvex::testing {

// Stands for results that are settled where there are too many of them to be named: it changes when
// one of them does, numbers by more than their rounding. The FNV-1a hash, word by word.
class Digest {
public:
    // Numbers, points, ranges and variants of them, and what there is a describe(Digest&, ...) for.
    template <class... Values>
    void add(const Values&... values) {
        (addOne(values), ...);
    }

    [[nodiscard]] std::string text() const { // sixteen hexadecimal digits
        std::string digits(16, '0');
        for (std::size_t i = 0; i < digits.size(); ++i) {
            digits[i] = "0123456789ABCDEF"[m_value >> (60 - 4 * i) & 0xFU];
        }
        return digits;
    }

private:
    template <class Value>
    void addOne(const Value& value) {
        if constexpr (std::is_floating_point_v<Value>) {
            addNumber(value);
        } else if constexpr (std::is_integral_v<Value> || std::is_enum_v<Value>) {
            addWord(static_cast<std::uint64_t>(value));
        } else if constexpr (requires { value.x, value.y, value.z; }) {
            add(value.x, value.y, value.z);
        } else if constexpr (std::ranges::range<Value>) {
            addWord(std::ranges::size(value));
            for (const auto& each : value) {
                add(each);
            }
        } else if constexpr (requires { std::variant_size<Value>::value; }) {
            addWord(value.index());
            std::visit([this](const auto& held) { this->add(held); }, value);
        } else if constexpr (!std::is_same_v<Value, std::monostate>) {
            describe(*this, value);
        }
    }
    void addWord(std::uint64_t word) {
        constexpr std::uint64_t kPrime = 0x100000001B3;
        m_value = (m_value ^ word) * kPrime;
    }
    // To four decimals; of large numbers seven digits.
    void addNumber(double number) {
        constexpr double kDecimals = 1e4;
        constexpr double kDigits = 1e7;
        constexpr double kLarge = 1e12;
        if (std::abs(number) < kLarge) {
            addWord(static_cast<std::uint64_t>(std::llround(number * kDecimals)));
        } else if (std::isfinite(number)) {
            int exponent = 0;
            add(std::llround(std::frexp(number, &exponent) * kDigits), exponent);
        } else {
            add(std::isnan(number), number > 0.0);
        }
    }

    std::uint64_t m_value = 0;
};

} // namespace orvex::testing
