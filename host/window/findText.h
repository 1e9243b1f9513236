#pragma once

#include "CStdStr.h"
#include "textCodec.h"

#include <string>

namespace orvex {

// The index of the first text following `after` that `matches`, going on at the beginning; -1 for
// none. `textAt` gives the text of an index below `count`.
template <class TextAt, class Matches>
int findText(int count, int after, TextAt textAt, Matches matches) {
    const int first = after >= 0 && after < count ? after + 1 : 0;
    for (int step = 0; step < count; ++step) {
        const int index = (first + step) % count;
        if (matches(textAt(index))) {
            return index;
        }
    }
    return -1;
}

// Comparisons by simple folding; null is empty.
class WholeText {
public:
    explicit WholeText(const wchar_t* text) : m_text(text != nullptr ? text : L"") {}
    bool operator()(const CStdStr<wchar_t>& candidate) const {
        return candidate.CompareNoCase(m_text.c_str()) == 0;
    }

private:
    std::wstring m_text;
};

class Beginning {
public:
    explicit Beginning(const wchar_t* text) : m_folded(foldCase(text != nullptr ? text : L"")) {}
    bool operator()(const CStdStr<wchar_t>& candidate) const {
        return !m_folded.empty() && foldCase(candidate.text()).starts_with(m_folded);
    }

private:
    std::wstring m_folded;
};

} // namespace orvex
