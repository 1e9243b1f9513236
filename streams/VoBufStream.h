#pragma once

#include "VoIOStream.h"
#include "VoStreamBuf.h"

#pragma GCC visibility push(default)

// A typed stream over a buffer, which it doesn't own. Without one it is empty and does nothing.
class VoBufStream : public VoIOStream {
public:
    explicit VoBufStream(VoStreamBuf* buffer) : m_buffer(buffer) {}

    [[nodiscard]] std::uint64_t tell() const override;
    std::uint64_t seek(std::uint64_t offset, VoIO::SeekType type) override;
    [[nodiscard]] std::uint64_t length() const override;
    void truncate() override;
    [[nodiscard]] bool isEOS() const override;
    void readBytes(void* target, unsigned count) override;
    void writeBytes(const void* source, unsigned count) override;

    virtual VoStreamBuf* streamBuf() { return m_buffer; }
    [[nodiscard]] virtual const VoStreamBuf* streamBuf() const { return m_buffer; }
    // All that the other's buffer has left, from buffer to buffer.
    virtual void copyFrom(VoBufStream* other);
    virtual void copyTo(VoBufStream* other);

protected:
    VoStreamBuf* m_buffer;
};

#pragma GCC visibility pop
