#include "StreamTest.h"

#include "VoBufStream.h"

#include <cstdlib>
#include <cwchar>
#include <limits>
#include <memory>

namespace {

using namespace orvex::testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

struct Free {
    void operator()(void* text) const { std::free(text); }
};

class TypedStreamTest : public StreamTest {
protected:
    // Writes a value, checks the size of its image, and reads it back into a value that differs.
    template <class T, class Written, class Read>
    void checkImage(void (VoOStream::*write)(Written), void (VoIStream::*read)(Read),
                    const T& value, T other, unsigned size) {
        VoFlatMemBuf buffer;
        VoBufStream stream(&buffer);
        (stream.*write)(value);
        EXPECT_EQ(stream.length(), size);
        EXPECT_EQ(stream.tell(), size);
        stream.seek(0, VoIO::fromStart);
        (stream.*read)(other);
        EXPECT_EQ(other, value);
        EXPECT_TRUE(stream.isEOS());

        buffer.setlength(size - 1);
        stream.seek(0, VoIO::fromStart);
        T kept = other;
        (stream.*read)(kept);
        EXPECT_EQ(kept, other);
        EXPECT_EQ(stream.tell(), 0U);
        EXPECT_THAT(reports(), ElementsAre(kBufferReport));
    }
};

TEST_F(TypedStreamTest, ValuesAreTheirMemoryImages) {
    using Out = VoOStream;
    using In = VoIStream;
    checkImage<std::int8_t>(&Out::writeInt8, &In::readInt8, -3, 0, 1);
    checkImage<std::int16_t>(&Out::writeInt16, &In::readInt16, -300, 0, 2);
    checkImage<std::int32_t>(&Out::writeInt32, &In::readInt32, -70000, 0, 4);
    checkImage<std::int64_t>(&Out::writeInt64, &In::readInt64, -(1LL << 40), 0, 8);
    checkImage<std::uint8_t>(&Out::writeUInt8, &In::readUInt8, 250, 0, 1);
    checkImage<std::uint16_t>(&Out::writeUInt16, &In::readUInt16, 65000, 0, 2);
    checkImage<std::uint32_t>(&Out::writeUInt32, &In::readUInt32, 4000000000U, 0, 4);
    checkImage<std::uint64_t>(&Out::writeUInt64, &In::readUInt64, ~std::uint64_t{5}, 0, 8);
    checkImage<char>(&Out::writeChar, &In::readChar, 'x', ' ', 1);
    checkImage<wchar_t>(&Out::writeWChar, &In::readWChar, static_cast<wchar_t>(0x1F600), L' ', 4);
    checkImage<bool>(&Out::writeBool, &In::readBool, true, false, 1);
    checkImage<float>(&Out::writeFloat, &In::readFloat, 0.1F, 0.0F, 4);
    checkImage<double>(&Out::writeDouble, &In::readDouble, 0.1, 0.0, 8);
    checkImage<KdGePoint2d>(&Out::writePoint2d, &In::readPoint2d, {1, 2}, {}, 16);
    checkImage<KdGePoint3d>(&Out::writePoint3d, &In::readPoint3d, {1, 2, 3e200}, {}, 24);
    checkImage<KdGeVector2d>(&Out::writeVector2d, &In::readVector2d, {1, 2}, {}, 16);
    checkImage<KdGeVector3d>(&Out::writeVector3d, &In::readVector3d, {1, 2, 3}, {}, 24);
    checkImage<KdGeScale2d>(&Out::writeScale2d, &In::readScale2d, {3, 2}, {}, 16);
    checkImage<KdGeScale3d>(&Out::writeScale3d, &In::readScale3d, {3, 2, 1}, {}, 24);
    KdGeMatrix2d plane;
    plane.setCoordSystem({1, 2}, {3, 4}, {5, 6});
    checkImage<KdGeMatrix2d>(&Out::writeMatrix2d, &In::readMatrix2d, plane, {}, 72);
    KdGeMatrix3d space;
    space.setCoordSystem({1, 2, 3}, {4, 5, 6}, {7, 8, 9}, {10, 11, 12});
    checkImage<KdGeMatrix3d>(&Out::writeMatrix3d, &In::readMatrix3d, space, {}, 128);
    int local = 0;
    checkImage<void*>(&Out::writeAddress, &In::readAddress, &local, nullptr, 8);
}

TEST_F(TypedStreamTest, AnyImageButZeroIsTrue) {
    VoFlatMemBuf buffer;
    fill(buffer, {2, 0}, 0);
    VoBufStream stream(&buffer);
    bool value = false;
    stream.readBool(value);
    EXPECT_TRUE(value);
    stream.readBool(value);
    EXPECT_FALSE(value);
}

TEST_F(TypedStreamTest, NarrowTextsCarryTheirCount) {
    VoFlatMemBuf buffer;
    VoBufStream stream(&buffer);
    stream.writeRawStr("wall");
    stream.writeRawStr(static_cast<const char*>(nullptr));
    EXPECT_EQ(bytesOf(buffer), (Bytes{4, 0, 0, 0, 'w', 'a', 'l', 'l', 0, 0, 0, 0}));
    stream.seek(0, VoIO::fromStart);
    char* text = nullptr;
    stream.readRawStr(text);
    const std::unique_ptr<char, Free> owned(text);
    EXPECT_STREQ(text, "wall");
    stream.readRawStr(text);
    EXPECT_EQ(text, nullptr);
}

TEST_F(TypedStreamTest, OfWideTextsTheFirstHalfOfTheMemoryGoesOut) {
    VoFlatMemBuf buffer;
    VoBufStream stream(&buffer);
    stream.writeRawStr(L"abcd");
    EXPECT_EQ(bytesOf(buffer), (Bytes{4, 0, 0, 0, 'a', 0, 0, 0, 'b', 0, 0, 0}));
    stream.seek(0, VoIO::fromStart);
    wchar_t* text = nullptr;
    stream.readRawStr(text);
    const std::unique_ptr<wchar_t, Free> owned(text);
    EXPECT_STREQ(text, L"ab");
    EXPECT_EQ(std::wmemcmp(text + 2, L"\0\0", 3), 0);
}

TEST_F(TypedStreamTest, ACountBeyondTheStreamGivesNoText) {
    for (const std::int32_t count : {-1, 4, std::numeric_limits<std::int32_t>::max(),
                                     std::numeric_limits<std::int32_t>::min()}) {
        VoFlatMemBuf buffer;
        VoBufStream stream(&buffer);
        stream.writeInt32(count);
        stream.writeBytes("abc", 3);
        for (int i = 0; i < 2; ++i) {
            stream.seek(0, VoIO::fromStart);
            char* narrow = nullptr;
            wchar_t* wide = nullptr;
            if (i == 0) {
                stream.readRawStr(narrow);
            } else {
                stream.readRawStr(wide);
            }
            EXPECT_EQ(narrow, nullptr);
            EXPECT_EQ(wide, nullptr);
            EXPECT_EQ(stream.tell(), 4U);
            EXPECT_EQ(reports().size(), count > 0 ? 1U : 0U);
        }
    }
}

TEST_F(TypedStreamTest, AStreamWithoutABufferIsEmpty) {
    VoBufStream stream(nullptr);
    VoFlatMemBuf buffer;
    VoBufStream other(&buffer);
    stream.writeDouble(5);
    double value = 3;
    stream.readDouble(value);
    EXPECT_EQ(value, 3);
    EXPECT_EQ(stream.tell() + stream.length() + stream.seek(5, VoIO::fromStart), 0U);
    EXPECT_TRUE(stream.isEOS());
    stream.truncate();
    stream.copyFrom(&other);
    stream.copyTo(&other);
    other.copyFrom(&stream);
    other.copyTo(nullptr);
    EXPECT_EQ(stream.streamBuf(), nullptr);
    EXPECT_EQ(other.streamBuf(), &buffer);
    EXPECT_THAT(reports(), IsEmpty());
}

TEST_F(TypedStreamTest, StreamsCopyWhatTheirBuffersHaveLeft) {
    VoFlatMemBuf source;
    VoFlatMemBuf target;
    fill(source, {1, 2, 3}, 1);
    VoBufStream from(&source);
    VoBufStream to(&target);
    to.copyFrom(&from);
    EXPECT_EQ(bytesOf(target), (Bytes{2, 3}));
    target.rewind();
    from.copyTo(&to);
    EXPECT_EQ(bytesOf(target), (Bytes{2, 3}));
    EXPECT_EQ(from.tell(), 1U);
    from.truncate();
    EXPECT_EQ(bytesOf(source), (Bytes{1}));
}

} // namespace
