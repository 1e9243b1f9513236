#include "CStdStr.h"

#include "textCodec.h"
#include "wideFormat.h"

#include <QChar>

#include <algorithm>
#include <climits>
#include <cstdarg>

namespace {

// One form for all letters that differ by case alone. Small letters, so that texts sort as the C
// library's comparisons would sort them: "_" comes before every letter.
char32_t folded(wchar_t character) {
    const auto value = static_cast<char32_t>(character);
    if (value < 0x80) {
        return value >= U'A' && value <= U'Z' ? value + (U'a' - U'A') : value;
    }
    return value > 0x10FFFF ? value : QChar::toLower(QChar::toUpper(value));
}

int positionOf(std::size_t found) {
    return found <= static_cast<std::size_t>(INT_MAX) ? static_cast<int>(found) : -1;
}

} // namespace

int StrCmpI(const wchar_t* a, const wchar_t* b) {
    a = a != nullptr ? a : L"";
    b = b != nullptr ? b : L"";
    for (;; ++a, ++b) {
        const char32_t left = folded(*a);
        const char32_t right = folded(*b);
        if (left != right) {
            return left < right ? -1 : 1;
        }
        if (left == 0) {
            return 0;
        }
    }
}

template <class Char>
CStdStr<Char>::CStdStr(const Char* text) {
    if (text != nullptr) {
        m_text = text;
    }
}

template <class Char>
CStdStr<Char>::CStdStr(std::basic_string<Char> text) : m_text(std::move(text)) {}

template <class Char>
CStdStr<Char>& CStdStr<Char>::operator=(const Char* text) {
    if (text != nullptr) {
        m_text = text;
    } else {
        m_text.clear();
    }
    return *this;
}

template <class Char>
CStdStr<Char>& CStdStr<Char>::operator+=(const CStdStr& text) {
    m_text += text.m_text;
    return *this;
}

template <class Char>
CStdStr<Char>& CStdStr<Char>::operator+=(const Char* text) {
    if (text != nullptr) {
        m_text += text;
    }
    return *this;
}

template <class Char>
CStdStr<Char>& CStdStr<Char>::operator+=(Char character) {
    m_text += character;
    return *this;
}

template <class Char>
CStdStr<Char>& CStdStr<Char>::appendNarrow(const char* text) {
    if (text != nullptr) {
        m_text += orvex::widen(text);
    }
    return *this;
}

template <class Char>
int CStdStr<Char>::Find(Char character, int from) const {
    return positionOf(m_text.find(character, static_cast<std::size_t>(std::max(from, 0))));
}

template <class Char>
int CStdStr<Char>::Find(const Char* text, int from) const {
    if (text == nullptr) {
        return -1;
    }
    return positionOf(m_text.find(text, static_cast<std::size_t>(std::max(from, 0))));
}

template <class Char>
int CStdStr<Char>::ReverseFind(Char character) const {
    return positionOf(m_text.rfind(character));
}

template <class Char>
CStdStr<Char> CStdStr<Char>::Mid(int from) const {
    return Mid(from, GetLength());
}

template <class Char>
CStdStr<Char> CStdStr<Char>::Mid(int from, int count) const {
    const int start = std::clamp(from, 0, GetLength());
    return CStdStr(m_text.substr(static_cast<std::size_t>(start),
                                 static_cast<std::size_t>(std::max(count, 0))));
}

template <class Char>
CStdStr<Char>& CStdStr<Char>::Trim() {
    constexpr Char kBlanks[] = {' ', '\t', '\n', '\v', '\f', '\r', '\0'};
    m_text.erase(m_text.find_last_not_of(kBlanks) + 1);
    m_text.erase(0, m_text.find_first_not_of(kBlanks));
    return *this;
}

template <class Char>
int CStdStr<Char>::CompareNoCase(const Char* text) const {
    return StrCmpI(m_text.c_str(), text);
}

template <class Char>
void CStdStr<Char>::Format(const Char* pattern, ...) {
    va_list arguments;
    va_start(arguments, pattern);
    // Made aside: the pattern or an argument may be this very text.
    m_text = orvex::formatWide(pattern, arguments);
    va_end(arguments);
}

// Texts from resource libraries are loaded by the members that stand with the libraries.
template class CStdStr<wchar_t>;
