#include "keywords.h"

#include "PromptSource.h"
#include "textCodec.h"

namespace orvex {

namespace {

// The shortest form of a keyword that is spelt with capitals and others: "ST" of "STyle". A list
// in capitals throughout offers no shorter form.
std::wstring capitalsOf(const std::wstring& keyword) {
    std::wstring capitals;
    for (const wchar_t each : keyword) {
        if ((each >= L'A' && each <= L'Z') || (each >= L'0' && each <= L'9')) {
            capitals += each;
        }
    }
    return capitals;
}

} // namespace

std::vector<std::wstring> splitKeywords(std::wstring_view list) {
    std::vector<std::wstring> keywords;
    std::wstring keyword;
    for (const wchar_t each : list) {
        if (each == L' ' || each == L'\t') {
            if (!keyword.empty()) {
                keywords.push_back(std::move(keyword));
            }
            keyword.clear();
        } else {
            keyword += each;
        }
    }
    if (!keyword.empty()) {
        keywords.push_back(std::move(keyword));
    }
    return keywords;
}

std::optional<std::wstring> matchKeyword(const std::vector<std::wstring>& keywords,
                                         const std::wstring& typed) {
    const std::wstring folded = foldCase(typed);
    if (folded.empty()) {
        return std::nullopt;
    }
    // In full goes first: a keyword may be another one's short form.
    for (const std::wstring& keyword : keywords) {
        if (foldCase(keyword) == folded) {
            return keyword;
        }
    }
    for (const std::wstring& keyword : keywords) {
        if (capitalsOf(keyword) == folded) {
            return keyword;
        }
    }
    return std::nullopt;
}

} // namespace orvex
