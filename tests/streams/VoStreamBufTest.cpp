#include "StreamTest.h"

#include <algorithm>
#include <array>

namespace {

using namespace orvex::testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

// A buffer that has no more than it must; its writes run past the end.
class PlainBuf : public VoStreamBuf {
public:
    explicit PlainBuf(std::vector<unsigned char> bytes) : m_bytes(std::move(bytes)) {}

    [[nodiscard]] std::uint64_t tell() const override { return m_place; }
    [[nodiscard]] std::uint64_t length() const override { return m_bytes.size(); }
    std::uint64_t seek(std::uint64_t offset, VoIO::SeekType type) override {
        if (type == VoIO::fromStart) {
            m_place = offset;
        }
        return m_place;
    }
    using VoStreamBuf::readBytes;
    using VoStreamBuf::writeBytes;
    void readBytes(void* target, unsigned count) override {
        if (m_place + count <= m_bytes.size()) {
            std::copy_n(m_bytes.begin() + static_cast<std::ptrdiff_t>(m_place), count,
                        static_cast<unsigned char*>(target));
            m_place += count;
        }
    }
    void writeBytes(const void* source, unsigned count) override {
        m_bytes.resize(std::max<std::size_t>(m_bytes.size(), m_place + count));
        std::copy_n(static_cast<const unsigned char*>(source), count,
                    m_bytes.begin() + static_cast<std::ptrdiff_t>(m_place));
        m_place += count;
    }

