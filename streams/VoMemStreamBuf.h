#pragma once

#include "VoStreamBuf.h"

#pragma GCC visibility push(default)

// A buffer in memory. By itself it has no capacity and can't move.
class VoMemStreamBuf : public VoStreamBuf {
public:
    // Built on moveTo; a type that isn't known moves nothing.
    std::uint64_t seek(std::uint64_t offset, VoIO::SeekType type) override;

    [[nodiscard]] virtual std::uint64_t bufSize() const; // capacity in bytes
    virtual void resize(unsigned count);
    virtual void reserve(unsigned count);
    virtual void moveTo(std::uint64_t position);
};

#pragma GCC visibility pop
