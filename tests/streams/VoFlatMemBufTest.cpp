#include "StreamTest.h"

#include "VoVectorFlatMemBufGrowPolicy.h"

#include <limits>
#include <type_traits>

namespace {

using namespace orvex::testing;
using ::testing::ElementsAre;

using Buf = VoFlatMemBuf;

class VoFlatMemBufTest : public StreamTest {
protected:
    // What an operation does to "ab|cde": "c of abc|de out" when it reads c, goes on by one and
    // reports that it is out of the buffer.
    template <class Run>
    void expect(Run run, const std::string& result, int line = __builtin_LINE()) {
        Buf buffer;
        setState(buffer, "ab|cde");
        std::string text;
        if constexpr (std::is_void_v<std::invoke_result_t<Run, Buf&>>) {
            run(buffer);
        } else {
            text = run(buffer);
            text += " of ";
        }
        text += stateOf(buffer);
        const Reports told = reports();
        text += told.empty() ? "" : told == Reports{kBufferReport} ? " out" : " ?";
        EXPECT_EQ(text, result) << "line " << line;
    }
    // What reading changes in a row of blanks.
    static std::string read(Buf& buffer, unsigned count) {
        std::string target(4, '_');
        buffer.readBytes(target.data(), count);
        return target;
    }
    static std::string read(Buf& buffer, std::uint64_t position, unsigned count) {
        std::string target(4, '_');
        buffer.readBytes(position, target.data(), count);
        return target;
    }
    static std::string get(Buf& buffer, std::uint64_t position, unsigned count) {
        std::string target(4, '_');
        buffer.getBytes(position, target.data(), count);
        return target;
    }
    static std::string letter(unsigned char byte) {
        return {byte == 0 ? '.' : static_cast<char>(byte)};
    }
};

TEST_F(VoFlatMemBufTest, readsWithinItsBytes) {
    expect([](Buf& b) { return letter(b.readByte()); }, "c of abc|de");
    expect([](Buf& b) { return letter(b.readByte(4)); }, "e of ab|cde");
    expect([](Buf& b) { return letter(b.readByte(5)); }, ". of ab|cde out");
    expect([](Buf& b) { return letter(b.getByte()); }, "c of abc|de");
    expect([](Buf& b) { return letter(b.getByte(1)); }, "b of ab|cde");
    expect([](Buf& b) { return letter(b.getByte(5)); }, ". of ab|cde out");
    expect([](Buf& b) { return read(b, 3); }, "cde_ of abcde|");
    expect([](Buf& b) { return read(b, 4); }, "____ of ab|cde out");
    expect([](Buf& b) { return read(b, 1, 4); }, "bcde of ab|cde");
    expect([](Buf& b) { return read(b, 2, 4); }, "____ of ab|cde out");
    expect([](Buf& b) { return read(b, kFar - 1, 4); }, "____ of ab|cde out");
    // The room after the bytes can be seen, and no more.
    expect([](Buf& b) { return get(b, 4, 1); }, "e___ of ab|cde");
    expect([](Buf& b) { return get(b, 5, 3).substr(3); }, "_ of ab|cde");
    expect([](Buf& b) { return get(b, 5, 4); }, "____ of ab|cde out");
}

TEST_F(VoFlatMemBufTest, writingCutsOrOverwrites) {
    expect([](Buf& b) { b.writeByte('9'); }, "ab9|");
    expect([](Buf& b) { b.writeByte(0, '9'); }, "|9bcde");
    expect([](Buf& b) { b.writeByte(4, '9'); }, "abcd|9");
    expect([](Buf& b) { b.writeByte(5, '9'); }, "abcde|");
    expect([](Buf& b) { b.writeByte(7, '9'); }, "abcde..|");
    expect([](Buf& b) { b.writeByte(kFar, '9'); }, "ab|cde out");
    expect([](Buf& b) { b.setByte('9'); }, "ab|9de");
    expect([](Buf& b) { b.setByte(4, '9'); }, "ab|cd9");
    expect([](Buf& b) { b.setByte(5, '9'); }, "ab|cde out");
    expect([](Buf& b) { b.writeBytes("1234", 2); }, "ab12|");
    expect([](Buf& b) { b.writeBytes("1234", 4); }, "ab1234|");
    expect([](Buf& b) { b.writeBytes("1234", 0); }, "ab|");
    expect([](Buf& b) { b.writeBytes(nullptr, 0); }, "ab|");
    expect([](Buf& b) { b.writeBytes(nullptr, 2); }, "ab|cde");
    expect([](Buf& b) { b.writeBytes(b.buffer(), 5); }, "ababcde|");
    expect([](Buf& b) { b.writeBytes(3, "1234", 4); }, "abc|1234");
    expect([](Buf& b) { b.writeBytes(0, "1234", 2); }, "|12cde");
    expect([](Buf& b) { b.writeBytes(6, "1234", 1); }, "abcde.|1");
    expect([](Buf& b) { b.writeBytes(kFar - 1, "1234", 4); }, "ab|cde out");
    expect([](Buf& b) { b.setBytes("1234", 3); }, "ab|123");
    expect([](Buf& b) { b.setBytes("1234", 4); }, "ab|cde out");
    expect([](Buf& b) { b.setBytes(0, "1234", 2); }, "12|cde");
    expect([](Buf& b) { b.open("1234", 2, 3); }, "12.|..");
    expect([](Buf& b) { b.open("1234", 4, kFar - 2); }, "ab|cde out");
    expect([](Buf& b) { b.open(b.buffer() + 1, 3, 1); }, "b|cd.");
}

TEST_F(VoFlatMemBufTest, lengthsAndPositionsStayWithinTheLimits) {
    expect([](Buf& b) { b.truncate(); }, "ab|");
    expect([](Buf& b) { b.setlength(1); }, "a |");
    expect([](Buf& b) { b.resize(7); }, "ab|cde..");
    expect([](Buf& b) { b.setlength(kFar); }, "ab|cde out");
    expect([](Buf& b) { b.setlength(std::uint64_t{1} << 32); }, "ab|cde out");
    expect([](Buf& b) { b.reserve(100); }, "ab|cde");
    expect([](Buf& b) { b.reserve(~0U); }, "ab|cde out");
    expect([](Buf& b) { b.close(); }, "|");
    expect([](Buf& b) { b.rewind(); }, "|abcde");
    expect([](Buf& b) { b.moveTo(5); }, "abcde|");
    expect([](Buf& b) { b.moveTo(6); }, "ab|cde out");
    expect([](Buf& b) { b.seek(4, VoIO::fromStart); }, "abcd|e");
    expect([](Buf& b) { b.seek(3, VoIO::forward); }, "abcde|");
    expect([](Buf& b) { b.seek(4, VoIO::forward); }, "ab|cde out");
    expect([](Buf& b) { b.seek(2, VoIO::backward); }, "|abcde");
    expect([](Buf& b) { b.seek(3, VoIO::backward); }, "ab|cde out");
    expect([](Buf& b) { b.seek(1, VoIO::fromEnd); }, "abcd|e");
    expect([](Buf& b) { b.seek(6, VoIO::fromEnd); }, "ab|cde out");
    expect([](Buf& b) { b.seek(1, static_cast<VoIO::SeekType>(4)); }, "ab|cde");
}

TEST_F(VoFlatMemBufTest, byteByByteReadingStopsAtTheEnd) {
    Buf buffer;
    setState(buffer, "ab|");
    EXPECT_EQ(buffer.readByte(), 0);
    EXPECT_THAT(reports(), ElementsAre(L"End of stream buffer!"));
    EXPECT_EQ(buffer.getByte(), 0);
    EXPECT_THAT(reports(), ElementsAre(kBufferReport));
    EXPECT_EQ(buffer.tell(), 2U);
}

TEST_F(VoFlatMemBufTest, aByteAtTheEndIsStoredAfterIt) {
    for (const unsigned length : {0U, 1U, 8U, 16U, 4096U}) {
        Buf buffer;
        buffer.setlength(length);
        buffer.writeByte(length, '9');
        ASSERT_EQ(buffer.length(), length == 0 ? 1 : length);
        EXPECT_EQ(buffer.tell(), length);
        EXPECT_GT(buffer.bufSize(), length);
        EXPECT_EQ(get(buffer, length, 1), "9___");
    }
}

TEST_F(VoFlatMemBufTest, capacityUsedBeforeReadsAsZero) {
    Buf buffer;
    setState(buffer, "|abcdef");
    buffer.setlength(2);
    EXPECT_EQ(get(buffer, 2, 4), std::string(4, '\0'));
    buffer.setlength(5);
    EXPECT_EQ(stateOf(buffer), "|ab...");
}

TEST_F(VoFlatMemBufTest, growsByDoublingUpTo64KiB) {
    Buf buffer;
    buffer.setlength(1);
    buffer.setlength(9);
    EXPECT_EQ(buffer.bufSize(), 16U);

    constexpr unsigned kMost = std::numeric_limits<unsigned>::max();
    const struct {
        unsigned logical, physical, wanted, room;
    } cases[] = {{0, 0, 0, 8},
                 {20, 5, 0, 28},
                 {3, 8, 7, 8},
                 {9, 8, 9, 8},
                 {3, 8, 8, 16},
                 {8, 8, 9, 16},
                 {0, 0, 100, 100},
                 {100, 100, 101, 200},
                 {100000, 100000, 100001, 165536},
                 {10, 100000, 300000, 399990},          // what is missing is more than 64 KiB
                 {kMost - 1, kMost - 1, kMost, kMost}}; // no sum goes beyond the largest
    for (const auto& each : cases) {
        const VoVectorFlatMemBufGrowPolicy policy;
        EXPECT_EQ(policy.growCount(each.logical, each.physical, each.wanted), each.room)
            << each.logical << ' ' << each.physical << ' ' << each.wanted;
    }
}

} // namespace
