#include "VoBitStream.h"

#include "VoMath.h"
#include "crashRecorder.h"
#include "rawText.h"
#include "streamReports.h"

#include <bit>

// The coded forms of values, all made of the bits and bytes of VoBitStream.cpp.

static_assert(std::endian::native == std::endian::little, "numbers are in the stream as in memory");

namespace {

// What the two bits in front of a number mean.
enum Code : std::uint8_t {
    kWhole = 0, // all its bits follow
    kByte = 1,  // a whole number of one byte follows
    kOne = 1,   // of a double: 1.0
    kZero = 2,  // 0
    kTwoFiftySix = 3,
};

constexpr unsigned kCodeBits = 2;
constexpr unsigned kLengthBits = 3; // of the byte count of a 64-bit number

template <class T>
void validateCoordinates(T& value) {
    VoMath::validateDoubleRange(value.x);
    VoMath::validateDoubleRange(value.y);
    if constexpr (requires { value.z; }) {
        VoMath::validateDoubleRange(value.z);
    }
}

} // namespace

bool VoBitStream::readCode(std::uint8_t& code) {
    if (!canReadBits(kCodeBits)) {
        return false;
    }
    readBits(code, kCodeBits);
    return true;
}

// Whole numbers.

void VoBitStream::readRawUInt8(std::uint8_t& value) {
    readBytes(&value, 1);
}

template <class T>
void VoBitStream::readRaw(T& value) {
    if (hasBits(sizeof value * 8)) {
        readBytes(&value, sizeof value);
        return;
    }
    // Cut off: byte by byte, so that those that are there count.
    value = 0;
    for (unsigned i = 0; i < sizeof value; ++i) {
        std::uint8_t byte = 0;
        readRawUInt8(byte);
        value = static_cast<T>(value | static_cast<T>(byte) << (8 * i));
    }
}

void VoBitStream::readRawUInt16(std::uint16_t& value) {
    readRaw(value);
}

void VoBitStream::readRawUInt32(std::uint32_t& value) {
    readRaw(value);
}

void VoBitStream::readRawUInt64(std::uint64_t& value) {
    readRaw(value);
}

void VoBitStream::writeRawUInt16(std::uint16_t value) {
    writeRawUInt8(static_cast<std::uint8_t>(value & 0xFFU));
    writeRawUInt8(static_cast<std::uint8_t>(value >> 8));
}

void VoBitStream::writeRawUInt32(std::uint32_t value) {
    writeRawUInt16(static_cast<std::uint16_t>(value & 0xFFFFU));
    writeRawUInt16(static_cast<std::uint16_t>(value >> 16));
}

void VoBitStream::writeRawUInt64(std::uint64_t value) {
    writeRawUInt32(static_cast<std::uint32_t>(value & 0xFFFFFFFFU));
    writeRawUInt32(static_cast<std::uint32_t>(value >> 32));
}

void VoBitStream::readInt8(std::int8_t& value) {
    auto bits = static_cast<std::uint8_t>(value);
    readUInt8(bits);
    value = static_cast<std::int8_t>(bits);
}

void VoBitStream::writeInt8(std::int8_t value) {
    writeUInt8(static_cast<std::uint8_t>(value));
}

void VoBitStream::writeUInt8(std::uint8_t value) {
    writeRawUInt8(value);
}

void VoBitStream::readInt16(std::int16_t& value) {
    std::uint16_t bits = 0;
    readUInt16(bits);
    value = static_cast<std::int16_t>(bits);
}

void VoBitStream::writeInt16(std::int16_t value) {
    writeUInt16(static_cast<std::uint16_t>(value));
}

void VoBitStream::readUInt16(std::uint16_t& value) {
    value = 0;
    std::uint8_t code = 0;
    if (!readCode(code)) {
        return;
    }
    if (code == kWhole) {
        readRawUInt16(value);
    } else if (code == kByte) {
        std::uint8_t byte = 0;
        readRawUInt8(byte);
        value = byte;
    } else if (code == kTwoFiftySix) {
        value = 256;
    }
}

void VoBitStream::writeUInt16(std::uint16_t value) {
    if (value == 0) {
        writeBits(kZero, kCodeBits);
    } else if (value < 256) {
        writeBits(kByte, kCodeBits);
        writeRawUInt8(static_cast<std::uint8_t>(value));
    } else if (value == 256) {
        writeBits(kTwoFiftySix, kCodeBits);
    } else {
        writeBits(kWhole, kCodeBits);
        writeRawUInt16(value);
    }
}

