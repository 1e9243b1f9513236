#include "compareTexts.h"

#include "wideNumbers.h"

#include <algorithm>
#include <string_view>

namespace {

// In no language but digits of ASCII.
bool isDigit(wchar_t character) {
    return character >= L'0' && character <= L'9';
}

std::wstring_view viewOf(const wchar_t* text) {
    return text != nullptr ? std::wstring_view(text) : std::wstring_view();
}

template <class Number>
int compare(Number a, Number b) {
    return static_cast<int>(a > b) - static_cast<int>(a < b);
}

} // namespace

bool IsNumber(const wchar_t* text) {
    const std::wstring_view all = viewOf(text);
    return std::all_of(all.begin(), all.end(), isDigit);
}

int NumberCompare(const wchar_t* a, const wchar_t* b) {
    return compare(_wtof(a), _wtof(b));
}

bool IsDate(const wchar_t* text) {
    constexpr std::wstring_view kPattern = L"00/00/0000";
    const std::wstring_view all = viewOf(text);
    return std::equal(all.begin(), all.end(), kPattern.begin(), kPattern.end(),
                      [](wchar_t character, wchar_t wanted) {
                          return wanted == L'0' ? isDigit(character) : character == wanted;
                      });
}

int DateCompare(const CStdStr<wchar_t>& a, const CStdStr<wchar_t>& b) {
    struct Part {
        int from;
        int count;
    };
    constexpr Part kParts[] = {{6, 4}, {3, 2}, {0, 2}}; // year, month, day
    for (const Part& part : kParts) {
        const int order =
            compare(_wtoi(a.Mid(part.from, part.count)), _wtoi(b.Mid(part.from, part.count)));
        if (order != 0) {
            return order;
        }
    }
    return 0;
}
