// The string class lives below this room; only its members that load a text need a library.

#include "CStdStr.h"
#include "resourceLibrary.h"

#include <array>

template <>
bool CStdStr<wchar_t>::LoadStringW(HINSTANCE library, unsigned number) {
    std::array<wchar_t, 1024> buffer{};
    const int length = ::LoadStringW(library, number, buffer.data(), buffer.size());
    m_text = buffer.data();
    return length > 0;
}

template <>
bool CStdStr<wchar_t>::LoadStringW(unsigned number) {
    return LoadStringW(nullptr, number);
}
