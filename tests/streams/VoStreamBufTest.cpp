#include "StreamTest.h"

#include <algorithm>
#include <array>

namespace {

using namespace orvex::testing;
using ::testing::Each;
using ::testing::ElementsAre;

// A buffer that has no more than it must; its writes run past the end.
class PlainBuf : public VoStreamBuf {
public:
    std::string bytes = "abc";

    [[nodiscard]] std::uint64_t tell() const override { return m_place; }
    [[nodiscard]] std::uint64_t length() const override { return bytes.size(); }
    std::uint64_t seek(std::uint64_t offset, VoIO::SeekType /*type*/) override {
        return m_place = offset;
    }
    using VoStreamBuf::readBytes;
    using VoStreamBuf::writeBytes;
    void readBytes(void* target, unsigned count) override {
        bytes.copy(static_cast<char*>(target), count, m_place);
        m_place += count;
    }
    void writeBytes(const void* source, unsigned count) override {
        bytes.replace(m_place, count, static_cast<const char*>(source), count);
        m_place += count;
    }

private:
    std::uint64_t m_place = 0;
};

class VoStreamBufTest : public StreamTest {};

TEST_F(VoStreamBufTest, formsWithAPositionComeBackUnlessTheyAreThere) {
    PlainBuf buffer;
    buffer.seek(1, VoIO::fromStart);
    EXPECT_EQ(buffer.readByte(2), 'c');
    EXPECT_EQ(buffer.tell(), 1U);
    EXPECT_EQ(buffer.getByte(1), 'b');
    EXPECT_EQ(buffer.tell(), 2U);
    EXPECT_EQ(buffer.getByte(), 'c');
    EXPECT_TRUE(buffer.isEOS());

    buffer.setByte(0, '1');
    EXPECT_EQ(buffer.tell(), 3U);
    buffer.rewind();
    buffer.setByte('2');
    EXPECT_EQ(buffer.tell(), 1U);
    buffer.writeByte(2, '3');
    EXPECT_EQ(buffer.tell(), 1U);
    EXPECT_EQ(buffer.bytes, "2b3");
}

TEST_F(VoStreamBufTest, formsWithAPositionDontReachPastTheEnd) {
    PlainBuf buffer;
    std::array<char, 2> target{'x', 'x'};
    for (const std::uint64_t position : {std::uint64_t{2}, std::uint64_t{4}, kFar}) {
        buffer.readBytes(position, target.data(), 2);
        buffer.getBytes(position, target.data(), 2);
        buffer.writeBytes(position, "12", 2);
        buffer.setBytes(position, "12", 2);
        EXPECT_EQ(reports(), Reports(4, kBufferReport));
    }
    EXPECT_EQ(buffer.bytes, "abc");
    EXPECT_THAT(target, Each('x'));
    EXPECT_EQ(buffer.tell(), 0U);
}

TEST_F(VoStreamBufTest, copiesTheRangeOrWhatIsLeft) {
    const struct {
        const char* source;
        const char* target;
        std::uint64_t from, to;
        bool byTarget; // copyFrom
        const char* sourceAfter;
        const char* targetAfter;
    } copies[] = {
        // the range is one of the source
        {"ab|cdef", "1|2345678", 0, 0, true, "ab|cdef", "1cdef|"},
        {"ab|cdef", "|12345678", 1, 4, true, "ab|cdef", "bcd|"},
        {"ab|cdef", "|12345678", 4, 1, true, "ab|cdef", "bcd|"},      // bounds in either order
        {"ab|cdef", "|12345678", 5, 99, true, "ab|cdef", "f|"},       // no more than there is
        {"ab|cdef", "12345678|", 3, 3, true, "abc|def", "12345678|"}, // nothing, and not gone back
        {"abcdef|", "|12345678", 0, 0, true, "abcdef|", "|12345678"},
        // the range is one of the target
        {"ab|cdef", "123456|78", 0, 0, false, "ab|cdef", "123456cd|"},
        {"ab|cdef", "1|2345678", 0, 0, false, "ab|cdef", "1cdef|"}, // no more than there is
        {"ab|cdef", "|12345678", 3, 5, false, "ab|cdef", "123cd|"},
        {"ab|cdef", "|12345678", 5, 3, false, "ab|cdef", "123cd|"}, // bounds in either order
        {"ab|cdef", "|12345678", 1, 99, false, "ab|cdef", "1cdef|"},
        {"abcdef|", "|12345678", 0, 4, false, "abcdef|", "|12345678"},
    };
    for (const auto& each : copies) {
        VoFlatMemBuf source;
        VoFlatMemBuf target;
        setState(source, each.source);
        setState(target, each.target);
        if (each.byTarget) {
            target.copyFrom(&source, each.from, each.to);
        } else {
            source.copyTo(&target, each.from, each.to);
        }
        EXPECT_EQ(stateOf(target), each.targetAfter) << each.from << ' ' << each.to;
        EXPECT_EQ(stateOf(source), each.sourceAfter) << each.from << ' ' << each.to;
    }
}

TEST_F(VoStreamBufTest, copyingEndsWhateverThePositionsAre) {
    VoFlatMemBuf source;
    VoFlatMemBuf target;
    setState(source, "abcd|ef");
    source.setlength(3); // its position is after its end now
    target.copyFrom(&source, 0, 0);
    source.copyTo(&target, 0, 0);
    target.copyFrom(nullptr, 0, 0);
    target.copyTo(nullptr, 0, 0);
    EXPECT_THAT(reports(), ElementsAre());
    target.copyFrom(&source, 100, kFar); // no such place: reported, nothing left there
    EXPECT_THAT(reports(), ElementsAre(kBufferReport));
    EXPECT_EQ(target.length(), 0U);

    setState(target, "12345678|");
    target.setlength(3); // a target after its own end takes all there is
    setState(source, "ab|cdef");
    source.copyTo(&target, 0, 0);
    EXPECT_EQ(stateOf(target), "123.....cdef|");
    EXPECT_EQ(stateOf(source), "ab|cdef");
    source.copyFrom(&source, 0, 0);
    EXPECT_EQ(source.tell(), 2U);
}

TEST_F(VoStreamBufTest, longCopiesGoThroughInChunks) {
    std::vector<unsigned char> bytes(3 * 4096 + 5);
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        bytes[i] = static_cast<unsigned char>(i * 7 % 251);
    }
    VoFlatMemBuf source;
    VoFlatMemBuf target;
    fill(source, bytes);
    target.copyFrom(&source, 0, 0);
    EXPECT_EQ(bytesOf(target), bytesOf(source));
}

} // namespace
