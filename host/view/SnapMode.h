#pragma once

#include <cstdint>
#include <initializer_list>

namespace orvex {

// Kinds of targets that a point near them is drawn to, in the order in which they win where several
// lie together. All but the last are points; nearest is a line.
enum class SnapMode : std::uint8_t {
    vertex,        // of a multiline's chain
    elementEnd,    // where a drawn stretch of a multiline's element ends
    end,           // of any other line or arc
    axisCrossing,  // of a multiline's chain with another's chain or element
    intersection,  // of drawn lines
    middle,        // of a line, an arc or a segment of a chain
    perpendicular, // the foot on a line, seen from the base point
    nearest,       // anywhere on a line
};
inline constexpr int kSnapModeCount = 8;

// A set of them.
class SnapModes {
public:
    constexpr SnapModes() = default;
    constexpr SnapModes(std::initializer_list<SnapMode> modes) {
        for (const SnapMode mode : modes) {
            set(mode, true);
        }
    }
    static constexpr SnapModes all() {
        SnapModes modes;
        modes.m_bits = (1U << kSnapModeCount) - 1U;
        return modes;
    }

    [[nodiscard]] constexpr bool has(SnapMode mode) const { return (m_bits & bit(mode)) != 0; }
    [[nodiscard]] constexpr bool isEmpty() const { return m_bits == 0; }
    constexpr void set(SnapMode mode, bool on) {
        m_bits = on ? m_bits | bit(mode) : m_bits & ~bit(mode);
    }

    friend constexpr bool operator==(const SnapModes&, const SnapModes&) = default;

private:
    static constexpr unsigned bit(SnapMode mode) { return 1U << static_cast<unsigned>(mode); }

    unsigned m_bits = 0;
};

} // namespace orvex
