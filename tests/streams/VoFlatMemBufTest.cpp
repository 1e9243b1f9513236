#include "StreamTest.h"

#include "VoVectorFlatMemBufGrowPolicy.h"

#include <array>
#include <functional>
#include <limits>

namespace {

using namespace orvex::testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class VoFlatMemBufTest : public StreamTest {};

constexpr std::uint64_t kFar = ~std::uint64_t{0};

// What one operation does to the bytes 10 20 30 40 50 with the position at 2.
struct Operation {
    const char* name;
    std::function<int(VoFlatMemBuf&)> run; // gives the byte it read
    int read;
    Bytes bytes;
    std::uint64_t position;
    Reports reports;
};

int got(VoFlatMemBuf& buffer, void (VoFlatMemBuf::*get)(std::uint64_t, void*, unsigned),
        std::uint64_t position, unsigned count) {
    std::array<unsigned char, 8> target{7, 7, 7, 7, 7, 7, 7, 7};
    (buffer.*get)(position, target.data(), count);
    return target[0];
}

const std::array<unsigned char, 4> kFour{1, 2, 3, 4};

std::vector<Operation> operations() {
    const Bytes all{10, 20, 30, 40, 50};
    const Reports none;
    const Reports out{kBufferReport};
    const auto act = [](auto write) {
        return [write](VoFlatMemBuf& buffer) {
            write(buffer);
            return 0;
        };
    };
    using Buf = VoFlatMemBuf;
    const auto readAt = static_cast<void (Buf::*)(std::uint64_t, void*, unsigned)>(&Buf::readBytes);
    const auto getAt = static_cast<void (Buf::*)(std::uint64_t, void*, unsigned)>(&Buf::getBytes);
    return {
        {"readByte()", [](Buf& b) { return b.readByte(); }, 30, all, 3, none},
        {"readByte(4)", [](Buf& b) { return b.readByte(4); }, 50, all, 2, none},
        {"readByte(5)", [](Buf& b) { return b.readByte(5); }, 0, all, 2, out},
        {"writeByte()", act([](Buf& b) { b.writeByte(9); }), 0, {10, 20, 9}, 3, none},
        {"writeByte(0)", act([](Buf& b) { b.writeByte(0, 9); }), 0, {9, 20, 30, 40, 50}, 0, none},
        {"writeByte(4)", act([](Buf& b) { b.writeByte(4, 9); }), 0, {10, 20, 30, 40, 9}, 4, none},
        {"writeByte(5)", act([](Buf& b) { b.writeByte(5, 9); }), 0, all, 5, none},
        {"writeByte(7)",
         act([](Buf& b) { b.writeByte(7, 9); }),
         0,
         {10, 20, 30, 40, 50, 0, 0},
         7,
         none},
        {"writeByte(far)", act([](Buf& b) { b.writeByte(kFar, 9); }), 0, all, 2, out},
        {"getByte()", [](Buf& b) { return b.getByte(); }, 30, all, 3, none},
        {"getByte(1)", [](Buf& b) { return b.getByte(1); }, 20, all, 2, none},
        {"getByte(5)", [](Buf& b) { return b.getByte(5); }, 0, all, 2, out},
        {"setByte()", act([](Buf& b) { b.setByte(9); }), 0, {10, 20, 9, 40, 50}, 2, none},
        {"setByte(4)", act([](Buf& b) { b.setByte(4, 9); }), 0, {10, 20, 30, 40, 9}, 2, none},
        {"setByte(5)", act([](Buf& b) { b.setByte(5, 9); }), 0, all, 2, out},
        {"readBytes 3",
         [](Buf& b) {
             std::array<unsigned char, 3> target{};
             b.readBytes(target.data(), 3);
             return target[2] + 0;
         },
         50, all, 5, none},
        {"readBytes 4",
         [](Buf& b) {
             std::array<unsigned char, 4> target{7};
             b.readBytes(target.data(), 4);
             return target[0] + 0;
         },
         7, all, 2, out},
        {"readBytes(1) 4", [=](Buf& b) { return got(b, readAt, 1, 4); }, 20, all, 2, none},
        {"readBytes(2) 4", [=](Buf& b) { return got(b, readAt, 2, 4); }, 7, all, 2, out},
        {"readBytes(far) 4", [=](Buf& b) { return got(b, readAt, kFar - 1, 4); }, 7, all, 2, out},
        {"writeBytes 2",
         act([](Buf& b) { b.writeBytes(kFour.data(), 2); }),
         0,
         {10, 20, 1, 2},
         4,
         none},
        {"writeBytes 4",
         act([](Buf& b) { b.writeBytes(kFour.data(), 4); }),
         0,
         {10, 20, 1, 2, 3, 4},
         6,
         none},
        {"writeBytes 0", act([](Buf& b) { b.writeBytes(kFour.data(), 0); }), 0, {10, 20}, 2, none},
        {"writeBytes null", act([](Buf& b) { b.writeBytes(nullptr, 2); }), 0, all, 2, none},
        {"writeBytes(3) 4",
         act([](Buf& b) { b.writeBytes(3, kFour.data(), 4); }),
         0,
         {10, 20, 30, 1, 2, 3, 4},
         3,
         none},
        {"writeBytes(0) 2",
         act([](Buf& b) { b.writeBytes(0, kFour.data(), 2); }),
         0,
         {1, 2, 30, 40, 50},
         0,
         none},
        {"writeBytes(6) 1",
         act([](Buf& b) { b.writeBytes(6, kFour.data(), 1); }),
         0,
         {10, 20, 30, 40, 50, 0, 1},
         6,
         none},
        {"writeBytes(far) 4", act([](Buf& b) { b.writeBytes(kFar - 1, kFour.data(), 4); }), 0, all,
         2, out},
        {"getBytes(4) 2", [=](Buf& b) { return got(b, getAt, 4, 2); }, 50, all, 2, none},
        {"getBytes(5) 3", [=](Buf& b) { return got(b, getAt, 5, 3); }, 0, all, 2, none},
        {"getBytes(5) 4", [=](Buf& b) { return got(b, getAt, 5, 4); }, 7, all, 2, out},
        {"setBytes 3",
         act([](Buf& b) { b.setBytes(kFour.data(), 3); }),
         0,
         {10, 20, 1, 2, 3},
         2,
         none},
        {"setBytes 4", act([](Buf& b) { b.setBytes(kFour.data(), 4); }), 0, all, 2, out},
        {"setBytes(0) 2",
         act([](Buf& b) { b.setBytes(0, kFour.data(), 2); }),
         0,
         {1, 2, 30, 40, 50},
         2,
         none},
        {"truncate", act([](Buf& b) { b.truncate(); }), 0, {10, 20}, 2, none},
        {"setlength 1", act([](Buf& b) { b.setlength(1); }), 0, {10}, 2, none},
        {"resize 7", act([](Buf& b) { b.resize(7); }), 0, {10, 20, 30, 40, 50, 0, 0}, 2, none},
        {"setlength far", act([](Buf& b) { b.setlength(kFar); }), 0, all, 2, out},
        {"setlength 2^32", act([](Buf& b) { b.setlength(std::uint64_t{1} << 32); }), 0, all, 2,
         out},
        {"reserve", act([](Buf& b) { b.reserve(100); }), 0, all, 2, none},
        {"reserve far", act([](Buf& b) { b.reserve(~0U); }), 0, all, 2, out},
        {"rewind", act([](Buf& b) { b.rewind(); }), 0, all, 0, none},
        {"moveTo 5", act([](Buf& b) { b.moveTo(5); }), 0, all, 5, none},
        {"moveTo 6", act([](Buf& b) { b.moveTo(6); }), 0, all, 2, out},
        {"seek start", act([](Buf& b) { b.seek(4, VoIO::fromStart); }), 0, all, 4, none},
        {"seek forward", act([](Buf& b) { b.seek(3, VoIO::forward); }), 0, all, 5, none},
        {"seek forward 4", act([](Buf& b) { b.seek(4, VoIO::forward); }), 0, all, 2, out},
        {"seek backward", act([](Buf& b) { b.seek(2, VoIO::backward); }), 0, all, 0, none},
        {"seek backward 3", act([](Buf& b) { b.seek(3, VoIO::backward); }), 0, all, 2, out},
        {"seek end", act([](Buf& b) { b.seek(1, VoIO::fromEnd); }), 0, all, 4, none},
        {"seek end 6", act([](Buf& b) { b.seek(6, VoIO::fromEnd); }), 0, all, 2, out},
        {"seek 4", act([](Buf& b) { b.seek(1, static_cast<VoIO::SeekType>(4)); }), 0, all, 2, none},
        {"close", act([](Buf& b) { b.close(); }), 0, {}, 0, none},
        {"open at", act([](Buf& b) { b.open(kFour.data(), 2, 3); }), 0, {1, 2, 0, 0, 0}, 3, none},
        {"open far", act([](Buf& b) { b.open(kFour.data(), 4, kFar - 2); }), 0, all, 2, out},
        {"open itself",
         act([](Buf& b) { b.open(b.buffer() + 1, 3, 1); }),
         0,
         {20, 30, 40, 0},
         1,
         none},
        {"write itself",
         act([](Buf& b) { b.writeBytes(b.buffer(), 5); }),
         0,
         {10, 20, 10, 20, 30, 40, 50},
         7,
         none},
    };
}

TEST_F(VoFlatMemBufTest, EachOperationLeavesItsBytesPositionAndReports) {
    for (const Operation& each : operations()) {
        VoFlatMemBuf buffer;
        fill(buffer, {10, 20, 30, 40, 50}, 2);
        EXPECT_EQ(each.run(buffer), each.read) << each.name;
        EXPECT_EQ(bytesOf(buffer), each.bytes) << each.name;
        EXPECT_EQ(buffer.tell(), each.position) << each.name;
        EXPECT_EQ(reports(), each.reports) << each.name;
    }
}

TEST_F(VoFlatMemBufTest, ByteByByteReadingStopsAtTheEnd) {
    VoFlatMemBuf buffer;
    fill(buffer, {1, 2}, 0);
    EXPECT_EQ(buffer.getByte(), 1);
    EXPECT_EQ(buffer.getByte(), 2);
    EXPECT_TRUE(buffer.isEOS());
    EXPECT_EQ(buffer.readByte(), 0);
    EXPECT_THAT(reports(), ElementsAre(L"End of stream buffer!"));
    EXPECT_EQ(buffer.getByte(), 0);
    EXPECT_THAT(reports(), ElementsAre(kBufferReport));
    EXPECT_EQ(buffer.tell(), 2U);
}

TEST_F(VoFlatMemBufTest, AByteAtTheEndStandsBehindIt) {
    for (const unsigned length : {0U, 1U, 8U, 16U, 4096U}) {
        VoFlatMemBuf buffer;
        buffer.setlength(length);
        buffer.writeByte(length, 9);
        const unsigned expected = length == 0 ? 1 : length;
        ASSERT_EQ(buffer.length(), expected);
        EXPECT_EQ(buffer.tell(), length);
        EXPECT_GT(buffer.bufSize(), length);
        unsigned char behind = 0;
        buffer.getBytes(length, &behind, 1);
        EXPECT_EQ(behind, 9);
    }
    EXPECT_THAT(reports(), IsEmpty());
}

TEST_F(VoFlatMemBufTest, RoomThatWasUsedOnceReadsAsZero) {
    VoFlatMemBuf buffer;
    fill(buffer, {1, 2, 3, 4, 5, 6}, 0);
    buffer.setlength(2);
    std::array<unsigned char, 4> behind{7, 7, 7, 7};
    buffer.getBytes(2, behind.data(), 4);
    EXPECT_THAT(behind, ElementsAre(0, 0, 0, 0));
    buffer.setlength(5);
    EXPECT_EQ(bytesOf(buffer), (Bytes{1, 2, 0, 0, 0}));
}

TEST_F(VoFlatMemBufTest, GrowsByDoublingUpTo64KiB) {
    VoFlatMemBuf small;
    small.setlength(1);
    EXPECT_EQ(small.bufSize(), 8U);
    small.setlength(9);
    EXPECT_EQ(small.bufSize(), 16U);
    small.setlength(40);
    EXPECT_EQ(small.bufSize(), 16U + 31U);

    VoFlatMemBuf large;
    large.reserve(100000);
    large.setlength(100000);
    EXPECT_EQ(large.bufSize(), 100000U);
    large.setlength(100001);
    EXPECT_EQ(large.bufSize(), 165536U);
}

TEST(VoVectorFlatMemBufGrowPolicyTest, AnswersInOrder) {
    struct Case {
        unsigned logical;
        unsigned physical;
        unsigned wanted;
        unsigned room;
    };
    constexpr unsigned kMost = std::numeric_limits<unsigned>::max();
    const Case cases[] = {
        {0, 0, 0, 8},
        {20, 5, 0, 28},
        {3, 8, 7, 8},
        {9, 8, 9, 8},
        {3, 8, 8, 16},
        {8, 8, 9, 16},
        {0, 0, 5, 8},
        {0, 0, 100, 100},
        {100, 100, 101, 200},
        {100, 100, 500, 500},
        {100000, 100000, 100001, 165536},
        {10, 100000, 300000, 399990},         // what is missing is more than 64 KiB
        {kMost - 1, kMost - 1, kMost, kMost}, // no sum goes beyond the largest
    };
    const VoVectorFlatMemBufGrowPolicy policy;
    for (const Case& each : cases) {
        EXPECT_EQ(policy.growCount(each.logical, each.physical, each.wanted), each.room)
            << each.logical << ' ' << each.physical << ' ' << each.wanted;
    }
}

} // namespace
