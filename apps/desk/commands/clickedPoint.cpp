#include "clickedPoint.h"

#include "textCodec.h"
#include "userFrame.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace orvex {

namespace {

constexpr int kMostDecimals = 9;

double rounded(double value, int decimals) {
    const double scale = std::pow(10.0, decimals);
    const double result = std::round(value * scale) / scale;
    return std::isfinite(result) && result != 0.0 ? result : 0.0; // a zero without a sign
}

std::string numberText(double value) {
    std::array<char, 400> buffer{}; // of the largest number in full
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                   std::chars_format::fixed);
    return {buffer.data(), end.ptr};
}

} // namespace

int worthwhileDecimals(double unitsPerPixel) {
    if (!(unitsPerPixel > 0.0)) {
        return 0;
    }
    return std::clamp(static_cast<int>(std::ceil(-std::log10(unitsPerPixel))), 0, kMostDecimals);
}

KdGePoint3d clickedPoint(double worldX, double worldY, double unitsPerPixel) {
    const KdGePoint3d place = worldToUser({worldX, worldY, 0.0});
    const int decimals = worthwhileDecimals(unitsPerPixel) + 1;
    return {rounded(place.x, decimals), rounded(place.y, decimals), rounded(place.z, decimals)};
}

KdGePoint3d exactPoint(double worldX, double worldY) {
    const KdGePoint3d place = worldToUser({worldX, worldY, 0.0});
    return {place.x + 0.0, place.y + 0.0, place.z + 0.0}; // zeros without a sign
}

std::wstring pointText(const KdGePoint3d& point) {
    std::string text = numberText(point.x) + ',' + numberText(point.y);
    if (point.z != 0.0) {
        text += ',' + numberText(point.z);
    }
    return widen(text);
}

} // namespace orvex
