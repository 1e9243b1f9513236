#include "VoDwgR21Stream.h"
#include "VoFlatMemBuf.h"
#include "hostHeap.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <memory>
#include <span>

// The first byte chooses the stream, the second says how many operations follow; the rest is what
// they read. Each operation is one byte for its kind and one for its argument. Whatever the bytes
// are, the streams must stay within their buffers and come to an end, and a value that was read
// whole must be written and read again as the same.

namespace {

using Input = std::span<const std::uint8_t>;

void require(bool condition) {
    if (!condition) {
        std::abort();
    }
}

using Step = void (*)(VoDwgStream&);
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

template <class Character>
void readRawText(VoDwgStream& stream) {
    Character* text = nullptr;
    stream.readRawStr(text);
    std::free(text);
}

void readUnicodeText(VoDwgStream& stream) {
    wchar_t* text = nullptr;
    stream.readUnicodeString(text);
    kdutDelString(text);
}

void readIds(VoDwgStream& stream) {
    KdDbObjectId id;
    std::uint8_t type = 0;
    stream.readHardOwnershipId(id);
    stream.readObjectId(id, &type);
    require(type < 4 && id.isNull());
}

void readHandle(VoDwgStream& stream) {
    KdDbHandle handle;
    stream.readHandle(handle);
    stream.writeHandle(handle);
}

void readText(VoDwgStream& stream) {
    CStdStr<wchar_t> text;
    stream.readString(text);
    stream.writeString(text);
}

constexpr Step kTexts[] = {readRawText<char>, readRawText<wchar_t>, readUnicodeText, readText};
constexpr Step kReferences[] = {readHandle, readIds};
constexpr Step kValues[] = {
    readForm<std::uint8_t, &S::readUInt8, &S::writeUInt8>,
    readForm<std::uint16_t, &S::readUInt16, &S::writeUInt16>,
    readForm<std::int32_t, &S::readInt32, &S::writeInt32>,
    readForm<std::uint64_t, &S::readRawUInt64, &S::writeRawUInt64>,
    readForm<bool, &S::readBool, &S::writeBool>,
    readForm<double, &S::readDouble, &S::writeDouble>,
    readForm<KdGeMatrix2d, &S::readMatrix2d, &S::writeMatrix2d>,
    readForm<KdGeMatrix3d, &S::readMatrix3d, &S::writeMatrix3d>,
};

void play(std::span<const Step> steps, unsigned kind, VoDwgStream& stream) {
    steps[kind % steps.size()](stream);
}
// Far, near and wrapping offsets out of one byte.
std::uint64_t offsetOf(std::uint8_t argument) {
    const std::uint64_t near = argument & 0x3FU;
    return (argument & 0x40U) != 0 ? ~near : near;
}

void moveAbout(VoDwgStream& stream, VoFlatMemBuf& buffer, unsigned kind, std::uint8_t argument) {
    const auto type = static_cast<VoIO::SeekType>(kind % 5);
    const std::uint64_t offset = offsetOf(argument);
    switch (kind / 5 % 9) {
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
        buffer.setlength(argument);
        break;
    case 4:
        buffer.writeByte(argument, 0x5A);
        break;
    case 5:
        buffer.copyFrom(&buffer, argument & 7U, offset);
        break;
    case 6: {
        VoFlatMemBuf other;
        other.setlength(argument);
        buffer.copyTo(&other, offset, argument & 7U);
        other.copyFrom(&buffer, offset, kind % 3);
        break;
    }
    case 7:
        stream.truncate();
        break;
    default: {
        VoFlatMemBuf other;
        VoBitStream target(&other);
        target.writeBytes("0123456", argument % 8);
        stream.readBits(&target, argument % 61, argument);
    }
    }
}

void readPieces(VoDwgStream& stream, std::uint8_t argument) {
    std::uint8_t bits = 0;
    stream.readBits(bits, argument % 9U);
    stream.readBit(bits);
    require(bits < 2);
    std::array<unsigned char, 64> bytes{};
    stream.readBytes(bytes.data(), argument % 65U);
    stream.writeBytes(bytes.data(), argument % 13U);
    stream.writeBits(bits, argument % 9U);
}

void operate(VoDwgStream& stream, VoFlatMemBuf& buffer, std::uint8_t kind, std::uint8_t argument) {
    const unsigned detail = kind / 5;
    switch (kind % 5) {
    case 0:
        return play(kTexts, detail, stream);
    case 1:
        return play(kReferences, detail, stream);
    case 2:
        return play(kValues, detail, stream);
    case 3:
        return moveAbout(stream, buffer, detail, argument);
    default:
        return readPieces(stream, argument);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 2) {
        return 0;
    }
    const Input input(data, size);
    const std::size_t operations = std::min<std::size_t>(input[1], (size - 2) / 2);
    const Input content = input.subspan(2 + operations * 2);
    VoFlatMemBuf buffer;
    buffer.open(content.data(), static_cast<unsigned>(content.size()), 0);
    buffer.setlength(content.size());
    const std::uint64_t bits = content.size() * 8;
    std::unique_ptr<VoDwgStream> stream;
    if (input[0] % 2 != 0) {
        stream = std::make_unique<VoDwgR21Stream>(&buffer, bits);
    } else {
        stream = std::make_unique<VoDwgStream>(&buffer, bits);
    }
    stream->seek(input[0] / 2 % 8, VoIO::fromStart);
    for (std::size_t i = 0; i < operations; ++i) {
        operate(*stream, buffer, input[2 + 2 * i], input[3 + 2 * i]);
        require(buffer.length() < 1U << 24);
    }
    return 0;
}
