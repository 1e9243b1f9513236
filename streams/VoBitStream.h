#pragma once

#include "VoBufStream.h"

#pragma GCC visibility push(default)

// Values packed bit by bit as the drawing format has them: a value starts at any bit, the most
// significant bit of a byte first, and frequent values take few bits. Positions and lengths are
// bits, but for seekByte. Reading past the length and bad seeks are reported to the crash recorder.
//
// After the last byte written the buffer always has one more, so that writing can go on at any
// bit.
class VoBitStream : public VoBufStream {
public:
    // Of length 0, for writing.
    explicit VoBitStream(VoStreamBuf* buffer) : VoBufStream(buffer) {}
    // For reading what the buffer holds: so many bits, at most all of its bytes.
    VoBitStream(VoStreamBuf* buffer, std::uint64_t bitLength);

    [[nodiscard]] std::uint64_t tell() const override { return m_bytePos * 8 + m_bitIndex; }
    std::uint64_t seek(std::uint64_t offset, VoIO::SeekType type) override;
    [[nodiscard]] std::uint64_t length() const override { return m_bitLength; }
    [[nodiscard]] bool isEOS() const override { return tell() >= m_bitLength; }

    // Goes to a byte of the buffer and keeps the bit within the byte. A bad position is reported as
    // Status::badByteSeek.
    virtual void seekByte(std::uint64_t offset, VoIO::SeekType type);

    void readBytes(void* target, unsigned count) override;
    void readInt8(std::int8_t& value) override;
    void readInt16(std::int16_t& value) override;
    void readInt32(std::int32_t& value) override;
    void readInt64(std::int64_t& value) override;
    void readUInt8(std::uint8_t& value) override;
    // The coded forms: the value is 0 when the stream doesn't hold it or the code means nothing.
    void readUInt16(std::uint16_t& value) override;
    void readUInt32(std::uint32_t& value) override;
    // Terms are summed as signed 32-bit numbers, unlike they are written: only values below 2 to
    // the 31 come back as they went in.
    void readUInt64(std::uint64_t& value) override;
    void readWChar(wchar_t& value) override;
    void readBool(bool& value) override;
    void readFloat(float& value) override;
    void readDouble(double& value) override;
    // Coordinates of points and vectors, not of scales, are brought within 1e100 of 0.
    void readPoint2d(KdGePoint2d& value) override;
    void readPoint3d(KdGePoint3d& value) override;
    void readVector2d(KdGeVector2d& value) override;
    void readVector3d(KdGeVector3d& value) override;
    void readRawStr(char*& text) override;
    void readRawStr(wchar_t*& text) override;
    void readMatrix2d(KdGeMatrix2d& value) override;
    void readMatrix3d(KdGeMatrix3d& value) override;
    void readScale2d(KdGeScale2d& value) override;
    void readScale3d(KdGeScale3d& value) override;

    void writeBytes(const void* source, unsigned count) override;
    void writeInt8(std::int8_t value) override;
    void writeInt16(std::int16_t value) override;
    void writeInt32(std::int32_t value) override;
    void writeInt64(std::int64_t value) override;
    void writeUInt8(std::uint8_t value) override;
    void writeUInt16(std::uint16_t value) override;
    void writeUInt32(std::uint32_t value) override;
    // Values from 2 to the 56 on, and so all negative ones, have no form: nothing is written.
    void writeUInt64(std::uint64_t value) override;
    void writeWChar(wchar_t value) override; // the low 16 bits
    void writeBool(bool value) override;
    void writeFloat(float value) override;
    void writeDouble(double value) override;
    void writePoint2d(const KdGePoint2d& value) override; // raw doubles
    void writePoint3d(const KdGePoint3d& value) override; // coded doubles
    void writeVector2d(const KdGeVector2d& value) override;
    void writeVector3d(const KdGeVector3d& value) override;
    void writeMatrix2d(const KdGeMatrix2d& value) override;
    void writeMatrix3d(const KdGeMatrix3d& value) override;
    void writeScale2d(const KdGeScale2d& value) override;
    void writeScale3d(const KdGeScale3d& value) override;

    // 0 or 1. Continues past the length; where the buffer ends too, it reports and the bit is 0.
    virtual void readBit(std::uint8_t& bit);
    // The bit is 1 when value and test have a bit in common.
    virtual void writeBit(std::uint8_t value, std::uint8_t test);
    // 1 to 7 bits, right-aligned; other counts do nothing.
    virtual void readBits(std::uint8_t& value, unsigned count);
    virtual void writeBits(std::uint8_t value, unsigned count);
    // Copies to - from bits, from here on, to the position `from` of another stream, which then
    // returns to where it was; it stays at that position when this stream doesn't hold so many.
    virtual void readBits(VoBitStream* target, std::uint64_t from, std::uint64_t to);
    // Numbers that are zero to the format (NaN, infinities, denormal ones) pass as 0 both ways.
    virtual void readRawDouble(double& value);
    virtual void writeRawDouble(double value);
    virtual void readRawUInt64(std::uint64_t& value);
    virtual void writeRawUInt64(std::uint64_t value);

    // Whole numbers without a code, lowest byte first. Of one that the stream holds in part only,
    // the missing bytes are 0.
    void readRawUInt8(std::uint8_t& value);
    void readRawUInt16(std::uint16_t& value);
    void readRawUInt32(std::uint32_t& value);
    void writeRawUInt8(std::uint8_t value);
    void writeRawUInt16(std::uint16_t value);
    void writeRawUInt32(std::uint32_t value);

protected:
    // Whether the stream has that many bytes left; reports when it hasn't.
    [[nodiscard]] bool canRead(std::uint64_t count) const;

private:
    [[nodiscard]] bool hasBits(std::uint64_t count) const;
    // The same with a report.
    [[nodiscard]] bool canReadBits(std::uint64_t count) const;
    void moveTo(std::uint64_t position);
    void advance(unsigned bits); // at most 8
    void noteWritten();
    // The buffer's byte at the current position once the buffer is at least so long; null, with a
    // report, when it can't be.
    unsigned char* bytesWithin(std::uint64_t bufferLength);
    bool growTo(std::uint64_t bufferLength);
    template <class T>
    void readRaw(T& value);
    // The two bits before a coded value; false when there are none.
    bool readCode(std::uint8_t& code);

    std::uint64_t m_bitLength = 0; // the highest position ever written
    std::uint8_t m_mask = 128;     // the current bit within its byte
    std::uint8_t m_bitIndex = 0;   // its number, 0 for the most significant bit
    std::uint64_t m_bytePos = 0;
};

#pragma GCC visibility pop
