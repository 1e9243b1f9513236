#include "VoIStream.h"

#include "crashRecorder.h"
#include "rawText.h"
#include "streamReports.h"

namespace {

template <class T>
void readImage(VoIStream& stream, T& value) {
    stream.readBytes(&value, sizeof value);
}

// Whether the stream has that many bytes left; reports when it hasn't.
bool canRead(const VoIStream& stream, std::uint64_t count) {
    const std::uint64_t position = stream.tell();
    const std::uint64_t length = stream.length();
    if (position <= length && count <= length - position) {
        return true;
    }
    orvex::reportBadAccess(orvex::kOutOfBuffer);
    return false;
}

} // namespace

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
    orvex::readRawText(*this, text, [this](std::uint64_t count) { return canRead(*this, count); });
}

void VoIStream::readRawStr(wchar_t*& text) {
    orvex::readRawText(*this, text, [this](std::uint64_t count) { return canRead(*this, count); });
}
