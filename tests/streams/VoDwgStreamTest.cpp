#include "StreamTest.h"

#include "VoDwgR21Stream.h"
#include "hostHeap.h"

namespace {

using namespace orvex::testing;
using ::testing::ElementsAre;

using Text = CStdStr<wchar_t>;

class VoDwgStreamTest : public StreamTest {};

TEST_F(VoDwgStreamTest, handlesCountTheirBytesHighestFirst) {
    struct Case {
        std::uint8_t code;
        std::uint64_t value;
        Bytes bytes;
    };
    const Case cases[] = {
        {5, 0, {0x50}},
        {0, 0x1234, {0x02, 0x12, 0x34}},
        {4, 0xFF, {0x41, 0xFF}},
        {15, ~std::uint64_t{0}, {0xF8, 255, 255, 255, 255, 255, 255, 255, 255}},
        {0x12, 1, {0x21, 1}}, // the code's high half has no place
    };
    for (const Case& each : cases) {
        VoFlatMemBuf buffer;
        VoDwgStream stream(&buffer);
        stream.writeHandleParts(each.code, each.value);
        Bytes written = bytesOf(buffer);
        written.pop_back();
        EXPECT_EQ(written, each.bytes);
        stream.seek(0, VoIO::fromStart);
        std::uint8_t code = 0;
        std::uint64_t value = 77;
        stream.readHandleParts(code, value);
        EXPECT_EQ(code, each.bytes[0]); // with the count in it
        EXPECT_EQ(value, each.value);
        EXPECT_TRUE(stream.isEOS());
    }
    VoFlatMemBuf buffer;
    VoDwgStream stream(&buffer);
    stream.writeHandle(KdDbHandle{0xABC});
    EXPECT_EQ(bytesOf(buffer)[0], 0x02);
    stream.seek(0, VoIO::fromStart);
    KdDbHandle handle;
    stream.readHandle(handle);
    EXPECT_EQ(handle.value, 0xABCU);
}

TEST_F(VoDwgStreamTest, aHandleOfMoreThanEightBytesIsReportedAndNotRead) {
    VoFlatMemBuf buffer;
    fill(buffer, {0x29, 1, 2, 3});
    VoDwgStream stream(&buffer, 32);
    std::uint8_t code = 0;
    std::uint64_t value = 77;
    stream.readHandleParts(code, value);
    EXPECT_EQ(code, 0x29);
    EXPECT_EQ(value, 77U);
    EXPECT_EQ(stream.tell(), 8U);
    EXPECT_THAT(reports(), ElementsAre(L"Error status 67"));

    stream.seek(28, VoIO::fromStart);
    stream.readHandleParts(code, value);
    EXPECT_EQ(code, 0x29);
    EXPECT_EQ(value, 77U);
    EXPECT_THAT(reports(), ElementsAre(kBitsReport));
}

TEST_F(VoDwgStreamTest, idsAreSkippedWhenRead) {
    VoFlatMemBuf buffer;
    VoDwgStream stream(&buffer);
    int stub = 0;
    const KdDbObjectId id(reinterpret_cast<KdDbStub*>(&stub));
    stream.writeHardOwnershipId(id);
    stream.writeSoftOwnershipId(id);
    stream.writeHardPointerId(id);
    stream.writeSoftPointerId(id);
    stream.writeObjectId(id, 2);
    KdDbObjectId kept;
    stream.seek(0, VoIO::fromStart);
    for (const int type : {3, 2, 1, 0}) {
        std::uint8_t found = 9;
        stream.readObjectId(kept, &found);
        EXPECT_EQ(found, type);
    }
    stream.readObjectId(kept, nullptr);
    EXPECT_TRUE(stream.isEOS());
    stream.seek(66, VoIO::fromStart);
    stream.readHardOwnershipId(kept);
    stream.readSoftOwnershipId(kept);
    stream.readHardPointerId(kept);
    stream.readSoftPointerId(kept);
    EXPECT_TRUE(stream.isEOS());
    EXPECT_TRUE(kept.isNull());
}

TEST_F(VoDwgStreamTest, aScaleInSpaceTakesNoBits) {
    VoFlatMemBuf buffer;
    VoDwgStream stream(&buffer);
    VoBitStream& base = stream;
    base.writeScale3d({2, 3, 4});
    EXPECT_EQ(stream.length(), 0U);
    KdGeScale3d scale{5, 6, 7};
    base.readScale3d(scale);
    EXPECT_EQ(scale, (KdGeScale3d{5, 6, 7}));
    base.writeScale2d({2, 3});
    EXPECT_EQ(stream.length(), 128U);
}

TEST_F(VoDwgStreamTest, ofUnicodeTextsTheFirstHalfOfTheMemoryGoesOut) {
    VoFlatMemBuf buffer;
    VoDwgStream stream(&buffer);
    stream.writeUnicodeString(L"abcde");
    EXPECT_EQ(stream.length(), 10U + 5 * 16);
    stream.writeUnicodeString(nullptr);
    EXPECT_EQ(stream.length(), 10U + 5 * 16 + 2);
    stream.seek(0, VoIO::fromStart);
    wchar_t* text = nullptr;
    stream.readUnicodeString(text);
    EXPECT_STREQ(text, L"abc"); // ten bytes: two characters and the low half of a third
    wchar_t* const before = text;
    stream.readUnicodeString(text);
    EXPECT_EQ(text, before); // a count of 0 changes nothing
    kdutDelString(text);
}

TEST_F(VoDwgStreamTest, aCountBeyondTheStreamGivesNoUnicodeText) {
    for (const std::int32_t count : {-1, 4, 0x7FFFFFFF}) {
        VoFlatMemBuf buffer;
        VoDwgStream stream(&buffer);
        stream.writeInt32(count);
        stream.writeBytes("abcdefg", 7);
        stream.seek(0, VoIO::fromStart);
        wchar_t other = L'x';
        wchar_t* text = &other;
        stream.readUnicodeString(text);
        EXPECT_EQ(text, nullptr);
        EXPECT_EQ(reports(), count > 0 ? Reports{kBitsReport} : Reports{});
    }
}

TEST_F(VoDwgStreamTest, textsAreNarrowAndLaterUnitsOf16Bits) {
    VoFlatMemBuf buffer;
    VoDwgStream stream(&buffer);
    stream.writeBits(1, 3);
    stream.writeString(L"W\u00E4nde");
    stream.writeString(nullptr);
    EXPECT_EQ(stream.length(), 3U + 10 + 6 * 8 + 2);
    stream.seek(3, VoIO::fromStart);
    Text text(L"old");
    stream.readString(text);
    EXPECT_STREQ(text, L"W\u00E4nde");
    stream.readString(text);
    EXPECT_STREQ(text, L"");

    buffer.close();
    VoDwgR21Stream later(&buffer);
    later.writeString(L"W\u00E4nde \U0001F641");
    EXPECT_EQ(later.length(), 10U + 7 * 16);
    later.writeString(L"");
    later.seek(0, VoIO::fromStart);
    for (int i = 0; i < 2; ++i) {
        later.readString(text);
        EXPECT_STREQ(text, L"W\u00E4nde \uF641") << "cut; left as it was by no characters";
    }
}

TEST_F(VoDwgStreamTest, aCountBeyondTheStreamGivesAnEmptyText) {
    VoFlatMemBuf buffer;
    VoDwgR21Stream later(&buffer);
    later.writeInt16(3);
    later.writeBytes("abcde", 5);
    Text text(L"old");
    VoDwgStream(&buffer, later.length()).readString(text);
    EXPECT_STREQ(text, L"abc");
    later.seek(0, VoIO::fromStart);
    later.readString(text);
    EXPECT_STREQ(text, L"");
    EXPECT_THAT(reports(), ElementsAre(kBitsReport));

    VoDwgStream(&buffer, 20).readString(text);
    EXPECT_STREQ(text, L"");
    EXPECT_THAT(reports(), ElementsAre(kBitsReport));
}

} // namespace
