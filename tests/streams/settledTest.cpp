// What random operations on streams over random bytes give and leave behind: settled.

#include "Chance.h"
#include "Digest.h"
#include "StreamTest.h"
#include "VoDwgR21Stream.h"
#include "hostHeap.h"

#include <cstdlib>
#include <functional>
#include <memory>

namespace {

using namespace orvex::testing;

class SettledStreams : public StreamTest {
protected:
    Chance chance{8};
    Digest digest;

    unsigned below(std::size_t count) {
        return static_cast<unsigned>(chance.below(static_cast<int>(count)));
    }
    double number() {
        static constexpr double kNumbers[] = {0.0, 1.0, -1.0, 1e101, -1e300, 1e-310};
        return below(2) == 0 ? chance.of(kNumbers) : static_cast<double>(chance.word()) / 8.0 - 5.0;
    }
    VoIO::SeekType seekType() { return static_cast<VoIO::SeekType>(below(5)); }
    // Near the ends or far out.
    std::uint64_t offset(std::uint64_t length) {
        return below(8) == 0 ? ~std::uint64_t{below(40)} : below(length + 20);
    }
    std::vector<unsigned char> bytes() {
        std::vector<unsigned char> made(below(60));
        for (unsigned char& byte : made) {
            byte = static_cast<unsigned char>(below(3) == 0 ? below(256) : below(5));
        }
        return made;
    }

    template <class Stream, class Value, class Read>
    void addRead(Stream& stream, void (Read::*read)(Value&)) {
        Value value{};
        (stream.*read)(value);
        digest.add(value);
    }
    template <class Stream, class Point, class Read>
    void addFlat(Stream& stream, void (Read::*read)(Point&)) {
        Point point{};
        (stream.*read)(point);
        digest.add(point.x, point.y);
    }
    void readTexts(VoDwgStream& stream) {
        char* narrow = nullptr;
        stream.readRawStr(narrow);
        digest.add(std::string(narrow != nullptr ? narrow : "none"));
        std::free(narrow);
        wchar_t* wide = nullptr;
        stream.readUnicodeString(wide);
        digest.add(std::wstring(wide != nullptr ? wide : L"none"));
        kdutDelString(wide);
        CStdStr<wchar_t> text(L"before");
        stream.readString(text);
        digest.add(std::wstring(static_cast<const wchar_t*>(text)));
    }
    void operate(VoDwgStream& stream, VoFlatMemBuf& buffer);
    void addReports() {
        for (const std::wstring& report : reports()) {
            digest.add(report);
        }
    }
};

void SettledStreams::operate(VoDwgStream& stream, VoFlatMemBuf& buffer) {
    using S = VoBitStream;
    unsigned char piece[16] = {};
    std::uint8_t bits = 0;
    const std::function<void()> choices[] = {
        [&] { addRead(stream, &S::readInt8); },
        [&] { addRead(stream, &S::readInt16); },
        [&] { addRead(stream, &S::readInt32); },
        [&] { addRead(stream, &S::readInt64); },
        [&] { addRead(stream, &S::readUInt16); },
        [&] { addRead(stream, &S::readUInt32); },
        [&] { addRead(stream, &S::readUInt64); },
        [&] { addRead(stream, &S::readRawUInt16); },
        [&] { addRead(stream, &S::readRawUInt64); },
        [&] { addRead(stream, &S::readBool); },
        [&] { addRead(stream, &S::readFloat); },
        [&] { addRead(stream, &S::readDouble); },
        [&] { addRead(stream, &S::readPoint3d); },
        [&] { addRead(stream, &S::readVector3d); },
        [&] { addFlat(stream, &S::readPoint2d); },
        [&] { addFlat(stream, &S::readVector2d); },
        [&] { readTexts(stream); },
        [&] {
            std::uint8_t code = 0;
            std::uint64_t value = 9;
            stream.readHandleParts(code, value);
            digest.add(code, value);
        },
        [&] {
            stream.readBits(bits, below(9));
            stream.readBytes(piece, below(17));
            digest.add(bits, piece);
        },
        [&] { stream.writeInt16(static_cast<std::int16_t>(chance.word())); },
        [&] { stream.writeInt32(static_cast<std::int32_t>(chance.word())); },
        [&] { stream.writeUInt32(static_cast<std::uint32_t>(chance.word())); },
        [&] { stream.writeUInt64(chance.word()); },
        [&] { stream.writeRawUInt32(static_cast<std::uint32_t>(chance.word())); },
        [&] { stream.writeDouble(number()); },
        [&] {
            stream.writePoint3d({number(), number(), number()});
        },
        [&] {
            stream.writeVector2d({number(), number()});
        },
        [&] { stream.writeHandleParts(static_cast<std::uint8_t>(below(16)), chance.word()); },
        [&] {
            stream.writeString(std::wstring(below(5), static_cast<wchar_t>(chance.word())).c_str());
        },
        [&] { stream.writeUnicodeString(L"text"); },
        [&] { stream.writeRawStr("narrow"); },
        [&] { stream.writeBits(static_cast<std::uint8_t>(chance.word()), below(9)); },
        [&] { stream.writeBytes("some bytes", below(11)); },
        [&] { digest.add(stream.seek(offset(stream.length()), seekType())); },
        [&] { stream.seekByte(offset(buffer.length()), seekType()); },
        [&] { stream.truncate(); },
        [&] {
            VoFlatMemBuf other;
            fill(other, bytes());
            VoBitStream target(&other, below(60));
            const std::uint64_t from = below(80);
            stream.readBits(&target, from, from + below(90));
            digest.add(bytesOf(other), target.tell());
        },
        [&] {
            VoFlatMemBuf other;
            fill(other, bytes());
            other.seek(below(30), VoIO::fromStart);
            if (below(2) == 0) {
                buffer.copyTo(&other, below(40), below(40));
            } else {
                buffer.copyFrom(&other, below(40), below(40));
            }
            digest.add(bytesOf(other), other.tell());
        },
    };
    const unsigned choice = below(std::size(choices));
    choices[choice]();
    digest.add(choice, stream.tell(), stream.length(), stream.isEOS(), buffer.tell());
    addReports();
}

TEST_F(SettledStreams, areWhatTheyAre) {
    for (int round = 0; round < 40000; ++round) {
        VoFlatMemBuf buffer;
        fill(buffer, bytes());
        const std::uint64_t length = buffer.length() * 8 - below(buffer.length() * 8 + 1);
        const std::unique_ptr<VoDwgStream> stream =
            round % 2 == 0 ? std::make_unique<VoDwgStream>(&buffer, length)
                           : std::make_unique<VoDwgR21Stream>(&buffer, length);
        stream->seek(below(9), VoIO::fromStart);
        for (unsigned count = 1 + below(12); count > 0; --count) {
            operate(*stream, buffer);
        }
        digest.add(bytesOf(buffer));
    }
    EXPECT_EQ(digest.text(), "2A91938A294C3BB7");
}

} // namespace
