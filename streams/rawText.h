#pragma once

#include "VoIStream.h"

#include <cstdint>
#include <cstdlib>

namespace orvex {

// Reads a count and a text of one byte a character, of wide text two: the caller owns it and gives
// it back with free. The count comes from the stream, so `canRead` is asked whether the stream has
// so many bytes left; the text is null when it hasn't, for no characters and without memory.
template <class Char, class CanRead>
void readRawText(VoIStream& stream, Char*& text, CanRead&& canRead) {
    constexpr unsigned kBytes = sizeof(Char) == 1 ? 1 : 2;
    std::int32_t count = 0;
    stream.readInt32(count);
    text = nullptr;
    if (count <= 0 || !canRead(static_cast<std::uint64_t>(count) * kBytes)) {
        return;
    }
    text = static_cast<Char*>(std::calloc(static_cast<std::size_t>(count) + 1, sizeof(Char)));
    if (text != nullptr) {
        stream.readBytes(text, static_cast<unsigned>(count) * kBytes);
    }
}

} // namespace orvex
