#include "wideNumbers.h"

#include <algorithm>
#include <charconv>
#include <climits>
#include <limits>
#include <string>

namespace {

bool isDigit(wchar_t character) {
    return character >= L'0' && character <= L'9';
}

// Passes over blanks and a sign; true when the sign is a minus.
bool takeSign(const wchar_t*& text) {
    while (*text == L' ' || (*text >= L'\t' && *text <= L'\r')) {
        ++text;
    }
    const bool negative = *text == L'-';
    if (negative || *text == L'+') {
        ++text;
    }
    return negative;
}

void takeDigits(const wchar_t*& text, std::string& number) {
    for (; isDigit(*text); ++text) {
        number += static_cast<char>(*text);
    }
}

// The decimal number at the start of a text in the characters that std::from_chars reads; empty
// when there is none.
std::string leadingNumber(const wchar_t* text) {
    std::string number;
    takeDigits(text, number);
    bool hasDigits = !number.empty();
    if (*text == L'.') {
        number += '.';
        takeDigits(++text, number);
        hasDigits = hasDigits || number.size() > 1;
    }
    if (!hasDigits) {
        return {};
    }
    if (*text == L'e' || *text == L'E') {
        const wchar_t* exponent = text + 1;
        std::string tail = "e";
        if (*exponent == L'-' || *exponent == L'+') {
            tail += static_cast<char>(*exponent++);
        }
        if (isDigit(*exponent)) {
            takeDigits(exponent, tail);
            number += tail;
        }
    }
    return number;
}

// Whether a number that no double holds is too large rather than too small: its first digit other
// than 0 stands left of the point once the exponent has moved it.
bool isTooLarge(const std::string& number) {
    const std::size_t mantissaEnd = std::min(number.find('e'), number.size());
    const std::size_t point = std::min(number.find('.'), mantissaEnd);
    const std::size_t first = number.find_first_of("123456789");
    const auto power = static_cast<long long>(point) - static_cast<long long>(first);
    if (mantissaEnd == number.size()) {
        return power > 0;
    }
    const bool down = number[mantissaEnd + 1] == '-';
    const bool hasSign = down || number[mantissaEnd + 1] == '+';
    unsigned long long shift = 0;
    const char* const end = number.data() + number.size();
    const auto result =
        std::from_chars(number.data() + mantissaEnd + (hasSign ? 2 : 1), end, shift);
    constexpr unsigned long long kFar = LLONG_MAX;
    if (result.ec != std::errc() || shift > kFar) {
        return !down;
    }
    const auto distance = static_cast<long long>(shift);
    return down ? power > distance : power > -distance;
}

} // namespace

int _wtoi(const wchar_t* text) {
    if (text == nullptr) {
        return 0;
    }
    const bool negative = takeSign(text);
    long long value = 0;
    for (; isDigit(*text) && value <= INT_MAX; ++text) {
        value = value * 10 + (*text - L'0');
    }
    if (negative) {
        value = -value;
    }
    if (value > INT_MAX) {
        return INT_MAX;
    }
    return value < INT_MIN ? INT_MIN : static_cast<int>(value);
}

double _wtof(const wchar_t* text) {
    if (text == nullptr) {
        return 0.0;
    }
    const bool negative = takeSign(text);
    const std::string number = leadingNumber(text);
    double value = 0.0;
    const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
    if (result.ec == std::errc::result_out_of_range) {
        // An infinite number would spread through every computation after it.
        value = isTooLarge(number) ? std::numeric_limits<double>::max() : 0.0;
    } else if (result.ec != std::errc()) {
        return 0.0;
    }
    return negative ? -value : value;
}
