#pragma once

#include "VoDwgStream.h"

#pragma GCC visibility push(default)

// The drawing stream of the later format version: texts are 16-bit units.
class VoDwgR21Stream : public VoDwgStream {
public:
    using VoDwgStream::VoDwgStream;

    // A 16-bit count and as many UTF-16 units, each of which becomes one character. A count of 0
    // or less leaves the text alone, one beyond the stream's end empties it.
    void readString(CStdStr<wchar_t>& text) override;
    // Characters lose what is above 16 bits. A text whose length has 16 low bits of 0 goes out as
    // its count alone, any other one as a whole.
    void writeString(const wchar_t* text) override;
};

#pragma GCC visibility pop
