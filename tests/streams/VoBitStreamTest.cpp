#include "StreamTest.h"

#include <algorithm>
#include <array>
#include <random>

namespace {

using namespace orvex::testing;
using ::testing::ElementsAre;

class VoBitStreamTest : public StreamTest {};

std::vector<unsigned char> randomBytes(std::size_t count) {
    std::mt19937 random(2);
    std::vector<unsigned char> bytes(count);
    std::ranges::generate(bytes, [&] { return static_cast<unsigned char>(random()); });
    return bytes;
}

TEST_F(VoBitStreamTest, BitsFillBytesFromTheTop) {
    VoFlatMemBuf buffer;
    VoBitStream stream(&buffer);
    for (const int bit : {1, 0, 1, 1, 0, 0, 0}) {
        stream.writeBit(static_cast<std::uint8_t>(bit * 4), 4);
    }
    EXPECT_EQ(bytesOf(buffer), (Bytes{0xB0}));
    stream.writeBit(1, 1);
    EXPECT_EQ(bytesOf(buffer), (Bytes{0xB1, 0})); // the next byte is there already
    EXPECT_EQ(stream.length(), 8U);
    EXPECT_EQ(stream.tell(), 8U);

    stream.seek(1, VoIO::fromStart);
    stream.writeBit(2, 3); // one bit in common is enough
    stream.writeBit(2, 4);
    EXPECT_EQ(bytesOf(buffer), (Bytes{0xD1, 0}));
    EXPECT_EQ(stream.length(), 8U);
    EXPECT_EQ(bitsFrom(stream, 0), "11010001");
}

TEST_F(VoBitStreamTest, SmallNumbersOfBitsGoThereAndBackAtEveryPosition) {
    for (unsigned start = 0; start < 8; ++start) {
        for (unsigned count = 1; count <= 7; ++count) {
            for (unsigned value = 0; value < 1U << count; ++value) {
                VoFlatMemBuf buffer;
                VoBitStream stream(&buffer);
                stream.writeBits(0x55, start);
                stream.writeBits(static_cast<std::uint8_t>(value), count);
                stream.writeBits(0x7F, 7);
                ASSERT_EQ(stream.length(), start + count + 7);
                stream.seek(start, VoIO::fromStart);
                std::uint8_t got = 0xEE;
                stream.readBits(got, count);
                ASSERT_EQ(got, value) << start << ' ' << count;
                ASSERT_EQ(stream.tell(), start + count);
                stream.readBits(got, 7);
                ASSERT_EQ(got, 0x7F);
            }
        }
    }
}

TEST_F(VoBitStreamTest, OtherNumbersOfBitsAndNoBufferDoNothing) {
    VoFlatMemBuf buffer;
    fill(buffer, {0xFF, 0xFF});
    VoBitStream stream(&buffer, 16);
    for (const unsigned count : {0U, 8U, 100U, ~0U}) {
        std::uint8_t value = 3;
        stream.readBits(value, count);
        stream.writeBits(0, count);
        EXPECT_EQ(value, 3);
        EXPECT_EQ(stream.tell(), 0U);
    }
    EXPECT_EQ(bytesOf(buffer), (Bytes{0xFF, 0xFF}));

    VoBitStream none(nullptr);
    none.writeBit(1, 1);
    none.writeBits(1, 3);
    none.writeDouble(3.5);
    std::uint8_t bit = 5;
    none.readBit(bit);
    EXPECT_EQ(bit, 5);
    EXPECT_EQ(none.length(), 0U);
    EXPECT_TRUE(none.isEOS());
}

TEST_F(VoBitStreamTest, RunsOfBytesGoThereAndBackAtEveryPosition) {
    for (const unsigned count : {1U, 2U, 7U, 8U, 9U, 17U, 4096U}) {
        const std::vector<unsigned char> bytes = randomBytes(count);
        for (unsigned start = 0; start < 8; ++start) {
            VoFlatMemBuf buffer;
            VoBitStream stream(&buffer);
            stream.writeBits(0x7F, start);
            stream.writeBytes(bytes.data(), count);
            ASSERT_EQ(stream.length(), start + count * 8);
            ASSERT_EQ(buffer.length(), count + 1); // one byte more than is used
            stream.seek(0, VoIO::fromStart);
            std::uint8_t before = 0;
            stream.readBits(before, start);
            EXPECT_EQ(before, (1U << start) - 1);
            std::vector<unsigned char> got(count);
            stream.readBytes(got.data(), count);
            ASSERT_EQ(got, bytes) << count << ' ' << start;
            ASSERT_TRUE(stream.isEOS());
        }
    }
}

TEST_F(VoBitStreamTest, AByteKeepsTheBitsBehindItARunClearsThem) {
    VoFlatMemBuf buffer;
    const unsigned char zero = 0;
    fill(buffer, {0xFF, 0xFF, 0xFF});
    VoBitStream byte(&buffer, 24);
    byte.seek(3, VoIO::fromStart);
    byte.writeUInt8(0);
    EXPECT_EQ(bytesOf(buffer), (Bytes{0xE0, 0x1F, 0xFF}));

    fill(buffer, {0xFF, 0xFF, 0xFF});
    VoBitStream run(&buffer, 24);
    run.seek(3, VoIO::fromStart);
    run.writeBytes(&zero, 1);
    EXPECT_EQ(bytesOf(buffer), (Bytes{0xE0, 0x00, 0xFF}));
    EXPECT_EQ(run.length(), 24U);
}

TEST_F(VoBitStreamTest, NothingIsReadPastTheLength) {
    VoFlatMemBuf buffer;
    fill(buffer, {0xFF, 0xFF, 0xFF, 0xFF});
    VoBitStream stream(&buffer, 12);
    stream.seek(5, VoIO::fromStart);
    std::uint8_t value = 9;
    std::array<unsigned char, 3> bytes{9, 9, 9};
    stream.readUInt8(value);
    stream.readBytes(bytes.data(), 1);
    stream.readBytes(bytes.data(), 0x20000000U); // 2 to the 32 bits
    EXPECT_THAT(reports(), ElementsAre(kBitsReport, kBitsReport, kBitsReport));
    stream.readBits(value, 7);
    EXPECT_EQ(value, 0x7F);
    EXPECT_EQ(reports(), Reports{});
    stream.readBits(value, 1);
    EXPECT_THAT(reports(), ElementsAre(kBitsReport));
    EXPECT_EQ(value, 0x7F);
    EXPECT_THAT(bytes, ElementsAre(9, 9, 9));
    EXPECT_EQ(stream.tell(), 12U);
    EXPECT_EQ(VoBitStream(&buffer, 33).length(), 32U) << "at most what the buffer holds";
    EXPECT_EQ(VoBitStream(nullptr, 17).length(), 0U);
}

TEST_F(VoBitStreamTest, SingleBitsAreReadUpToTheBuffersEnd) {
    VoFlatMemBuf buffer;
    fill(buffer, {0xFF});
    VoBitStream stream(&buffer);
    std::uint8_t bit = 0;
    for (int i = 0; i < 8; ++i) {
        stream.readBit(bit);
        EXPECT_EQ(bit, 1);
    }
    EXPECT_EQ(reports(), Reports{});
    stream.readBit(bit);
    EXPECT_EQ(bit, 0);
    EXPECT_EQ(stream.tell(), 9U);
    EXPECT_THAT(reports(), ElementsAre(kBufferReport));
    stream.readUInt8(bit); // behind the length nothing is left
    EXPECT_THAT(reports(), ElementsAre(kBitsReport));
}

struct Seek {
    std::uint64_t offset;
    int type;
    std::uint64_t place;
    bool refused = false;
};

TEST_F(VoBitStreamTest, SeeksBitsWithinTheLength) {
    const Seek fromTenOfTwenty[] = {
        {0, 0, 0},  {13, 0, 13}, {20, 0, 20}, {21, 0, 10, true}, {kFar - 5, 1, 10, true},
        {0, 1, 10}, {10, 1, 20}, {5, 4, 10},  {11, 1, 10, true}, {kFar, 1, 10, true},
        {3, 2, 7},  {10, 2, 0},  {5, -1, 10}, {11, 2, 10, true}, {kFar, 2, 10, true},
        {0, 3, 20}, {20, 3, 0},  {0, 2, 10},  {21, 3, 10, true},
    };
    VoFlatMemBuf buffer;
    fill(buffer, {0x12, 0x34, 0x56});
    for (const Seek& each : fromTenOfTwenty) {
        VoBitStream stream(&buffer, 20);
        stream.seek(10, VoIO::fromStart);
        EXPECT_EQ(stream.seek(each.offset, static_cast<VoIO::SeekType>(each.type)), each.place)
            << each.offset << ' ' << each.type;
        EXPECT_EQ(reports(), Reports(each.refused ? 1 : 0, kBufferReport));
        EXPECT_EQ(bitsFrom(stream, each.place).size(), 20 - each.place);
    }
    EXPECT_EQ(VoBitStream(nullptr).seek(1, VoIO::fromStart), 0U);
}

TEST_F(VoBitStreamTest, SeeksBytesWithinTheBufferAndKeepsTheBit) {
    const Seek fromTwoOfFive[] = {
        {0, 0, 0},          {4, 0, 4},          {5, 0, 2, true}, {2, 1, 4},       {3, 1, 2, true},
        {kFar, 1, 2, true}, {1, 2, 1},          {0, 3, 5},       {2, 2, 2, true}, {4, 3, 1},
        {5, 3, 2, true},    {kFar, 2, 2, true}, {1, 4, 2},
    };
    VoFlatMemBuf buffer;
    fill(buffer, {1, 2, 3, 4, 5});
    for (const Seek& each : fromTwoOfFive) {
        VoBitStream stream(&buffer, 40);
        stream.seek(2 * 8 + 3, VoIO::fromStart);
        stream.seekByte(each.offset, static_cast<VoIO::SeekType>(each.type));
        EXPECT_EQ(stream.tell(), each.place * 8 + 3) << each.offset << ' ' << each.type;
        EXPECT_EQ(reports(), Reports(each.refused ? 1 : 0, L"Error status 3"));
    }
    VoBitStream(nullptr).seekByte(1, VoIO::fromStart);
}

TEST_F(VoBitStreamTest, CopiesARunOfBitsToAPlaceInAnotherStream) {
    VoFlatMemBuf sourceBuffer;
    fill(sourceBuffer, randomBytes(9000));
    for (const std::uint64_t count : {0U, 1U, 7U, 8U, 30U, 4096U * 8, 8193U * 8 + 5}) {
        for (const std::uint64_t place : {0U, 3U, 16U}) {
            VoFlatMemBuf targetBuffer;
            VoBitStream target(&targetBuffer);
            VoBitStream source(&sourceBuffer, 9000 * 8);
            source.seek(5, VoIO::fromStart);
            target.writeUInt32(0x12345678);
            target.seek(2, VoIO::fromStart);
            source.readBits(&target, place, place + count);
            EXPECT_EQ(source.tell(), 5 + count);
            EXPECT_EQ(target.tell(), 2U);
            EXPECT_EQ(bitsFrom(target, place).substr(0, count),
                      bitsFrom(source, 5).substr(0, count))
                << count << ' ' << place;
        }
    }
}

TEST_F(VoBitStreamTest, ARunThatIsNotThereLeavesTheTargetAtItsPlace) {
    VoFlatMemBuf sourceBuffer;
    fill(sourceBuffer, {1, 2});
    VoBitStream source(&sourceBuffer, 16);
    const std::array<std::uint64_t, 2> ranges[] = {{3, 20}, {3, 2}, {3, kFar}};
    for (const auto& [from, to] : ranges) {
        VoFlatMemBuf targetBuffer;
        VoBitStream target(&targetBuffer);
        target.writeUInt8(0xAA);
        source.readBits(&target, from, to);
        EXPECT_THAT(reports(), ElementsAre(kBitsReport));
        EXPECT_EQ(target.tell(), 3U);
        EXPECT_EQ(target.length(), 8U);
        EXPECT_EQ(source.tell(), 0U);
    }
    source.readBits(nullptr, 0, 5);
}

TEST_F(VoBitStreamTest, ABufferThatIsCutMeanwhileIsNotWrittenBehindItsEnd) {
    VoFlatMemBuf buffer;
    VoBitStream stream(&buffer);
    stream.writeUInt32(0x12345678);
    stream.writeBits(1, 3);
    buffer.close();
    stream.writeBit(1, 1);
    EXPECT_THAT(reports(), ElementsAre(kBufferReport));
    EXPECT_EQ(stream.tell(), 37U);
    stream.writeUInt8(0xFF); // makes room again
    EXPECT_EQ(stream.tell(), 45U);
    EXPECT_EQ(bytesOf(buffer), (Bytes{0, 0, 0, 0, 0x07, 0xF8}));
}

TEST_F(VoBitStreamTest, BytesOfTheBufferItselfCanBeWritten) {
    VoFlatMemBuf buffer;
    VoBitStream stream(&buffer);
    stream.writeBytes("01234567", 8);
    for (int i = 0; i < 4; ++i) {
        stream.writeBytes(buffer.buffer(), 8);
        stream.writeBit(0, 1);
    }
    stream.seek(8 * 8 + 3 * 65, VoIO::fromStart);
    std::array<char, 9> text{};
    stream.readBytes(text.data(), 8);
    EXPECT_STREQ(text.data(), "01234567");
}

} // namespace
