#include "typedAnswer.h"

#include "blanks.h"
#include "handleText.h"

#include <charconv>
#include <cmath>
#include <string>

namespace orvex {

namespace {

// Nothing for a text that isn't plain ASCII, as no number is.
std::optional<std::string> ascii(std::wstring_view text) {
    std::string result;
    result.reserve(text.size());
    for (const wchar_t each : text) {
        if (each <= 0 || each > 126) {
            return std::nullopt;
        }
        result += static_cast<char>(each);
    }
    return result;
}

// A number that is too large is a handle that nothing has.
std::optional<std::uint64_t> typedHandle(std::wstring_view text) {
    const std::optional<std::string> digits = ascii(text);
    if (!digits || digits->empty() ||
        digits->find_first_not_of("0123456789abcdefABCDEF") != std::string::npos) {
        return std::nullopt;
    }
    return parseHandle(*digits).value_or(0);
}

} // namespace

std::optional<double> parseReal(std::wstring_view text) {
    std::optional<std::string> digits = ascii(trimBlanks(text));
    if (!digits || digits->empty()) {
        return std::nullopt;
    }
    if (digits->front() == '+' && digits->size() > 1 && (*digits)[1] != '-') {
        digits->erase(0, 1);
    }
    double value = 0.0;
    const char* const end = digits->data() + digits->size();
    const auto result = std::from_chars(digits->data(), end, value);
    if (result.ec != std::errc() || result.ptr != end || !std::isfinite(value)) {
        return std::nullopt;
    }
    return value;
}

std::optional<std::uint64_t> parseHandlePick(std::wstring_view text) {
    return text.starts_with(L'#') ? typedHandle(trimBlanks(text.substr(1))) : std::nullopt;
}

} // namespace orvex
