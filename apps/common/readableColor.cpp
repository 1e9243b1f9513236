#include "readableColor.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace orvex {

namespace {

constexpr double kLeastContrast = 3.0;
constexpr double kFlare = 0.05;          // of the screen, added to every luminance
constexpr double kHalfLuminance = 0.179; // where white and black stand out alike

using Linear = std::array<double, 3>; // red, green, blue

// The transfer of sRGB and back.
double linearOf(double channel) {
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double encoded(double light) {
    return light <= 0.0031308 ? light * 12.92 : 1.055 * std::pow(light, 1.0 / 2.4) - 0.055;
}

Linear linearOf(std::uint32_t rgb) {
    static const std::array<double, 256> kTable = [] {
        std::array<double, 256> table{};
        for (std::size_t i = 0; i < table.size(); ++i) {
            table[i] = linearOf(static_cast<double>(i) / 255.0);
        }
        return table;
    }();
    return {kTable[rgb >> 16U & 0xFFU], kTable[rgb >> 8U & 0xFFU], kTable[rgb & 0xFFU]};
}

double luminance(const Linear& light) {
    return 0.2126 * light[0] + 0.7152 * light[1] + 0.0722 * light[2];
}

// Rounded away from the ground, so that the contrast isn't lost to the rounding.
std::uint32_t toRgb(const Linear& light, bool up) {
    std::uint32_t rgb = 0;
    for (const double each : light) {
        const double channel = encoded(std::clamp(each, 0.0, 1.0)) * 255.0;
        const double whole = up ? std::ceil(channel) : std::floor(channel);
        rgb = rgb << 8U | static_cast<std::uint32_t>(std::clamp(whole, 0.0, 255.0));
    }
    return rgb;
}

} // namespace

double contrastOf(std::uint32_t rgb, std::uint32_t other) {
    const auto [low, high] = std::minmax({luminance(linearOf(rgb)), luminance(linearOf(other))});
    return (high + kFlare) / (low + kFlare);
}

bool isDark(std::uint32_t ground) {
    return luminance(linearOf(ground)) <= kHalfLuminance;
}

std::uint32_t readableRgb(std::uint32_t rgb, std::uint32_t ground) {
    rgb &= 0xFFFFFFU;
    if (contrastOf(rgb, ground) >= kLeastContrast) {
        return rgb;
    }
    Linear light = linearOf(rgb);
    const double own = luminance(light);
    const double below = luminance(linearOf(ground));
    if (isDark(ground)) {
        // own + t (1 - own) = 3 (below + flare) - flare
        const double white = (kLeastContrast * (below + kFlare) - kFlare - own) / (1.0 - own);
        for (double& each : light) {
            each += white * (1.0 - each);
        }
        return toRgb(light, true);
    }
    if (rgb == 0xFFFFFFU) {
        return 0; // it stands for the colour of ink, as on paper
    }
    const double target = (below + kFlare) / kLeastContrast - kFlare;
    for (double& each : light) {
        each *= target / own;
    }
    return toRgb(light, false);
}

std::uint32_t ReadableColors::operator()(std::uint32_t rgb) {
    if (!m_hasLast || rgb != m_last) {
        m_hasLast = true;
        m_last = rgb;
        m_lastReadable = readableRgb(rgb, m_ground);
    }
    return m_lastReadable;
}

} // namespace orvex
