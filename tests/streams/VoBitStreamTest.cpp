#include "StreamTest.h"

#include <algorithm>
#include <array>
#include <random>
#include <sstream>

namespace {

using namespace orvex::testing;
using ::testing::ElementsAre;

class VoBitStreamTest : public StreamTest {};

// Doesn't show its bytes, so that they have to be copied.
class HiddenBuf : public VoFlatMemBuf {
    unsigned char* buffer() override { return nullptr; }
    [[nodiscard]] const unsigned char* buffer() const override { return nullptr; }
};

TEST_F(VoBitStreamTest, writesAndReadsMatchAModelOfBits) {
    std::mt19937 random(2);
    const auto below = [&](std::size_t count) { return static_cast<unsigned>(random() % count); };
    for (int round = 0; round < 300; ++round) {
        VoFlatMemBuf buffer;
        VoBitStream stream(&buffer);
        std::string model;
        for (int i = 0; i < 40; ++i) {
            const unsigned place = below(model.size() + 1);
            stream.seek(place, VoIO::fromStart);
            const unsigned count = 1 + below(7);
            const auto value = static_cast<std::uint8_t>(below(256));
            std::string text = bits(value, count);
            const unsigned kind = below(3);
            if (kind == 0) {
                stream.writeBits(value & 0x7FU, count);
            } else if (kind == 1) {
                text = bits(value, 8);
                stream.writeUInt8(value);
            } else {
                const std::vector<unsigned char> bytes(std::size_t{2} * count, value);
                stream.writeBytes(bytes.data(), 2 * count);
                text.clear();
                for (unsigned k = 0; k < 2 * count; ++k) {
                    text += bits(value, 8);
                }
            }
            model.replace(place, text.size(), text);
            const std::size_t end = place + text.size();
            // A run clears what stands after it in its last byte.
            for (std::size_t at = end; kind == 2 && at % 8 != 0 && at < model.size(); ++at) {
                model[at] = '0';
            }
            ASSERT_EQ(stream.tell(), end);
            ASSERT_EQ(stream.length(), model.size());
        }
        ASSERT_EQ(bitsFrom(stream, 0), model);
        ASSERT_EQ(buffer.length(), model.size() / 8 + 1); // the next byte is there already
        HiddenBuf hidden;
        hidden.open(buffer.buffer(), static_cast<unsigned>(buffer.length()), 0);
        VoBitStream copies(&hidden, model.size());
        stream.seek(0, VoIO::fromStart);
        for (std::size_t at = 0; at + 24 < model.size();) {
            std::array<unsigned char, 2> bytes{};
            std::uint8_t value = 0xEE;
            const unsigned count = 1 + below(7);
            stream.readBits(value, count);
            stream.readBytes(bytes.data(), 2);
            ASSERT_EQ(bits(value, count) + bits(bytes[0], 8) + bits(bytes[1], 8),
                      model.substr(at, count + 16));
            std::array<unsigned char, 2> copied{};
            copies.seek(at + count, VoIO::fromStart);
            copies.readBytes(copied.data(), 2);
            ASSERT_EQ(copied, bytes);
            at += count + 16;
        }
    }
}

TEST_F(VoBitStreamTest, otherNumbersOfBitsDoNothing) {
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
}

TEST_F(VoBitStreamTest, nothingIsReadPastTheLength) {
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

TEST_F(VoBitStreamTest, singleBitsAreReadUpToTheBuffersEnd) {
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
    stream.readUInt8(bit); // after the length nothing is left
    EXPECT_THAT(reports(), ElementsAre(kBitsReport));
}

// Where each type of seek leads to, written "offset>position"; "x" where it is refused.
struct Seeks {
    VoIO::SeekType type;
    const char* offsets;
};

template <class Seek>
void checkSeeks(const std::vector<Seeks>& table, Seek&& seek) {
    for (const Seeks& row : table) {
        std::istringstream in(row.offsets);
        std::string word;
        while (in >> word) {
            const std::size_t mark = word.find('>');
            const std::string offset = word.substr(0, mark);
            EXPECT_EQ(seek(offset == "far" ? kFar : std::stoull(offset), row.type),
                      word.substr(mark + 1))
                << word << " of type " << row.type;
        }
    }
}

constexpr auto kNoSeek = static_cast<VoIO::SeekType>(4);

TEST_F(VoBitStreamTest, seeksBitsWithinTheLength) {
    VoFlatMemBuf buffer;
    fill(buffer, {0x12, 0x34, 0x56});
    checkSeeks({{VoIO::fromStart, "0>0 13>13 20>20 21>x"},
                {VoIO::forward, "0>10 10>20 11>x far>x"},
                {VoIO::backward, "0>10 3>7 10>0 11>x far>x"},
                {VoIO::fromEnd, "0>20 20>0 21>x"},
                {kNoSeek, "5>10"}},
               [&](std::uint64_t offset, VoIO::SeekType type) {
                   VoBitStream stream(&buffer, 20); // of 24 bits
                   stream.seek(10, VoIO::fromStart);
                   const std::uint64_t position = stream.seek(offset, type);
                   const bool refused = reports() == Reports{kBufferReport};
                   EXPECT_EQ(bitsFrom(stream, position).size(), 20 - position);
                   return refused && position == 10 ? "x" : std::to_string(position);
               });
    EXPECT_EQ(VoBitStream(nullptr).seek(1, VoIO::fromStart), 0U);
}

TEST_F(VoBitStreamTest, seeksBytesWithinTheBufferAndKeepsTheBit) {
    VoFlatMemBuf buffer;
    fill(buffer, {1, 2, 3, 4, 5});
    checkSeeks({{VoIO::fromStart, "0>0 4>4 5>x"},
                {VoIO::forward, "2>4 3>x far>x"},
                {VoIO::backward, "1>1 2>x far>x"},
                {VoIO::fromEnd, "0>5 4>1 5>x"},
                {kNoSeek, "1>2"}},
               [&](std::uint64_t offset, VoIO::SeekType type) {
                   VoBitStream stream(&buffer, 40);
                   stream.seek(2 * 8 + 3, VoIO::fromStart);
                   stream.seekByte(offset, type);
                   EXPECT_EQ(stream.tell() % 8, 3U);
                   const bool refused = reports() == Reports{L"Error status 3"};
                   return refused && stream.tell() == 19 ? "x" : std::to_string(stream.tell() / 8);
               });
    VoBitStream(nullptr).seekByte(1, VoIO::fromStart);
}

TEST_F(VoBitStreamTest, copiesBitsToAPositionInAnotherStream) {
    std::mt19937 random(3);
    std::vector<unsigned char> bytes(9000);
    std::ranges::generate(bytes, [&] { return static_cast<unsigned char>(random()); });
    VoFlatMemBuf sourceBuffer;
    fill(sourceBuffer, bytes);
    for (const std::uint64_t count : {0U, 1U, 7U, 8U, 30U, 32768U, 65549U}) {
        for (const std::uint64_t place : {0U, 3U, 16U}) {
            VoFlatMemBuf targetBuffer;
            VoBitStream target(&targetBuffer);
            VoBitStream source(&sourceBuffer, 72000);
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

TEST_F(VoBitStreamTest, bitsThatAreMissingLeaveTheTargetAtThePosition) {
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

TEST_F(VoBitStreamTest, everyWriterGrowsTheBufferFromTheMiddleOfAByte) {
    VoFlatMemBuf buffer;
    VoBitStream stream(&buffer);
    stream.writeBits(5, 3);
    buffer.close(); // the stream keeps its position, bit 3 of byte 0
    stream.writeBit(1, 1);
    stream.writeUInt8(0xFF);
    EXPECT_EQ(stream.tell(), 12U);
    EXPECT_EQ(bytesOf(buffer), (Bytes{0x1F, 0xF0}));
}

} // namespace
