#include "NumberText.h"

#include "PlainDecimal.h"
#include "blanks.h"

#include <array>
#include <charconv>
#include <cmath>

namespace orvex {

namespace {

// from_chars doesn't say which end of the range was left; the text does.
bool isTiny(std::string_view text) {
    if (const std::size_t exponent = text.find_first_of("eE"); exponent != std::string::npos) {
        return text.substr(exponent + 1).starts_with('-');
    }
    return text.find_first_not_of("-0.") > text.find('.');
}

// A plus sign is read by other programs, from_chars refuses it.
std::string_view withoutPlus(std::string_view text) {
    if (text.size() > 1 && text[0] == '+' && text[1] != '-') {
        text.remove_prefix(1);
    }
    return text;
}

template <class Number, class... Format>
std::errc parseAll(std::string_view text, Number& value, Format... format) {
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value, format...);
    return stop != end ? std::errc::invalid_argument : error;
}

std::optional<double> parseAnyReal(std::string_view text) {
    text = withoutPlus(trimBlanks(text));
    double number = 0.0;
    const std::errc error = parseAll(text, number);
    if (error == std::errc::result_out_of_range) {
        return isTiny(text) ? std::optional(0.0) : std::nullopt;
    }
    return error == std::errc() && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

} // namespace

std::optional<double> parseReal(std::string_view text) {
    const PlainDecimal plain(text);
    return plain.isExact() ? plain.value() : parseAnyReal(text);
}

std::optional<int> parseInteger(std::string_view text) {
    if (const PlainDecimal plain(text); plain.isShortInteger()) {
        return plain.integer();
    }
    int number = 0;
    const bool isInteger = parseAll(withoutPlus(trimBlanks(text)), number, 10) == std::errc();
    return isInteger ? std::optional(number) : std::nullopt;
}

std::string realText(double value) {
    std::string text;
    addRealText(text, value);
    return text;
}

void addRealText(std::string& target, double value) {
    if (!std::isfinite(value)) {
        value = 0.0;
    }
    std::array<char, 32> buffer{};
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
    const std::string_view text(buffer.data(),
                                static_cast<std::size_t>(result.ptr - buffer.data()));
    target += text;
    if (text.find_first_of(".e") == std::string::npos) {
        target += ".0";
    }
}

} // namespace orvex
