#pragma once

#include "HINSTANCE.h"

#include <string>

// The string class of commands and dialogs. A value: a copy is a copy. Comparisons ignore case by
// simple folding and no function follows the user's locale. Defined for wchar_t.
template <class Char>
class CStdStr {
public:
    CStdStr() = default;
    CStdStr(const Char* text); // null gives an empty string
    explicit CStdStr(std::basic_string<Char> text);

    CStdStr& operator=(const Char* text);
    CStdStr& operator+=(const CStdStr& text);
    CStdStr& operator+=(const Char* text);
    CStdStr& operator+=(Char character);
    // Narrow text is UTF-8.
    CStdStr& appendNarrow(const char* text);

    operator const Char*() const { return m_text.c_str(); }
    [[nodiscard]] const Char* c_str() const { return m_text.c_str(); }
    [[nodiscard]] const std::basic_string<Char>& text() const { return m_text; }

    [[nodiscard]] int GetLength() const { return static_cast<int>(m_text.size()); }
    [[nodiscard]] bool IsEmpty() const { return m_text.empty(); }
    void Empty() { m_text.clear(); }

    // Positions are -1 when there is none.
    [[nodiscard]] int Find(Char character, int from = 0) const;
    [[nodiscard]] int Find(const Char* text, int from = 0) const;
    [[nodiscard]] int ReverseFind(Char character) const;

    // Any index or count is brought inside the text.
    [[nodiscard]] CStdStr Mid(int from) const;
    [[nodiscard]] CStdStr Mid(int from, int count) const;
    CStdStr& Trim(); // ASCII white space at both ends

    [[nodiscard]] int CompareNoCase(const Char* text) const;
    // Understands %d, %u, %ls, %s, %%, %f and %.Nf; the decimal separator is the point.
    void Format(const Char* pattern, ...);

    // From the current resource handle, or from a given one (null: the current one). At most 1023
    // characters; a missing text leaves the string empty. True when more than 0 characters came.
    bool LoadStringW(unsigned number);
    bool LoadStringW(HINSTANCE library, unsigned number);

    friend CStdStr operator+(CStdStr a, const CStdStr& b) {
        a += b;
        return a;
    }
    friend CStdStr operator+(CStdStr a, const Char* b) {
        a += b;
        return a;
    }
    friend bool operator==(const CStdStr& a, const CStdStr& b) { return a.m_text == b.m_text; }
    friend bool operator==(const CStdStr& a, const Char* b) {
        return a.m_text == CStdStr(b).m_text;
    }

private:
    std::basic_string<Char> m_text;
};

// Both texts ignoring case; below 0, 0 or above 0. Null reads as empty.
int StrCmpI(const wchar_t* a, const wchar_t* b);
