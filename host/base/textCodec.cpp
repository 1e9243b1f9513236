#include "textCodec.h"

#include <QChar>

#include <cstdint>

namespace orvex {

namespace {

constexpr char32_t kReplacement = 0xFFFD;
constexpr char32_t kLastCodePoint = 0x10FFFF;

bool isCodePoint(char32_t value) {
    return value <= kLastCodePoint && !(value >= 0xD800 && value <= 0xDFFF);
}

// The bytes that follow a first byte, 0 to 3; -1 when it can't be a first one.
int followers(std::uint8_t first) {
    if (first < 0x80) {
        return 0;
    }
    if (first >= 0xC2 && first <= 0xDF) {
        return 1;
    }
    if (first >= 0xE0 && first <= 0xEF) {
        return 2;
    }
    return first >= 0xF0 && first <= 0xF4 ? 3 : -1;
}

// Takes one code point off the front. A byte that starts none is taken alone, so that the text
// after it is found again.
char32_t takeCodePoint(std::string_view& bytes) {
    constexpr char32_t kLeast[] = {0, 0x80, 0x800, 0x10000};
    const auto first = static_cast<std::uint8_t>(bytes.front());
    const int count = followers(first);
    char32_t value = kReplacement;
    std::size_t taken = 1;
    if (count == 0) {
        value = first;
    } else if (count > 0 && bytes.size() > static_cast<std::size_t>(count)) {
        char32_t sum = first & (0x3FU >> count);
        bool good = true;
        for (int i = 1; i <= count; ++i) {
            const auto next = static_cast<std::uint8_t>(bytes[static_cast<std::size_t>(i)]);
            good = good && (next & 0xC0U) == 0x80;
            sum = sum << 6 | (next & 0x3FU);
        }
        if (good && sum >= kLeast[count] && isCodePoint(sum)) {
            value = sum;
            taken = static_cast<std::size_t>(count) + 1;
        }
    }
    bytes.remove_prefix(taken);
    return value;
}

void appendUtf8(std::string& bytes, char32_t value) {
    const auto tail = [value](int shift) {
        return static_cast<char>(0x80U | (value >> shift & 0x3FU));
    };
    if (value < 0x80) {
        bytes += static_cast<char>(value);
    } else if (value < 0x800) {
        bytes += {static_cast<char>(0xC0U | value >> 6), tail(0)};
    } else if (value < 0x10000) {
        bytes += {static_cast<char>(0xE0U | value >> 12), tail(6), tail(0)};
    } else {
        bytes += {static_cast<char>(0xF0U | value >> 18), tail(12), tail(6), tail(0)};
    }
}

} // namespace

std::wstring widen(std::string_view utf8) {
    std::wstring text;
    text.reserve(utf8.size());
    while (!utf8.empty()) {
        text += static_cast<wchar_t>(takeCodePoint(utf8));
    }
    return text;
}

std::string narrow(std::wstring_view text) {
    std::string bytes;
    bytes.reserve(text.size());
    for (const wchar_t character : text) {
        const auto value = static_cast<char32_t>(character);
        appendUtf8(bytes, isCodePoint(value) ? value : kReplacement);
    }
    return bytes;
}

std::wstring foldCase(std::wstring_view text) {
    std::wstring folded(text);
    for (wchar_t& character : folded) {
        if (character >= L'a' && character <= L'z') {
            character -= L'a' - L'A';
        } else if (const auto value = static_cast<char32_t>(character);
                   value >= 0x80 && isCodePoint(value)) {
            character = static_cast<wchar_t>(QChar::toUpper(value));
        }
    }
    return folded;
}

bool equalWithoutCase(std::wstring_view a, std::wstring_view b) {
    return foldCase(a) == foldCase(b);
}

} // namespace orvex
