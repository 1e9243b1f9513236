#include "unitText.h"

#include "PromptSession.h"
#include "boundedCopy.h"
#include "geometry.h"
#include "promptStatus.h"
#include "systemVariables.h"
#include "typedAnswer.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string>

namespace {

constexpr int kTextSize = 512;
constexpr int kDecimalDegrees = 0;
constexpr int kDecimalLength = 2;

// Bits of DIMZIN for decimal numbers.
constexpr int kDropLeadingZero = 4;
constexpr int kDropTrailingZeros = 8;

// A value not below 0 with so many decimals, rounded from its shortest decimal form, so that 0.15
// is a half although its binary value lies a little below; halves go up.
std::string roundedDecimal(double value, int places) {
    std::array<char, kTextSize> buffer{};
    char* const end =
        std::to_chars(buffer.begin(), buffer.end(), value, std::chars_format::fixed).ptr;
    std::string digits(buffer.begin(), end);
    std::size_t point = digits.find('.');
    if (point == std::string::npos) {
        point = digits.size();
        digits += '.';
    }
    const std::size_t wanted = point + 1 + static_cast<std::size_t>(places);
    const bool up = digits.size() > wanted && digits[wanted] >= '5';
    digits.resize(wanted, '0');
    if (up) {
        std::size_t i = digits.size();
        while (i > 0 && (digits[i - 1] == '9' || digits[i - 1] == '.')) {
            --i;
            digits[i] = digits[i] == '9' ? '0' : '.';
        }
        if (i > 0) {
            ++digits[i - 1];
        } else {
            digits.insert(0, 1, '1');
        }
    }
    if (places == 0) {
        digits.pop_back();
    }
    return digits;
}

int zeroRule() {
    resbuf value;
    return kdedGetVar(L"DIMZIN", &value) == kPromptNormal ? value.resval.rint
                                                          : orvex::PromptSession::current().dimzin;
}

std::string decimalText(double value, int precision) {
    // With 309 digits before the point the text still fits the buffer.
    std::string text = roundedDecimal(std::abs(value), std::clamp(precision, 0, 100));
    const bool isZero = text.find_first_not_of("0.") == std::string::npos;
    const int rule = zeroRule();
    if ((rule & kDropTrailingZeros) != 0 && text.find('.') != std::string::npos) {
        text.erase(text.find_last_not_of('0') + 1);
        if (text.ends_with('.')) {
            text.pop_back();
        }
    }
    if ((rule & kDropLeadingZero) != 0 && text.starts_with("0.")) {
        text.erase(0, 1);
    }
    return value < 0.0 && !isZero ? '-' + text : text;
}

Status writeText(double value, int precision, wchar_t* text) {
    const std::string narrow = decimalText(value, precision);
    const std::wstring wide(narrow.begin(), narrow.end());
    wcscpy_s(text, kTextSize, wide.c_str());
    return Status::done;
}

} // namespace

Status kddbAngToS(double radians, int unit, int precision, wchar_t* text) {
    if (text == nullptr) {
        return Status::invalidInput;
    }
    *text = L'\0';
    const double degrees = orvex::toDegrees(radians);
    if (unit != kDecimalDegrees || !std::isfinite(degrees)) {
        return Status::invalidInput;
    }
    return writeText(degrees, precision, text);
}

Status kddbAngToF(const wchar_t* text, int unit, double* radians) {
    if (text == nullptr || radians == nullptr || unit != kDecimalDegrees) {
        return Status::invalidInput;
    }
    const std::optional<double> degrees = orvex::parseReal(text);
    if (!degrees) {
        return Status::invalidInput;
    }
    *radians = orvex::toRadians(*degrees);
    return Status::done;
}

Status kddbRToS(double value, int unit, int precision, wchar_t* text) {
    if (text == nullptr) {
        return Status::invalidInput;
    }
    *text = L'\0';
    if (unit != kDecimalLength || !std::isfinite(value)) {
        return Status::invalidInput;
    }
    return writeText(value, precision, text);
}
