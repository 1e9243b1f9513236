#pragma once

#include "VoIO.h"

#include <cstdint>

#pragma GCC visibility push(default)

// Something with a position that values are read from or written to. Units of positions and
// lengths are bytes, in bit streams bits.
class VoStream {
public:
    [[nodiscard]] virtual std::uint64_t tell() const = 0;
    // Gives the position afterwards.
    virtual std::uint64_t seek(std::uint64_t offset, VoIO::SeekType type) = 0;
    [[nodiscard]] virtual std::uint64_t length() const = 0;
    virtual void truncate() = 0;
    [[nodiscard]] virtual bool isEOS() const { return tell() >= length(); }

    virtual ~VoStream() = default;
};

#pragma GCC visibility pop
