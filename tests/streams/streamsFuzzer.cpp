#include "VoDwgR21Stream.h"
#include "VoFlatMemBuf.h"
#include "crashRecorder.h"
#include "hostHeap.h"

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <span>

// The first byte chooses the stream, the second is the number of operations; the rest is what they
// read. Each operation is one byte for its kind and one for its argument. Whatever the bytes are,
// the streams must stay within their buffers and come to an end, and a value that was read whole
// must be written and read again as the same.

namespace {

void require(bool condition) {
    if (!condition) {
        std::abort();
    }
}

using S = VoBitStream;

// Reads a value, which must come back from a second stream.
template <class T, auto read, auto write>
void readForm(VoDwgStream& stream) {
    T value{};
    (stream.*read)(value);
    VoFlatMemBuf buffer;
    VoBitStream copy(&buffer);
    copy.writeBits(0, static_cast<unsigned>(stream.tell() % 8));
    const std::uint64_t start = copy.tell();
    (copy.*write)(value);
    copy.seek(start, VoIO::fromStart);
    T again{};
    (copy.*read)(again);
    require(again == value);
}

void readTexts(VoDwgStream& stream) {
    char* narrow = nullptr;
    stream.readRawStr(narrow);
    std::free(narrow);
    wchar_t* wide = nullptr;
    stream.readRawStr(wide);
    std::free(wide);
    wide = nullptr;
    stream.readUnicodeString(wide);
    kdutDelString(wide);
    CStdStr<wchar_t> text;
    stream.readString(text);
    stream.writeString(text);
}

void readReferences(VoDwgStream& stream) {
    KdDbHandle handle;
    stream.readHandle(handle);
    stream.writeHandle(handle);
    KdDbObjectId id;
    std::uint8_t type = 0;
    stream.readObjectId(id, &type);
    require(type < 4 && id.isNull());
}

constexpr void (*kReads[])(VoDwgStream&) = {
    readTexts,
    readReferences,
    readForm<std::uint8_t, &S::readUInt8, &S::writeUInt8>,
    readForm<std::uint16_t, &S::readUInt16, &S::writeUInt16>,
    readForm<std::int32_t, &S::readInt32, &S::writeInt32>,
    readForm<std::uint64_t, &S::readRawUInt64, &S::writeRawUInt64>,
    readForm<double, &S::readDouble, &S::writeDouble>,
    readForm<KdGeMatrix3d, &S::readMatrix3d, &S::writeMatrix3d>,
};

void moveAbout(VoDwgStream& stream, VoFlatMemBuf& buffer, unsigned kind, std::uint8_t argument) {
    const auto type = static_cast<VoIO::SeekType>(kind % 5);
    // Near, or so far that it wraps.
    const std::uint64_t offset = (argument & 0x40U) != 0 ? ~std::uint64_t{argument} : argument;
    VoFlatMemBuf other;
    other.setlength(argument);
    VoBitStream target(&other, argument);
    switch (kind / 5 % 6) {
    case 0:
        stream.seek(offset, type);
        break;
    case 1:
        stream.seekByte(offset, type);
        break;
    case 2:
        buffer.seek(offset, type);
        break;
    case 3:
        buffer.writeByte(argument, 0x5A);
        break;
    case 4:
        buffer.copyTo(&other, offset, argument & 7U);
        buffer.copyFrom(&other, argument & 7U, offset);
        break;
    default:
        stream.readBits(&target, argument % 61, argument);
        stream.truncate();
    }
}

void copyPieces(VoDwgStream& stream, std::uint8_t argument) {
    std::uint8_t bits = 0;
    stream.readBits(bits, argument % 9U);
    unsigned char bytes[64] = {};
    stream.readBytes(bytes, argument % 65U);
    stream.writeBytes(bytes, argument % 13U);
    stream.writeBits(bits, argument % 9U);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 2) {
        return 0;
    }
    // Words about what can't be read would take most of the time.
    static CrashRecorder* const silenced = orvex::setCrashRecorder(nullptr);
    static_cast<void>(silenced);
    const std::span<const std::uint8_t> input(data, size);
    const std::size_t operations = std::min<std::size_t>(input[1], (size - 2) / 2);
    const auto content = input.subspan(2 + operations * 2);
    VoFlatMemBuf buffer;
    buffer.open(content.data(), static_cast<unsigned>(content.size()), 0);
    const std::uint64_t bits = content.size() * 8;
    const std::unique_ptr<VoDwgStream> stream =
        input[0] % 2 != 0
            ? std::unique_ptr<VoDwgStream>(std::make_unique<VoDwgR21Stream>(&buffer, bits))
            : std::make_unique<VoDwgStream>(&buffer, bits);
    stream->seek(input[0] / 2 % 8, VoIO::fromStart);
    for (std::size_t i = 0; i < operations; ++i) {
        const unsigned kind = input[2 + 2 * i];
        const std::uint8_t argument = input[3 + 2 * i];
        if (kind % 4 < 2) {
            kReads[kind / 4 % std::size(kReads)](*stream);
        } else if (kind % 4 == 2) {
            moveAbout(*stream, buffer, kind / 4, argument);
        } else {
            copyPieces(*stream, argument);
        }
        require(buffer.length() < 1U << 24);
    }
    return 0;
}
