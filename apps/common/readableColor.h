#pragma once

#include <cstdint>

namespace orvex {

// What the ground of the plan is painted with, 0xRRGGBB.
inline constexpr std::uint32_t kDarkGround = 0x1E2127;
inline constexpr std::uint32_t kLightGround = 0xFAFAF7;

// The contrast of two colours, from 1 to 21: (L1 + 0.05) / (L2 + 0.05) of their relative
// luminances, the lighter one above. (WCAG 2.1, contrast ratio.)
double contrastOf(std::uint32_t rgb, std::uint32_t other);

// The colour as it can be read on the ground: itself where the contrast is 3 at least, else mixed
// in linear light with just as much white on a dark ground, or darkened on a light one, where white
// becomes black.
std::uint32_t readableRgb(std::uint32_t rgb, std::uint32_t ground);

// Whether marks stand out on it by light rather than by shade.
bool isDark(std::uint32_t ground);

// The same for many colours on one ground; the last one is remembered, since entities have few.
class ReadableColors {
public:
    explicit ReadableColors(std::uint32_t ground) : m_ground(ground) {}

    [[nodiscard]] std::uint32_t ground() const { return m_ground; }
    std::uint32_t operator()(std::uint32_t rgb);

private:
    std::uint32_t m_ground;
    std::uint32_t m_last = 0;
    std::uint32_t m_lastReadable = 0;
    bool m_hasLast = false;
};

} // namespace orvex
