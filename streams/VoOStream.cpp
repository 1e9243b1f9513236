#include "VoOStream.h"

#include "VoCharOp.h"

#include <algorithm>
#include <climits>
#include <cwchar>

namespace {

template <class T>
void writeImage(VoOStream& stream, const T& value) {
    stream.writeBytes(&value, sizeof value);
}

} // namespace

void VoOStream::writeInt8(std::int8_t value) {
    writeImage(*this, value);
}

void VoOStream::writeInt16(std::int16_t value) {
    writeImage(*this, value);
}

void VoOStream::writeInt32(std::int32_t value) {
    writeImage(*this, value);
}

void VoOStream::writeInt64(std::int64_t value) {
    writeImage(*this, value);
}

void VoOStream::writeUInt8(std::uint8_t value) {
    writeImage(*this, value);
}

void VoOStream::writeUInt16(std::uint16_t value) {
    writeImage(*this, value);
}

void VoOStream::writeUInt32(std::uint32_t value) {
    writeImage(*this, value);
}

void VoOStream::writeUInt64(std::uint64_t value) {
    writeImage(*this, value);
}

void VoOStream::writeChar(char value) {
    writeImage(*this, value);
}

void VoOStream::writeWChar(wchar_t value) {
    writeImage(*this, value);
}

void VoOStream::writeBool(bool value) {
    writeImage(*this, value);
}

void VoOStream::writeFloat(float value) {
    writeImage(*this, value);
}

void VoOStream::writeDouble(double value) {
    writeImage(*this, value);
}

void VoOStream::writeAddress(const void* value) {
    writeImage(*this, value);
}

void VoOStream::writePoint2d(const KdGePoint2d& value) {
    writeImage(*this, value);
}

void VoOStream::writePoint3d(const KdGePoint3d& value) {
    writeImage(*this, value);
}

void VoOStream::writeVector2d(const KdGeVector2d& value) {
    writeImage(*this, value);
}

void VoOStream::writeVector3d(const KdGeVector3d& value) {
    writeImage(*this, value);
}

void VoOStream::writeMatrix2d(const KdGeMatrix2d& value) {
    writeImage(*this, value);
}

void VoOStream::writeMatrix3d(const KdGeMatrix3d& value) {
    writeImage(*this, value);
}

void VoOStream::writeScale2d(const KdGeScale2d& value) {
    writeImage(*this, value);
}

void VoOStream::writeScale3d(const KdGeScale3d& value) {
    writeImage(*this, value);
}

void VoOStream::writeRawStr(const char* text) {
    const int count = VoCharOp::numOfChars(text);
    writeInt32(count);
    if (count > 0) {
        writeBytes(text, static_cast<unsigned>(count));
    }
}

void VoOStream::writeRawStr(const wchar_t* text) {
    const std::size_t length = text != nullptr ? std::wcslen(text) : 0;
    const auto count = static_cast<std::int32_t>(std::min<std::size_t>(length, INT_MAX));
    writeInt32(count);
    if (count > 0) {
        writeBytes(text, static_cast<unsigned>(count) * 2);
    }
}
