#pragma once

#include "VoMemStreamBuf.h"
#include "VoVector.h"
#include "VoVectorFlatMemBufGrowPolicy.h"

#pragma GCC visibility push(default)

// Bytes in one piece. Starts empty at position 0. A buffer holds at most kLargestLength bytes;
// what would go beyond, or beyond the memory there is, is refused with a report. Capacity after the
// end reads as zero.
class VoFlatMemBuf : public VoMemStreamBuf {
public:
    static constexpr std::uint64_t kLargestLength = 0x7FFFFFFF;

    [[nodiscard]] std::uint64_t tell() const override { return m_position; }
    [[nodiscard]] std::uint64_t length() const override { return m_data.length(); }
    // The position stays where it is, after the end if need be.
    void setlength(std::uint64_t length) override;
    void truncate() override;
    void rewind() override { m_position = 0; }
    unsigned char* buffer() override { return m_data.data(); }
    [[nodiscard]] const unsigned char* buffer() const override { return m_data.data(); }

    // Gives 0 at the end.
    unsigned char readByte() override;
    unsigned char readByte(std::uint64_t position) override;
    // Ends the buffer after the byte, also in its middle.
    void writeByte(unsigned char byte) override;
    // Moves to the byte, not past it. At or after the end the buffer becomes as long as the
    // position, and the byte lies in the capacity right after that.
    void writeByte(std::uint64_t position, unsigned char byte) override;
    unsigned char getByte() override; // moves on, unlike all others of the name
    unsigned char getByte(std::uint64_t position) override;
    void setByte(unsigned char byte) override;
    void setByte(std::uint64_t position, unsigned char byte) override;

    void readBytes(void* target, unsigned count) override;
    void readBytes(std::uint64_t position, void* target, unsigned count) override;
    // Ends the buffer after the bytes, also in its middle.
    void writeBytes(const void* source, unsigned count) override;
    // Moves to the first of the bytes; the buffer may grow.
    void writeBytes(std::uint64_t position, const void* source, unsigned count) override;
    void getBytes(void* target, unsigned count) override;
    // May read all the capacity, not only up to the end.
    void getBytes(std::uint64_t position, void* target, unsigned count) override;
    void setBytes(const void* source, unsigned count) override;
    void setBytes(std::uint64_t position, const void* source, unsigned count) override;

    [[nodiscard]] std::uint64_t bufSize() const override { return m_data.physicalLength(); }
    void resize(unsigned count) override { setlength(count); }
    void reserve(unsigned count) override;
    // The end itself is a valid position.
    void moveTo(std::uint64_t position) override;

    // Takes a copy of the bytes, leaves `position` more after them, and moves there.
    virtual void open(const void* data, unsigned count, std::uint64_t position);
    virtual void close(); // gives the memory back

private:
    // False, with a report, when there can't be that much.
    bool changeLength(std::uint64_t length);
    bool makeRoom(std::uint64_t count);
    void copyOut(std::uint64_t position, void* target, unsigned count) const;

    VoVector<unsigned char, VoVectorFlatMemBufGrowPolicy> m_data;
    unsigned m_position = 0;
};

#pragma GCC visibility pop
