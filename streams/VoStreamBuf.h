#pragma once

#include "VoIO.h"

#include <cstdint>

#pragma GCC visibility push(default)

// A buffer of bytes with a position. Operations called read and write move the position; those
// called get and set, and all that are given a position, are meant to leave it, with the
// exceptions noted. A bad access is reported to the crash recorder and changes nothing; what was to
// be read stays as it was.
class VoStreamBuf {
public:
    virtual ~VoStreamBuf() = default;

    [[nodiscard]] virtual bool isEOS() const;
    [[nodiscard]] virtual std::uint64_t tell() const = 0;
    [[nodiscard]] virtual std::uint64_t length() const = 0;
    virtual void setlength(std::uint64_t length);
    virtual void truncate(); // to the current position
    virtual void rewind();
    // The bytes themselves, owned by the buffer and good until it changes; null when it has none
    // to show.
    virtual unsigned char* buffer();
    [[nodiscard]] virtual const unsigned char* buffer() const;
    // Gives the position afterwards.
    virtual std::uint64_t seek(std::uint64_t offset, VoIO::SeekType type) = 0;

    virtual unsigned char readByte();
    virtual unsigned char readByte(std::uint64_t position);
    virtual void writeByte(unsigned char byte);
    virtual void writeByte(std::uint64_t position, unsigned char byte);
    virtual unsigned char getByte();
    virtual unsigned char getByte(std::uint64_t position);
    virtual void setByte(unsigned char byte);
    virtual void setByte(std::uint64_t position, unsigned char byte);

    // Of the forms with a position, those at the current position move it here, the others bring
    // it back; none of them makes the buffer longer.
    virtual void readBytes(void* target, unsigned count) = 0;
    virtual void readBytes(std::uint64_t position, void* target, unsigned count);
    virtual void writeBytes(const void* source, unsigned count) = 0;
    virtual void writeBytes(std::uint64_t position, const void* source, unsigned count);
    virtual void getBytes(void* target, unsigned count);
    virtual void getBytes(std::uint64_t position, void* target, unsigned count);
    virtual void setBytes(const void* source, unsigned count);
    virtual void setBytes(std::uint64_t position, const void* source, unsigned count);

    // From another buffer to this one's position. With both bounds 0 all that the source has left;
    // else as many bytes as the bounds are apart, from the smaller one on, in either order. The
    // source gets its position back unless nothing was to be copied.
    virtual void copyFrom(VoStreamBuf* source, std::uint64_t from, std::uint64_t to);
    // From this buffer's position to another one. The bounds are positions in the target, and its
    // length limits a copy without bounds. This buffer gets its position back.
    virtual void copyTo(VoStreamBuf* target, std::uint64_t from, std::uint64_t to);

protected:
    VoStreamBuf() = default;
    VoStreamBuf(const VoStreamBuf&) = default;
    VoStreamBuf& operator=(const VoStreamBuf&) = default;

    // Whether the bytes lie before the end of something `size` long; reports when they don't.
    static bool holds(std::uint64_t size, std::uint64_t position, std::uint64_t count);
};

#pragma GCC visibility pop
