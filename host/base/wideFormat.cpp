#include "wideFormat.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cwchar>

namespace orvex {

namespace {

// Longest fraction or field that is served; a larger wish is cut to it.
constexpr int kLargestCount = 1024;

struct Directive {
    bool left = false;
    bool zeros = false;
    bool plus = false;
    int width = 0;
    int precision = -1; // none given
    int longs = 0;      // number of "l"; a "z" counts as one
    wchar_t kind = L'\0';
};

// The arguments, held so that they can be handed on by reference on every platform.
struct Arguments {
    va_list list;
};

int takeCount(const wchar_t*& pattern) {
    int count = 0;
    for (; *pattern >= L'0' && *pattern <= L'9'; ++pattern) {
        count = std::min(count * 10 + static_cast<int>(*pattern - L'0'), kLargestCount);
    }
    return count;
}

Directive takeDirective(const wchar_t*& pattern) {
    Directive directive;
    for (;; ++pattern) {
        if (*pattern == L'-') {
            directive.left = true;
        } else if (*pattern == L'0') {
            directive.zeros = true;
        } else if (*pattern == L'+') {
            directive.plus = true;
        } else {
            break;
        }
    }
    directive.width = takeCount(pattern);
    if (*pattern == L'.') {
        directive.precision = takeCount(++pattern);
    }
    for (; *pattern == L'l' || *pattern == L'h' || *pattern == L'z'; ++pattern) {
        directive.longs += *pattern != L'h' ? 1 : 0;
    }
    directive.kind = *pattern;
    if (*pattern != L'\0') {
        ++pattern;
    }
    return directive;
}

std::wstring fromAscii(const char* first, const char* last) {
    return {first, last};
}

std::wstring digits(std::uint64_t value, int base, bool capitals) {
    std::array<char, 24> buffer{};
    auto* const end = std::to_chars(buffer.begin(), buffer.end(), value, base).ptr;
    if (capitals) {
        std::transform(buffer.begin(), end, buffer.begin(), [](char digit) {
            return digit >= 'a' ? static_cast<char>(digit - 'a' + 'A') : digit;
        });
    }
    return fromAscii(buffer.begin(), end);
}

std::wstring withSign(std::wstring text, bool negative, const Directive& directive) {
    if (negative) {
        text.insert(0, 1, L'-');
    } else if (directive.plus) {
        text.insert(0, 1, L'+');
    }
    return text;
}

std::wstring integerText(const Directive& directive, Arguments& arguments) {
    if (directive.kind == L'd' || directive.kind == L'i') {
        const std::int64_t value =
            directive.longs > 0 ? va_arg(arguments.list, long) : va_arg(arguments.list, int);
        const auto size = static_cast<std::uint64_t>(value);
        return withSign(digits(value < 0 ? 0 - size : size, 10, false), value < 0, directive);
    }
    const std::uint64_t value = directive.longs > 0 ? va_arg(arguments.list, unsigned long)
                                                    : va_arg(arguments.list, unsigned);
    return digits(value, directive.kind == L'u' ? 10 : 16, directive.kind == L'X');
}

std::wstring realText(const Directive& directive, Arguments& arguments) {
    const double value = va_arg(arguments.list, double);
    const int precision = directive.precision >= 0 ? directive.precision : 6;
    auto format = std::chars_format::fixed;
    if (directive.kind == L'e') {
        format = std::chars_format::scientific;
    } else if (directive.kind == L'g') {
        format = std::chars_format::general;
    }
    // 309 digits before the point at most, and the fraction.
    std::array<char, kLargestCount + 320> buffer{};
    const auto result =
        std::to_chars(buffer.begin(), buffer.end(), std::abs(value), format, precision);
    return withSign(fromAscii(buffer.begin(), result.ptr), std::signbit(value), directive);
}

std::wstring plainText(const Directive& directive, Arguments& arguments) {
    const wchar_t* const text = va_arg(arguments.list, const wchar_t*);
    if (text == nullptr) {
        return {};
    }
    return directive.precision >= 0
               ? std::wstring(text, wcsnlen(text, static_cast<std::size_t>(directive.precision)))
               : std::wstring(text);
}

std::wstring fitted(std::wstring text, const Directive& directive) {
    const auto width = static_cast<std::size_t>(directive.width);
    if (text.size() >= width) {
        return text;
    }
    const std::size_t missing = width - text.size();
    const bool isNumber = directive.kind != L's' && directive.kind != L'c';
    if (directive.left) {
        text.append(missing, L' ');
    } else if (directive.zeros && isNumber) {
        const bool hasSign = text.front() == L'-' || text.front() == L'+';
        text.insert(hasSign ? 1 : 0, missing, L'0');
    } else {
        text.insert(0, missing, L' ');
    }
    return text;
}

// False for a directive that isn't known.
bool appendValue(std::wstring& result, const Directive& directive, Arguments& arguments) {
    switch (directive.kind) {
    case L'd':
    case L'i':
    case L'u':
    case L'x':
    case L'X':
        result += fitted(integerText(directive, arguments), directive);
        return true;
    case L'f':
    case L'e':
    case L'g':
        result += fitted(realText(directive, arguments), directive);
        return true;
    case L's':
        result += fitted(plainText(directive, arguments), directive);
        return true;
    case L'c':
        result += fitted({static_cast<wchar_t>(va_arg(arguments.list, int))}, directive);
        return true;
    case L'%':
        result += L'%';
        return true;
    default:
        return false;
    }
}

} // namespace

std::wstring formatWide(const wchar_t* pattern, va_list list) {
    std::wstring result;
    if (pattern == nullptr) {
        return result;
    }
    Arguments arguments{};
    va_copy(arguments.list, list);
    while (*pattern != L'\0') {
        const wchar_t* const start = pattern;
        if (*pattern++ != L'%') {
            result += *start;
            continue;
        }
        const Directive directive = takeDirective(pattern);
        if (!appendValue(result, directive, arguments)) {
            result += start;
            break;
        }
    }
    va_end(arguments.list);
    return result;
}

} // namespace orvex
