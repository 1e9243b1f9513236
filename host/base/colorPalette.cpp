#include "KdCmColor.h"

#include <array>
#include <limits>

namespace orvex {

namespace {

constexpr int kColors = 256;

constexpr std::uint32_t packed(int red, int green, int blue) {
    return static_cast<std::uint32_t>(red << 16 | green << 8 | blue);
}

// How much of a primary colour a hue has, in quarters; hues run in 24 steps round the circle, and
// the primary stands at step 0.
constexpr int share(int step) {
    const int distance = step > 12 ? 24 - step : step;
    return distance <= 4 ? 4 : (distance >= 8 ? 0 : 8 - distance);
}

// Indices 10 to 249: each ten belong to one hue, in five values from light to dark, the odd ones
// half mixed with white.
constexpr std::uint32_t hueColor(int index) {
    constexpr std::array<int, 5> kValues{255, 165, 127, 76, 38};
    const int hue = (index - 10) / 10;
    const int value = kValues[static_cast<std::size_t>(index % 10 / 2)];
    const bool pale = index % 2 != 0;
    const auto component = [&](int primary) {
        const int quarters = share((hue - primary + 24) % 24);
        return value * (pale ? 4 + quarters : 2 * quarters) / 8;
    };
    return packed(component(0), component(8), component(16));
}

constexpr std::array<std::uint32_t, kColors> makePalette() {
    std::array<std::uint32_t, kColors> palette{0xFFFFFF, 0xFF0000, 0xFFFF00, 0x00FF00, 0x00FFFF,
                                               0x0000FF, 0xFF00FF, 0xFFFFFF, 0x808080, 0xC0C0C0};
    for (int index = 10; index < 250; ++index) {
        palette[static_cast<std::size_t>(index)] = hueColor(index);
    }
    for (int step = 0; step < 6; ++step) {
        const int grey = 51 + 204 * step / 5;
        palette[250U + static_cast<unsigned>(step)] = packed(grey, grey, grey);
    }
    return palette;
}

constexpr std::array<std::uint32_t, kColors> kPalette = makePalette();

int squaredDistance(std::uint32_t a, std::uint32_t b) {
    int sum = 0;
    for (const int shift : {0, 8, 16}) {
        const int difference =
            static_cast<int>(a >> shift & 0xFFU) - static_cast<int>(b >> shift & 0xFFU);
        sum += difference * difference;
    }
    return sum;
}

} // namespace

std::uint32_t paletteRgb(std::uint16_t index) {
    return index < kColors ? kPalette[index] : kPalette[7];
}

std::uint16_t nearestPaletteIndex(std::uint32_t rgb) {
    std::uint16_t nearest = 1;
    int least = std::numeric_limits<int>::max();
    for (std::uint16_t index = 1; index < kColors; ++index) {
        if (const int distance = squaredDistance(kPalette[index], rgb); distance < least) {
            least = distance;
            nearest = index;
        }
    }
    return nearest;
}

} // namespace orvex
