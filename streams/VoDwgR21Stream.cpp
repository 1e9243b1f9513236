#include "VoDwgR21Stream.h"

#include <algorithm>
#include <climits>
#include <cwchar>
#include <string>
#include <vector>

void VoDwgR21Stream::readString(CStdStr<wchar_t>& text) {
    std::int16_t count = 0;
    readInt16(count);
    if (count < 1) {
        return;
    }
    const unsigned bytes = static_cast<unsigned>(count) * 2;
    if (!canRead(bytes)) {
        text.Empty();
        return;
    }
    std::vector<std::uint16_t> units(static_cast<std::size_t>(count));
    readBytes(units.data(), bytes);
    // Up to the first terminator, if the text has one inside.
    const std::wstring characters(units.begin(), units.end());
    text = characters.c_str();
}

void VoDwgR21Stream::writeString(const wchar_t* text) {
    const std::size_t length = text != nullptr ? std::wcslen(text) : 0;
    const std::size_t count = std::min<std::size_t>(length, INT_MAX);
    writeInt16(static_cast<std::int16_t>(count & 0xFFFFU));
    if ((count & 0xFFFFU) == 0) {
        return;
    }
    std::vector<std::uint16_t> units(count);
    std::transform(text, text + count, units.begin(), [](wchar_t character) {
        return static_cast<std::uint16_t>(static_cast<std::uint32_t>(character) & 0xFFFFU);
    });
    writeBytes(units.data(), static_cast<unsigned>(count * 2));
}