void VoBitStream::readInt32(std::int32_t& value) {
    std::uint32_t bits = 0;
    readUInt32(bits);
    value = static_cast<std::int32_t>(bits);
}

void VoBitStream::writeInt32(std::int32_t value) {
    writeUInt32(static_cast<std::uint32_t>(value));
}

void VoBitStream::readUInt32(std::uint32_t& value) {
    value = 0;
    std::uint8_t code = 0;
    if (!readCode(code)) {
        return;
    }
    if (code == kWhole) {
        readRawUInt32(value);
    } else if (code == kByte) {
        std::uint8_t byte = 0;
        readRawUInt8(byte);
        value = byte;
    } else if (code != kZero) {
        orvex::reportBadAccess(orvex::kUnknownUInt32Code);
    }
}

void VoBitStream::writeUInt32(std::uint32_t value) {
    if (value == 0) {
        writeBits(kZero, kCodeBits);
    } else if (value < 256) {
        writeBits(kByte, kCodeBits);
        writeRawUInt8(static_cast<std::uint8_t>(value));
    } else {
        writeBits(kWhole, kCodeBits);
        writeRawUInt32(value);
    }
}

void VoBitStream::readInt64(std::int64_t& value) {
    std::uint64_t bits = 0;
    readUInt64(bits);
    value = static_cast<std::int64_t>(bits);
}

void VoBitStream::writeInt64(std::int64_t value) {
    writeUInt64(static_cast<std::uint64_t>(value));
}

void VoBitStream::readUInt64(std::uint64_t& value) {
    value = 0;
    std::uint8_t count = 0;
    readBits(count, kLengthBits);
    for (unsigned i = 0; i < count; ++i) {
        std::uint8_t byte = 0;
        readUInt8(byte);
        // A 32-bit shift, which takes its count modulo 32 and keeps the sign of its result. So
        // byte 3 may be a negative term and byte 4 adds at bit 0 again.
        const auto term = static_cast<std::int32_t>(std::uint32_t{byte} << (i * 8 % 32));
        value += static_cast<std::uint64_t>(std::int64_t{term});
    }
}

void VoBitStream::writeUInt64(std::uint64_t value) {
    const unsigned count = (static_cast<unsigned>(std::bit_width(value)) + 7) / 8;
    if (count >= 1U << kLengthBits) {
        orvex::reportBadAccess(orvex::kNoUInt64Form);
        return;
    }
    writeBits(static_cast<std::uint8_t>(count), kLengthBits);
    for (unsigned i = 0; i < count; ++i) {
        writeUInt8(static_cast<std::uint8_t>(value >> (i * 8) & 0xFFU));
    }
}

void VoBitStream::readWChar(wchar_t& value) {
    std::uint16_t unit = 0;
    readUInt16(unit);
    value = unit;
}

void VoBitStream::writeWChar(wchar_t value) {
    writeUInt16(static_cast<std::uint16_t>(static_cast<std::uint32_t>(value) & 0xFFFFU));
}

void VoBitStream::readBool(bool& value) {
    std::uint8_t bit = value ? 1 : 0;
    readBits(bit, 1);
    value = bit != 0;
}

void VoBitStream::writeBool(bool value) {
    writeBit(value ? 1 : 0, 1);
}

// Real numbers.

void VoBitStream::readRawDouble(double& value) {
    readBytes(&value, sizeof value);
    VoMath::fixDouble(value);
}

void VoBitStream::writeRawDouble(double value) {
    VoMath::fixDouble(value);
    writeBytes(&value, sizeof value);
}

void VoBitStream::readDouble(double& value) {
    value = 0.0;
    std::uint8_t code = 0;
    if (!readCode(code)) {
        return;
    }
    if (code == kWhole) {
        readRawDouble(value);
    } else if (code == kOne) {
        value = 1.0;
    } else if (code != kZero) {
        orvex::reportBadAccess(orvex::kUnknownDoubleCode);
    }
}

void VoBitStream::writeDouble(double value) {
    if (value == 0.0) {
        writeBits(kZero, kCodeBits);
    } else if (value == 1.0) {
        writeBits(kOne, kCodeBits);
    } else {
        writeBits(kWhole, kCodeBits);
        writeRawDouble(value);
    }
}

