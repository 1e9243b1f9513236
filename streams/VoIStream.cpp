#include "VoIStream.h"

#include "crashRecorder.h"
#include "streamReports.h"

#include <cstdlib>

namespace {

template <class T>
void readImage(VoIStream& stream, T& value) {
    stream.readBytes(&value, sizeof value);
}

// Room for the characters and a terminator, all zero; null when there is no memory.
template <class Char>
Char* newText(std::int32_t count) {
    return static_cast<Char*>(std::calloc(static_cast<std::size_t>(count) + 1, sizeof(Char)));
}

} // namespace

bool VoIStream::canRead(std::uint64_t count) {
    const std::uint64_t place = tell();
    const std::uint64_t size = length();
    if (place <= size && count <= size - place) {
        return true;
    }
    orvex::reportBadAccess(orvex::kOutOfBuffer);
    return false;
}

void VoIStream::readInt8(std::int8_t& value) {
    readImage(*this, value);
}

void VoIStream::readInt16(std::int16_t& value) {
    readImage(*this, value);
}

void VoIStream::readInt32(std::int32_t& value) {
    readImage(*this, value);
}

void VoIStream::readInt64(std::int64_t& value) {
    readImage(*this, value);
}

void VoIStream::readUInt8(std::uint8_t& value) {
    readImage(*this, value);
}

void VoIStream::readUInt16(std::uint16_t& value) {
    readImage(*this, value);
}

void VoIStream::readUInt32(std::uint32_t& value) {
    readImage(*this, value);
}

void VoIStream::readUInt64(std::uint64_t& value) {
    readImage(*this, value);
}

void VoIStream::readChar(char& value) {
    readImage(*this, value);
}

void VoIStream::readWChar(wchar_t& value) {
    readImage(*this, value);
}

void VoIStream::readBool(bool& value) {
    // Not straight into the bool, which may hold no other image than 0 and 1.
    unsigned char image = value ? 1 : 0;
    readImage(*this, image);
    value = image != 0;
}

void VoIStream::readFloat(float& value) {
    readImage(*this, value);
}

void VoIStream::readDouble(double& value) {
    readImage(*this, value);
}

void VoIStream::readAddress(void*& value) {
    readImage(*this, value);
}

void VoIStream::readPoint2d(KdGePoint2d& value) {
    readImage(*this, value);
}

void VoIStream::readPoint3d(KdGePoint3d& value) {
    readImage(*this, value);
}

void VoIStream::readVector2d(KdGeVector2d& value) {
    readImage(*this, value);
}

void VoIStream::readVector3d(KdGeVector3d& value) {
    readImage(*this, value);
}

void VoIStream::readMatrix2d(KdGeMatrix2d& value) {
    readImage(*this, value);
}

void VoIStream::readMatrix3d(KdGeMatrix3d& value) {
    readImage(*this, value);
}

void VoIStream::readScale2d(KdGeScale2d& value) {
    readImage(*this, value);
}

void VoIStream::readScale3d(KdGeScale3d& value) {
    readImage(*this, value);
}

void VoIStream::readRawStr(char*& text) {
    std::int32_t count = 0;
    readInt32(count);
    text = nullptr;
    // The count comes from the stream, so it is believed only as far as the stream goes.
    if (count <= 0 || !canRead(static_cast<std::uint64_t>(count))) {
        return;
    }
    text = newText<char>(count);
    if (text != nullptr) {
        readBytes(text, static_cast<unsigned>(count));
    }
}

void VoIStream::readRawStr(wchar_t*& text) {
    std::int32_t count = 0;
    readInt32(count);
    text = nullptr;
    if (count <= 0 || !canRead(static_cast<std::uint64_t>(count) * 2)) {
        return;
    }
    text = newText<wchar_t>(count);
    if (text != nullptr) {
        readBytes(text, static_cast<unsigned>(count) * 2);
    }
}