    [[nodiscard]] Bytes bytes() const { return {m_bytes.begin(), m_bytes.end()}; }

private:
    std::vector<unsigned char> m_bytes;
    std::uint64_t m_place = 0;
};

class VoStreamBufTest : public StreamTest {};

TEST_F(VoStreamBufTest, FormsWithAPositionComeBackUnlessTheyAreThere) {
    PlainBuf buffer({10, 20, 30});
    buffer.seek(1, VoIO::fromStart);
    EXPECT_EQ(buffer.readByte(2), 30);
    EXPECT_EQ(buffer.tell(), 1U);
    EXPECT_EQ(buffer.getByte(1), 20);
    EXPECT_EQ(buffer.tell(), 2U);
    EXPECT_EQ(buffer.getByte(), 30);
    EXPECT_TRUE(buffer.isEOS());

    buffer.setByte(0, 11);
    EXPECT_EQ(buffer.tell(), 3U);
    buffer.rewind();
    buffer.setByte(12);
    EXPECT_EQ(buffer.tell(), 1U);
    buffer.writeByte(2, 31);
    EXPECT_EQ(buffer.tell(), 1U);
    EXPECT_EQ(buffer.bytes(), (Bytes{12, 20, 31}));
    EXPECT_THAT(reports(), IsEmpty());
}

TEST_F(VoStreamBufTest, FormsWithAPositionDontReachPastTheEnd) {
    PlainBuf buffer({10, 20, 30});
    const std::array<unsigned char, 2> source{1, 2};
    std::array<unsigned char, 2> target{7, 7};
    for (const std::uint64_t position : {std::uint64_t{2}, std::uint64_t{4}, ~std::uint64_t{0}}) {
        buffer.readBytes(position, target.data(), 2);
        buffer.getBytes(position, target.data(), 2);
        buffer.writeBytes(position, source.data(), 2);
        buffer.setBytes(position, source.data(), 2);
        EXPECT_THAT(reports(),
                    ElementsAre(kBufferReport, kBufferReport, kBufferReport, kBufferReport));
    }
    EXPECT_EQ(buffer.bytes(), (Bytes{10, 20, 30}));
    EXPECT_THAT(target, ElementsAre(7, 7));
    EXPECT_EQ(buffer.tell(), 0U);
}

TEST_F(VoStreamBufTest, ItsMissingPartsDoNothing) {
    PlainBuf buffer({10, 20, 30});
    buffer.setlength(1);
    buffer.truncate();
    EXPECT_EQ(buffer.length(), 3U);
    EXPECT_EQ(buffer.buffer(), nullptr);
    EXPECT_EQ(std::as_const(buffer).buffer(), nullptr);
}

// Copies between a buffer of 1 to 6 and one of 91 to 98.
struct Copy {
    std::uint64_t sourcePlace;
    std::uint64_t targetPlace;
    std::uint64_t from;
    std::uint64_t to;
    Bytes target;
    std::uint64_t sourceAfter;
    std::uint64_t targetAfter;
};

const std::vector<unsigned char> kSource{1, 2, 3, 4, 5, 6};
const std::vector<unsigned char> kTarget{91, 92, 93, 94, 95, 96, 97, 98};

TEST_F(VoStreamBufTest, CopyingFromABufferTakesTheRangeOrTheRest) {
    const std::vector<Copy> copies{
        {2, 1, 0, 0, {91, 3, 4, 5, 6}, 2, 5},
        {2, 0, 1, 4, {2, 3, 4}, 2, 3},
        {2, 0, 4, 1, {2, 3, 4}, 2, 3},                        // bounds in either order
        {2, 0, 5, 99, {6}, 2, 1},                             // no more than there is
        {2, 8, 3, 3, {91, 92, 93, 94, 95, 96, 97, 98}, 3, 8}, // nothing, and not gone back
        {6, 0, 0, 0, {91, 92, 93, 94, 95, 96, 97, 98}, 6, 0},
    };
    for (const Copy& each : copies) {
        VoFlatMemBuf source;
        VoFlatMemBuf target;
        fill(source, kSource, each.sourcePlace);
        fill(target, kTarget, each.targetPlace);
        target.copyFrom(&source, each.from, each.to);
        EXPECT_EQ(bytesOf(target), each.target) << each.from << ' ' << each.to;
        EXPECT_EQ(source.tell(), each.sourceAfter) << each.from << ' ' << each.to;
        EXPECT_EQ(target.tell(), each.targetAfter) << each.from << ' ' << each.to;
    }
    EXPECT_THAT(reports(), IsEmpty());
}

TEST_F(VoStreamBufTest, CopyingToABufferIsBoundByTheTarget) {
    const std::vector<Copy> copies{
        {2, 6, 0, 0, {91, 92, 93, 94, 95, 96, 3, 4}, 2, 8},
        {2, 1, 0, 0, {91, 3, 4, 5, 6}, 2, 5},   // no more than there is
        {2, 0, 3, 5, {91, 92, 93, 3, 4}, 2, 5}, // a place in the target
        {2, 0, 5, 3, {91, 92, 93, 3, 4}, 2, 5}, // bounds in either order
        {2, 0, 1, 99, {91, 3, 4, 5, 6}, 2, 5},
        {6, 0, 0, 4, {91, 92, 93, 94, 95, 96, 97, 98}, 6, 0},
    };
    for (const Copy& each : copies) {
        VoFlatMemBuf source;
        VoFlatMemBuf target;
        fill(source, kSource, each.sourcePlace);
        fill(target, kTarget, each.targetPlace);
        source.copyTo(&target, each.from, each.to);
        EXPECT_EQ(bytesOf(target), each.target) << each.from << ' ' << each.to;
        EXPECT_EQ(source.tell(), each.sourceAfter) << each.from << ' ' << each.to;
        EXPECT_EQ(target.tell(), each.targetAfter) << each.from << ' ' << each.to;
    }
    EXPECT_THAT(reports(), IsEmpty());
}

TEST_F(VoStreamBufTest, CopyingEndsWhateverThePlacesAre) {
    VoFlatMemBuf source;
    VoFlatMemBuf target;
    fill(source, kSource, 4);
    source.setlength(3); // its position is behind its end now
    target.copyFrom(&source, 0, 0);
    source.copyTo(&target, 0, 0);
    EXPECT_EQ(target.length(), 0U);
    EXPECT_THAT(reports(), IsEmpty());

    target.copyFrom(&source, 100, ~std::uint64_t{0}); // no such place: reported, nothing left there
    EXPECT_THAT(reports(), ElementsAre(kBufferReport));
    EXPECT_EQ(target.length(), 0U);
    target.copyFrom(nullptr, 0, 0);
    target.copyTo(nullptr, 0, 0);

    fill(source, kSource, 2);
    source.copyFrom(&source, 0, 0);
    EXPECT_EQ(source.tell(), 2U);
}

TEST_F(VoStreamBufTest, LongCopiesGoThroughInChunks) {
    std::vector<unsigned char> bytes(3 * 4096 + 5);
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        bytes[i] = static_cast<unsigned char>(i * 7 % 251);
    }
    VoFlatMemBuf source;
    VoFlatMemBuf target;
    fill(source, bytes, 1);
    target.copyFrom(&source, 0, 0);
    ASSERT_EQ(target.length(), bytes.size() - 1);
    EXPECT_TRUE(std::equal(bytes.begin() + 1, bytes.end(), target.buffer()));
}

} // namespace
