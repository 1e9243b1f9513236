#include "StreamTest.h"

#include "VoBufStream.h"

#include <cstdlib>
#include <cstring>
#include <cwchar>
#include <limits>
#include <memory>

namespace {

using namespace orvex::testing;
using ::testing::ElementsAre;

struct Free {
    void operator()(void* text) const { std::free(text); }
};

class TypedStreamTest : public StreamTest {
protected:
    template <class T, class Written, class Read>
    void checkImage(void (VoOStream::*write)(Written), void (VoIStream::*read)(Read),
                    const T& value) {
        VoFlatMemBuf buffer;
        VoBufStream stream(&buffer);
        (stream.*write)(value);
        ASSERT_EQ(stream.length(), sizeof(T));
        EXPECT_EQ(stream.tell(), sizeof(T));
        T image{};
        std::memcpy(&image, buffer.buffer(), sizeof(T));
        EXPECT_EQ(image, value);
        stream.seek(0, VoIO::fromStart);
        T other{};
        (stream.*read)(other);
        EXPECT_EQ(other, value);
        EXPECT_TRUE(stream.isEOS());

        buffer.setlength(sizeof(T) - 1);
        stream.seek(0, VoIO::fromStart);
        (stream.*read)(other);
        EXPECT_EQ(other, value);
        EXPECT_EQ(stream.tell(), 0U);
        EXPECT_THAT(reports(), ElementsAre(kBufferReport));
    }
};

TEST_F(TypedStreamTest, valuesAreTheirMemoryImages) {
    using Out = VoOStream;
    using In = VoIStream;
    checkImage<std::int8_t>(&Out::writeInt8, &In::readInt8, -3);
    checkImage<std::int16_t>(&Out::writeInt16, &In::readInt16, -300);
    checkImage<std::int32_t>(&Out::writeInt32, &In::readInt32, -70000);
    checkImage<std::int64_t>(&Out::writeInt64, &In::readInt64, -(1LL << 40));
    checkImage<std::uint8_t>(&Out::writeUInt8, &In::readUInt8, 250);
    checkImage<std::uint16_t>(&Out::writeUInt16, &In::readUInt16, 65000);
    checkImage<std::uint32_t>(&Out::writeUInt32, &In::readUInt32, 4000000000U);
    checkImage<std::uint64_t>(&Out::writeUInt64, &In::readUInt64, ~std::uint64_t{5});
    checkImage<char>(&Out::writeChar, &In::readChar, 'x');
    checkImage<wchar_t>(&Out::writeWChar, &In::readWChar, static_cast<wchar_t>(0x1F600));
    checkImage<bool>(&Out::writeBool, &In::readBool, true);
    checkImage<float>(&Out::writeFloat, &In::readFloat, 0.1F);
    checkImage<double>(&Out::writeDouble, &In::readDouble, 0.1);
    checkImage<KdGePoint2d>(&Out::writePoint2d, &In::readPoint2d, {1, 2});
    checkImage<KdGePoint3d>(&Out::writePoint3d, &In::readPoint3d, {1, 2, 3e200});
    checkImage<KdGeVector2d>(&Out::writeVector2d, &In::readVector2d, {1, 2});
    checkImage<KdGeVector3d>(&Out::writeVector3d, &In::readVector3d, {1, 2, 3});
    checkImage<KdGeScale2d>(&Out::writeScale2d, &In::readScale2d, {3, 2});
    checkImage<KdGeScale3d>(&Out::writeScale3d, &In::readScale3d, {3, 2, 1});
    KdGeMatrix2d plane;
    plane.setCoordSystem({1, 2}, {3, 4}, {5, 6});
    checkImage<KdGeMatrix2d>(&Out::writeMatrix2d, &In::readMatrix2d, plane);
    KdGeMatrix3d space;
    space.setCoordSystem({1, 2, 3}, {4, 5, 6}, {7, 8, 9}, {10, 11, 12});
    checkImage<KdGeMatrix3d>(&Out::writeMatrix3d, &In::readMatrix3d, space);
    int local = 0;
    checkImage<void*>(&Out::writeAddress, &In::readAddress, &local);

    VoFlatMemBuf buffer;
    fill(buffer, {2, 0});
    bool value = false;
    VoBufStream(&buffer).readBool(value);
    EXPECT_TRUE(value) << "any image but zero is true";
}

// The place of a virtual function in the table of its class: modules call by it.
template <class Class, class Result, class... Arguments>
auto slotOf(Result (Class::*function)(Arguments...)) {
    static_assert(sizeof function == 2 * sizeof(std::ptrdiff_t));
    std::ptrdiff_t words[2];
    std::memcpy(words, &function, sizeof words);
    return (words[0] - 1) / static_cast<std::ptrdiff_t>(sizeof(void*));
}

TEST_F(TypedStreamTest, virtualFunctionsKeepTheirSlots) {
    using In = VoIStream;
    using Out = VoOStream;
    const auto in = [first = slotOf(&In::readBytes)](auto read) { return slotOf(read) - first; };
    const auto out = [first = slotOf(&Out::writeBytes)](auto write) {
        return slotOf(write) - first;
    };
    EXPECT_THAT((std::vector{in(&In::readInt8), in(&In::readUInt64), in(&In::readChar),
                             in(&In::readAddress), in(&In::readScale3d),
                             in(static_cast<void (In::*)(char*&)>(&In::readRawStr)),
                             in(static_cast<void (In::*)(wchar_t*&)>(&In::readRawStr))}),
                ElementsAre(1, 8, 9, 14, 22, 23, 24));
    EXPECT_THAT((std::vector{out(&Out::writeInt8), out(&Out::writeUInt64), out(&Out::writeChar),
                             out(&Out::writeAddress), out(&Out::writeScale3d),
                             out(static_cast<void (Out::*)(const char*)>(&Out::writeRawStr)),
                             out(static_cast<void (Out::*)(const wchar_t*)>(&Out::writeRawStr))}),
                ElementsAre(1, 8, 9, 14, 22, 23, 24));
    // What a derived class adds follows at once; a slot of its own for writeBytes comes first.
    EXPECT_EQ(in(static_cast<VoStreamBuf* (VoBufStream::*)()>(&VoBufStream::streamBuf)), 26);
}

TEST_F(TypedStreamTest, textsCarryTheirCount) {
    VoFlatMemBuf buffer;
    VoBufStream stream(&buffer);
    stream.writeRawStr("wall");
    stream.writeRawStr(static_cast<const char*>(nullptr));
    stream.writeRawStr(L"abcd"); // the first half of the memory goes out
    EXPECT_EQ(bytesOf(buffer), (Bytes{4, 0, 0, 0, 'w', 'a', 'l', 'l', 0,   0, 0, 0, //
                                      4, 0, 0, 0, 'a', 0,   0,   0,   'b', 0, 0, 0}));
    stream.seek(0, VoIO::fromStart);
    char* text = nullptr;
    stream.readRawStr(text);
    const std::unique_ptr<char, Free> owned(text);
    EXPECT_STREQ(text, "wall");
    stream.readRawStr(text);
    EXPECT_EQ(text, nullptr);
    wchar_t* wide = nullptr;
    stream.readRawStr(wide);
    const std::unique_ptr<wchar_t, Free> ownedWide(wide);
    EXPECT_STREQ(wide, L"ab");
    EXPECT_EQ(std::wmemcmp(wide + 2, L"\0\0", 3), 0);
}

TEST_F(TypedStreamTest, aCountBeyondTheStreamGivesNoText) {
    using Limits = std::numeric_limits<std::int32_t>;
    for (const std::int32_t count : {-1, 4, Limits::max(), Limits::min()}) {
        VoFlatMemBuf buffer;
        VoBufStream stream(&buffer);
        stream.writeInt32(count);
        stream.writeBytes("abc", 3);
        const auto expectNone = [&](auto* text) {
            stream.seek(0, VoIO::fromStart);
            stream.readRawStr(text);
            EXPECT_EQ(text, nullptr);
            EXPECT_EQ(stream.tell(), 4U);
            EXPECT_EQ(reports().size(), count > 0 ? 1U : 0U);
        };
        expectNone(static_cast<char*>(nullptr));
        expectNone(static_cast<wchar_t*>(nullptr));
    }
}

TEST_F(TypedStreamTest, streamsCopyWhatTheirBuffersHaveLeft) {
    VoFlatMemBuf source;
    VoFlatMemBuf target;
    setState(source, "a|bc");
    VoBufStream from(&source);
    VoBufStream to(&target);
    to.copyFrom(&from);
    EXPECT_EQ(stateOf(target), "bc|");
    target.rewind();
    from.copyTo(&to);
    EXPECT_EQ(stateOf(target), "bc|");
    EXPECT_EQ(stateOf(source), "a|bc");
    from.truncate();
    EXPECT_EQ(stateOf(source), "a|");
    VoBufStream none(nullptr);
    EXPECT_EQ(none.tell() + none.seek(1, VoIO::fromStart) + none.length(), 0U);
    EXPECT_TRUE(none.isEOS());
}

} // namespace
