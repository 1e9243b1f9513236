#include "blanks.h"

namespace orvex {

namespace {

template <class Text>
Text trimmed(Text text) {
    const auto isBlank = [](auto each) { return each == ' ' || each == '\t'; };
    while (!text.empty() && isBlank(text.front())) {
        text.remove_prefix(1);
    }
    while (!text.empty() && isBlank(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

} // namespace

std::string_view trimBlanks(std::string_view text) {
    return trimmed(text);
}

std::wstring_view trimBlanks(std::wstring_view text) {
    return trimmed(text);
}

} // namespace orvex
