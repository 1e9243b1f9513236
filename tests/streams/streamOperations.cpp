#include "streamOperations.h"

#include "Chance.h"
#include "VoDwgR21Stream.h"
#include "VoFlatMemBuf.h"
#include "hostHeap.h"

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <string>

namespace orvex::testing {

namespace {

using S = VoBitStream;

void require(bool condition) {
    if (!condition) {
        std::abort();
    }
}

std::span<const unsigned char> bytesOf(const VoFlatMemBuf& buffer) {
    return {buffer.buffer(), static_cast<std::size_t>(buffer.length())};
}

// One operation's stream and argument.
struct Operation {
    VoDwgStream& stream;
    VoFlatMemBuf& buffer;
    Digest& digest;
    std::uint8_t argument = 0;
    Chance chance{argument};

    double number() {
        static constexpr double kNumbers[] = {0.0, 1.0, -1.0, 1e101, -1e300, 1e-310};
        return chance.oneIn(2) ? chance.of(kNumbers) : static_cast<double>(chance.word()) / 8.0;
    }
    VoIO::SeekType seekType() { return static_cast<VoIO::SeekType>(chance.below(5)); }
    // Near, or so far that it wraps.
    [[nodiscard]] std::uint64_t offset() const {
        return (argument & 0x40U) != 0 ? ~std::uint64_t{argument} : argument;
    }
};

template <class Value>
void add(Digest& digest, const Value& value) {
    if constexpr (
        requires { value.z; } || !requires { value.x; }) {
        digest.add(value);
    } else {
        digest.add(value.x, value.y);
    }
}

// Reads a value, which must come back from a second stream.
template <class T, auto read, auto write>
void readForm(Operation& o) {
    T value{};
    (o.stream.*read)(value);
    VoFlatMemBuf buffer;
    VoBitStream copy(&buffer);
    copy.writeBits(0, static_cast<unsigned>(o.stream.tell() % 8));
    const std::uint64_t start = copy.tell();
    (copy.*write)(value);
    copy.seek(start, VoIO::fromStart);
    T again{};
    (copy.*read)(again);
    require(again == value);
    if constexpr (!std::is_same_v<T, KdGeMatrix3d>) {
        add(o.digest, value);
    }
}
template <class T, auto read>
void readOnly(Operation& o) {
    T value{};
    (o.stream.*read)(value);
    add(o.digest, value);
}

template <class T, auto write>
void writeWord(Operation& o) {
    (o.stream.*write)(static_cast<T>(o.chance.word()));
}

void readTexts(Operation& o) {
    char* narrow = nullptr;
    o.stream.readRawStr(narrow);
    o.digest.add(std::string(narrow != nullptr ? narrow : "none"));
    std::free(narrow);
    wchar_t* wide = nullptr;
    o.stream.readRawStr(wide);
    o.digest.add(wide != nullptr);
    std::free(wide);
    wide = nullptr;
    o.stream.readUnicodeString(wide);
    o.digest.add(std::wstring(wide != nullptr ? wide : L"none"));
    kdutDelString(wide);
    CStdStr<wchar_t> text(L"before");
    o.stream.readString(text);
    o.digest.add(std::wstring(static_cast<const wchar_t*>(text)));
    o.stream.writeString(text);
}

void readReferences(Operation& o) {
    KdDbHandle handle;
    o.stream.readHandle(handle);
    o.stream.writeHandle(handle);
    KdDbObjectId id;
    std::uint8_t type = 0;
    o.stream.readObjectId(id, &type);
    require(type < 4 && id.isNull());
    std::uint8_t code = 0;
    std::uint64_t value = 9;
    o.stream.readHandleParts(code, value);
    o.digest.add(type, code, value);
}

void readPieces(Operation& o) {
    std::uint8_t bits = 0;
    o.stream.readBits(bits, o.argument % 9U);
    unsigned char bytes[64] = {};
    o.stream.readBytes(bytes, o.argument % 65U);
    o.digest.add(bits, bytes);
}

void writePieces(Operation& o) {
    o.stream.writeBytes("some bytes", o.argument % 11U);
    o.stream.writeBits(o.argument, o.argument % 9U);
}

void writeTexts(Operation& o) {
    const std::wstring text(o.argument % 5U, static_cast<wchar_t>(o.chance.word()));
    o.stream.writeString(text.c_str());
    o.stream.writeUnicodeString(L"text");
    o.stream.writeRawStr("narrow");
}

void writeNumbers(Operation& o) {
    o.stream.writeDouble(o.number());
    o.stream.writePoint3d({o.number(), o.number(), o.number()});
    o.stream.writeVector2d({o.number(), o.number()});
    o.stream.writeHandleParts(o.argument & 0xFU, o.chance.word());
}

// Copies to and from another buffer, byte by byte and bit by bit.
void copy(Operation& o) {
    VoFlatMemBuf other;
    other.setlength(o.argument);
    other.seek(static_cast<std::uint64_t>(o.chance.below(30)), VoIO::fromStart);
    o.buffer.copyTo(&other, o.offset(), o.argument & 7U);
    o.buffer.copyFrom(&other, o.argument & 7U, o.offset());
    VoBitStream target(&other, o.argument);
    o.stream.readBits(&target, o.argument % 61, o.argument);
    o.digest.add(bytesOf(other), other.tell(), target.tell());
}

constexpr void (*kOperations[])(Operation&) = {
    readTexts,
    readReferences,
    readForm<std::uint8_t, &S::readUInt8, &S::writeUInt8>,
    readForm<std::uint16_t, &S::readUInt16, &S::writeUInt16>,
    readForm<std::int32_t, &S::readInt32, &S::writeInt32>,
    readForm<std::uint64_t, &S::readRawUInt64, &S::writeRawUInt64>,
    readForm<double, &S::readDouble, &S::writeDouble>,
    readForm<KdGeMatrix3d, &S::readMatrix3d, &S::writeMatrix3d>,
    readOnly<std::int8_t, &S::readInt8>,
    readOnly<std::int16_t, &S::readInt16>,
    readOnly<std::int64_t, &S::readInt64>,
    readOnly<std::uint32_t, &S::readUInt32>,
    readOnly<std::uint64_t, &S::readUInt64>,
    readOnly<std::uint32_t, &S::readRawUInt32>,
    readOnly<bool, &S::readBool>,
    readOnly<float, &S::readFloat>,
    readOnly<KdGePoint3d, &S::readPoint3d>,
    readOnly<KdGeVector3d, &S::readVector3d>,
    readOnly<KdGePoint2d, &S::readPoint2d>,
    readOnly<KdGeVector2d, &S::readVector2d>,
    readPieces,
    writePieces,
    writeTexts,
    writeNumbers,
    writeWord<std::int16_t, &S::writeInt16>,
    writeWord<std::uint32_t, &S::writeUInt32>,
    writeWord<std::uint64_t, &S::writeUInt64>,
    writeWord<std::uint16_t, &S::writeRawUInt16>,
    copy,
    [](Operation& o) { o.digest.add(o.stream.seek(o.offset(), o.seekType())); },
    [](Operation& o) { o.stream.seekByte(o.offset(), o.seekType()); },
    [](Operation& o) { o.buffer.seek(o.offset(), o.seekType()); },
    [](Operation& o) { o.buffer.writeByte(o.argument, 0x5A); },
    [](Operation& o) { o.stream.truncate(); },
};

} // namespace

void playOperations(std::span<const std::uint8_t> input, Digest& digest) {
    if (input.size() < 2) {
        return;
    }
    const std::size_t operations = std::min<std::size_t>(input[1], (input.size() - 2) / 2);
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
        Operation operation{*stream, buffer, digest, input[3 + 2 * i]};
        kOperations[input[2 + 2 * i] % std::size(kOperations)](operation);
        digest.add(stream->tell(), stream->length(), stream->isEOS(), buffer.tell(),
                   buffer.bufSize());
        require(buffer.length() < 1U << 24);
    }
    digest.add(bytesOf(buffer));
}

} // namespace orvex::testing