void VoBitStream::readFloat(float& value) {
    double wide = 0.0;
    readDouble(wide);
    value = static_cast<float>(wide);
}

void VoBitStream::writeFloat(float value) {
    writeDouble(value);
}

// Points, vectors, scales and matrices: in the plane raw numbers, in space coded ones.

void VoBitStream::readPoint2d(KdGePoint2d& value) {
    readRawDouble(value.x);
    readRawDouble(value.y);
    validateCoordinates(value);
}

void VoBitStream::writePoint2d(const KdGePoint2d& value) {
    writeRawDouble(value.x);
    writeRawDouble(value.y);
}

void VoBitStream::readPoint3d(KdGePoint3d& value) {
    readDouble(value.x);
    readDouble(value.y);
    readDouble(value.z);
    validateCoordinates(value);
}

void VoBitStream::writePoint3d(const KdGePoint3d& value) {
    writeDouble(value.x);
    writeDouble(value.y);
    writeDouble(value.z);
}

void VoBitStream::readVector2d(KdGeVector2d& value) {
    readRawDouble(value.x);
    readRawDouble(value.y);
    validateCoordinates(value);
}

void VoBitStream::writeVector2d(const KdGeVector2d& value) {
    writeRawDouble(value.x);
    writeRawDouble(value.y);
}

void VoBitStream::readVector3d(KdGeVector3d& value) {
    readDouble(value.x);
    readDouble(value.y);
    readDouble(value.z);
    validateCoordinates(value);
}

void VoBitStream::writeVector3d(const KdGeVector3d& value) {
    writeDouble(value.x);
    writeDouble(value.y);
    writeDouble(value.z);
}

void VoBitStream::readScale2d(KdGeScale2d& value) {
    readRawDouble(value.sx);
    readRawDouble(value.sy);
}

void VoBitStream::writeScale2d(const KdGeScale2d& value) {
    writeRawDouble(value.sx);
    writeRawDouble(value.sy);
}

void VoBitStream::readScale3d(KdGeScale3d& value) {
    readDouble(value.sx);
    readDouble(value.sy);
    readDouble(value.sz);
}

void VoBitStream::writeScale3d(const KdGeScale3d& value) {
    writeDouble(value.sx);
    writeDouble(value.sy);
    writeDouble(value.sz);
}

void VoBitStream::readMatrix2d(KdGeMatrix2d& value) {
    KdGePoint2d origin;
    KdGeVector2d xAxis;
    KdGeVector2d yAxis;
    value.getCoordSystem(origin, xAxis, yAxis);
    readPoint2d(origin);
    readVector2d(xAxis);
    readVector2d(yAxis);
    value.setCoordSystem(origin, xAxis, yAxis);
}

void VoBitStream::writeMatrix2d(const KdGeMatrix2d& value) {
    KdGePoint2d origin;
    KdGeVector2d xAxis;
    KdGeVector2d yAxis;
    value.getCoordSystem(origin, xAxis, yAxis);
    writePoint2d(origin);
    writeVector2d(xAxis);
    writeVector2d(yAxis);
}

void VoBitStream::readMatrix3d(KdGeMatrix3d& value) {
    KdGePoint3d origin;
    KdGeVector3d xAxis;
    KdGeVector3d yAxis;
    KdGeVector3d zAxis;
    value.getCoordSystem(origin, xAxis, yAxis, zAxis);
    readPoint3d(origin);
    readVector3d(xAxis);
    readVector3d(yAxis);
    readVector3d(zAxis);
    value.setCoordSystem(origin, xAxis, yAxis, zAxis);
}

void VoBitStream::writeMatrix3d(const KdGeMatrix3d& value) {
    KdGePoint3d origin;
    KdGeVector3d xAxis;
    KdGeVector3d yAxis;
    KdGeVector3d zAxis;
    value.getCoordSystem(origin, xAxis, yAxis, zAxis);
    writePoint3d(origin);
    writeVector3d(xAxis);
    writeVector3d(yAxis);
    writeVector3d(zAxis);
}

// Texts, as in any stream; only what is left of the stream is counted in bits.

void VoBitStream::readRawStr(char*& text) {
    orvex::readRawText(*this, text, [this](std::uint64_t count) { return canRead(count); });
}

void VoBitStream::readRawStr(wchar_t*& text) {
    orvex::readRawText(*this, text, [this](std::uint64_t count) { return canRead(count); });
}
