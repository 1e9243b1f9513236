#include "paperSheet.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string_view>

namespace orvex {

namespace {

struct Unit {
    std::string_view name; // empty where only drawings have it
    int number;            // of $INSUNITS
    double millimetres;
};

constexpr double kInch = 25.4;
constexpr std::array kUnits{
    Unit{"in", 1, kInch},
    Unit{"ft", 2, 12 * kInch},
    Unit{"mi", 3, 63360 * kInch},
    Unit{"mm", 4, 1.0},
    Unit{"cm", 5, 10.0},
    Unit{"m", 6, 1e3},
    Unit{"km", 7, 1e6},
    Unit{"", 8, kInch * 1e-6},
    Unit{"", 9, kInch * 1e-3},
    Unit{"yd", 10, 36 * kInch},
    Unit{"", 11, 1e-7},
    Unit{"", 12, 1e-6},
    Unit{"", 13, 1e-3},
    Unit{"dm", 14, 100.0},
    Unit{"", 15, 1e4},
    Unit{"", 16, 1e5},
    Unit{"", 17, 1e12},
    Unit{"", 18, 1.495978707e14},
    Unit{"", 19, 9.460730472581e18},
    Unit{"", 20, 3.0856775814914e19},
};

std::optional<double> parsePositive(std::string_view text) {
    double value = 0.0;
    const char* const end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, value);
    const bool isNumber = result.ec == std::errc() && result.ptr == end;
    return isNumber && std::isfinite(value) && value > 0.0 ? std::optional(value) : std::nullopt;
}

} // namespace

std::optional<PaperFormat> parsePaper(const std::string& name) {
    constexpr std::array kSheets{PaperFormat{8410, 11890}, PaperFormat{5940, 8410},
                                 PaperFormat{4200, 5940}, PaperFormat{2970, 4200},
                                 PaperFormat{2100, 2970}};
    const bool isSheet = name.size() == 2 && (name[0] == 'A' || name[0] == 'a') && name[1] >= '0' &&
                         name[1] < '0' + static_cast<int>(kSheets.size());
    return isSheet ? std::optional(kSheets[static_cast<std::size_t>(name[1] - '0')]) : std::nullopt;
}

std::optional<double> parseScale(const std::string& text) {
    const std::size_t colon = text.find(':');
    if (colon == std::string::npos) {
        return std::nullopt;
    }
    const auto paper = parsePositive(std::string_view(text).substr(0, colon));
    const auto drawing = parsePositive(std::string_view(text).substr(colon + 1));
    if (!paper || !drawing || !std::isfinite(*drawing / *paper) || *drawing / *paper == 0.0) {
        return std::nullopt;
    }
    return *drawing / *paper;
}

std::optional<double> unitMillimetres(const std::string& name) {
    const auto* const found = std::find_if(kUnits.begin(), kUnits.end(),
                                           [&](const Unit& unit) { return unit.name == name; });
    return found != kUnits.end() && !name.empty() ? std::optional(found->millimetres)
                                                  : std::nullopt;
}

double unitMillimetres(int drawingUnit) {
    const auto* const found =
        std::find_if(kUnits.begin(), kUnits.end(),
                     [drawingUnit](const Unit& unit) { return unit.number == drawingUnit; });
    return found != kUnits.end() ? found->millimetres : 1.0;
}

} // namespace orvex
