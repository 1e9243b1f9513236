#pragma once

#include <optional>
#include <string>

namespace orvex {

// Lengths on paper. A sheet is counted in tenths of a millimetre, which are the pixels of a picture
// that is true to scale.
constexpr int kTenthsPerMillimetre = 10;

struct PaperFormat {
    int shortSide = 0; // tenths of a millimetre
    int longSide = 0;
};

// "A0" to "A4", in any case.
std::optional<PaperFormat> parsePaper(const std::string& name);

// "1:50" is 50, "2:1" is 0.5.
std::optional<double> parseScale(const std::string& text);

// "mm", "cm", "dm", "m", "km", "in", "ft", "yd" or "mi".
std::optional<double> unitMillimetres(const std::string& name);
// The same for the number that drawings have in $INSUNITS; millimetres for 0 and for units that
// aren't known.
double unitMillimetres(int drawingUnit);

} // namespace orvex
