#pragma once

#include <bit>
#include <cstdint>

// Absolute comparisons and the number rules of the drawing format. A tolerance is the greatest
// difference still accepted, in the units of the values compared.
struct VoMath {
    static constexpr bool isPositive(double value, double tolerance) { return value > tolerance; }
    static constexpr bool isNegative(double value, double tolerance) { return value < -tolerance; }

    // Neither above nor below: a NaN counts as zero.
    static constexpr bool isZero(double value, double tolerance) {
        return !isPositive(value, tolerance) && !isNegative(value, tolerance);
    }
    static constexpr bool isEqual(double a, double b, double tolerance) {
        return isZero(a - b, tolerance);
    }

    // False for zero, denormal values, infinities and NaN: exponent bits all 0 or all 1.
    static constexpr bool isValidNonZeroIEEEDouble(double value) {
        const auto exponent = (std::bit_cast<std::uint64_t>(value) >> 52) & 0x7FFU;
        return exponent != 0 && exponent != 0x7FFU;
    }

    // What the drawing format has no form for becomes 0.
    static constexpr void fixDouble(double& value) {
        if (!isValidNonZeroIEEEDouble(value)) {
            value = 0.0;
        }
    }

    // Coordinates stay within 1e100 of the origin.
    static constexpr void validateDoubleRange(double& value) {
        constexpr double kLimit = 1e100;
        if (value > kLimit) {
            value = kLimit;
        } else if (value < -kLimit) {
            value = -kLimit;
        }
    }
};
