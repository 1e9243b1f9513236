#include "StreamTest.h"

#include <bit>
#include <limits>
#include <optional>

namespace {

using namespace orvex::testing;
using ::testing::ElementsAre;

class VoBitStreamFormsTest : public StreamTest {};

using Limits = std::numeric_limits<double>;

// Whole numbers and doubles stand in the stream with their lowest byte first.
std::string raw(std::uint64_t value, unsigned bytes) {
    std::string text;
    for (unsigned i = 0; i < bytes; ++i) {
        text += bits(value >> (8 * i) & 0xFFU, 8);
    }
    return text;
}

std::string raw(double value) {
    return raw(std::bit_cast<std::uint64_t>(value), 8);
}

// How a value stands in the stream, and what is read where that isn't the same value.
template <class T>
struct Form {
    T value;
    std::string bits;
    std::optional<T> readAs = {};
};

// Each form at every position in a byte, there and back.
template <class T, class Write, class Read>
void check(Write write, Read read, const std::vector<Form<T>>& forms) {
    for (const Form<T>& form : forms) {
        for (unsigned start = 0; start < 8; ++start) {
            VoFlatMemBuf buffer;
            VoBitStream stream(&buffer);
            stream.writeBits(0x2A, start);
            (stream.*write)(form.value);
            ASSERT_EQ(stream.tell(), start + form.bits.size()) << form.bits;
            ASSERT_EQ(stream.length(), stream.tell()) << form.bits;
            ASSERT_EQ(bitsFrom(stream, start), form.bits) << start;
            stream.seek(start, VoIO::fromStart);
            T again{};
            (stream.*read)(again);
            ASSERT_TRUE(again == form.readAs.value_or(form.value)) << form.bits << ' ' << start;
            ASSERT_TRUE(stream.isEOS()) << form.bits << ' ' << start;
        }
    }
}

using S = VoBitStream;

TEST_F(VoBitStreamFormsTest, wholeNumbersTakeFewBits) {
    check<std::uint8_t>(&S::writeUInt8, &S::readUInt8, {{0xA5, "10100101"}});
    check<std::int8_t>(&S::writeInt8, &S::readInt8, {{-2, "11111110"}});
    check<std::uint16_t>(&S::writeUInt16, &S::readUInt16,
                         {{0, "10"},
                          {1, "01" + raw(1, 1)},
                          {255, "01" + raw(255, 1)},
                          {256, "11"},
                          {257, "00" + raw(257, 2)}});
    check<std::int16_t>(&S::writeInt16, &S::readInt16, {{-1, "00" + raw(0xFFFF, 2)}, {256, "11"}});
    check<std::uint32_t>(&S::writeUInt32, &S::readUInt32,
                         {{0, "10"}, {200, "01" + raw(200, 1)}, {256, "00" + raw(256, 4)}});
    check<std::int32_t>(&S::writeInt32, &S::readInt32, {{-2, "00" + raw(0xFFFFFFFE, 4)}});
    check<std::uint64_t>(
        &S::writeUInt64, &S::readUInt64,
        {{0, "000"},
         {0x1FF, "010" + raw(0x1FF, 2)},
         {0x7FFFFFFF, "100" + raw(0x7FFFFFFF, 4)},
         {0x80000000, "100" + raw(0x80000000, 4), 0xFFFFFFFF80000000}, // byte 3 counts as -2^31
         // Bytes 4 to 6 add at bits 0, 8, 16: 4 + 5 * 2^8 + 6 * 2^16 + 3 * 2^24 of the lower ones.
         {0x06050403000000, "111" + raw(0x06050403000000, 7), 0x03060504}});
    check<std::int64_t>(&S::writeInt64, &S::readInt64, {{70000, "011" + raw(70000, 3)}});
    check<wchar_t>(&S::writeWChar, &S::readWChar,
                   {{L'\u20AC', "00" + raw(0x20AC, 2)},
                    {wchar_t{0x1F641}, "00" + raw(0xF641, 2), wchar_t{0xF641}}});
    check<bool>(&S::writeBool, &S::readBool, {{true, "1"}, {false, "0"}});
    check<char>(&S::writeChar, &S::readChar, {{'x', raw('x', 1)}});
    check<std::uint8_t>(&S::writeRawUInt8, &S::readRawUInt8, {{7, raw(7, 1)}});
    check<std::uint16_t>(&S::writeRawUInt16, &S::readRawUInt16, {{0x1234, raw(0x1234, 2)}});
    check<std::uint32_t>(&S::writeRawUInt32, &S::readRawUInt32, {{0x123456, raw(0x123456, 4)}});
    check<std::uint64_t>(&S::writeRawUInt64, &S::readRawUInt64,
                         {{0x123456789ABCDEF0, raw(0x123456789ABCDEF0, 8)}});
}

TEST_F(VoBitStreamFormsTest, numbersInvalidInTheFormatPassAsZero) {
    const std::string zeros = raw(0, 8);
    check<double>(&S::writeDouble, &S::readDouble,
                  {{0.0, "10"},
                   {-0.0, "10"},
                   {1.0, "01"},
                   {0.1, "00" + raw(0.1)},
                   {Limits::quiet_NaN(), "00" + zeros, 0},
                   {-Limits::infinity(), "00" + zeros, 0},
                   {Limits::denorm_min(), "00" + zeros, 0}});
    check<double>(&S::writeRawDouble, &S::readRawDouble,
                  {{1.0, raw(1.0)}, {Limits::quiet_NaN(), zeros, 0}});
    check<float>(&S::writeFloat, &S::readFloat, {{0.125F, "00" + raw(0.125)}, {1.0F, "01"}});
}

TEST_F(VoBitStreamFormsTest, pointsAndVectorsAreClampedToTheFormatsRange) {
    check<KdGePoint2d>(&S::writePoint2d, &S::readPoint2d, {{{0, 1}, raw(0.0) + raw(1.0)}});
    check<KdGeVector2d>(&S::writeVector2d, &S::readVector2d,
                        {{{-2e100, 1e100}, raw(-2e100) + raw(1e100), {{-1e100, 1e100}}}});
    check<KdGeScale2d>(&S::writeScale2d, &S::readScale2d, {{{2e100, 1}, raw(2e100) + raw(1.0)}});
    check<KdGePoint3d>(&S::writePoint3d, &S::readPoint3d,
                       {{{0, 1, 5}, "100100" + raw(5.0)},
                        {{2e100, 0, 0}, "00" + raw(2e100) + "1010", {{1e100, 0, 0}}}});
    check<KdGeVector3d>(&S::writeVector3d, &S::readVector3d, {{{0, 0, 1}, "101001"}});
    check<KdGeScale3d>(&S::writeScale3d, &S::readScale3d,
                       {{{1, 2e100, 1}, "0100" + raw(2e100) + "01"}});
    KdGeMatrix2d plane;
    plane.setCoordSystem({0, 1}, {2, 3}, {4, 5});
    check<KdGeMatrix2d>(&S::writeMatrix2d, &S::readMatrix2d,
                        {{plane, raw(0.0) + raw(1.0) + raw(2.0) + raw(3.0) + raw(4.0) + raw(5.0)}});
    KdGeMatrix3d space;
    space.setCoordSystem({0, 1, 0}, {1, 0, 0}, {0, 1, 0}, {0, 0, 7});
    check<KdGeMatrix3d>(&S::writeMatrix3d, &S::readMatrix3d,
                        {{space, "100110011010100110101000" + raw(7.0)}});
}

TEST_F(VoBitStreamFormsTest, codesWithoutMeaningAreReportedAndGiveZero) {
    VoFlatMemBuf buffer;
    fill(buffer, {0xFF});
    VoBitStream stream(&buffer, 8);
    std::uint32_t whole = 5;
    stream.readUInt32(whole);
    EXPECT_EQ(whole, 0U);
    EXPECT_THAT(reports(), ElementsAre(L"Unknown flag of UINT32 val!"));
    double number = 5;
    stream.readDouble(number);
    EXPECT_EQ(number, 0);
    EXPECT_THAT(reports(), ElementsAre(L"Unknown flag of double val!"));
    EXPECT_EQ(stream.tell(), 4U);
}

TEST_F(VoBitStreamFormsTest, numbersWithoutAFormAreRefused) {
    VoFlatMemBuf buffer;
    VoBitStream stream(&buffer);
    stream.writeUInt64((std::uint64_t{1} << 56) - 1);
    EXPECT_EQ(stream.length(), 3U + 56);
    stream.writeUInt64(std::uint64_t{1} << 56);
    stream.writeInt64(-1);
    EXPECT_EQ(stream.length(), 3U + 56);
    EXPECT_EQ(reports().size(), 2U);
}

TEST_F(VoBitStreamFormsTest, aValueThatIsCutOffGivesZerosForWhatIsMissing) {
    VoFlatMemBuf buffer;
    fill(buffer, {0x00, 0xC0});
    VoBitStream stream(&buffer, 12); // code 0, then 8 of 16 bits, and 2 more
    std::uint16_t whole = 5;
    stream.readUInt16(whole);
    EXPECT_EQ(whole, 3U);
    EXPECT_EQ(stream.tell(), 10U);
    EXPECT_THAT(reports(), ElementsAre(kBitsReport));

    VoBitStream(&buffer, 16).readUInt16(whole); // 14 of 16 bits
    EXPECT_EQ(whole, 3U);
    EXPECT_THAT(reports(), ElementsAre(kBitsReport));

    stream.seek(11, VoIO::fromStart);
    stream.readUInt16(whole);
    EXPECT_EQ(whole, 0U);
    double number = 5;
    stream.readDouble(number);
    EXPECT_EQ(number, 0);
    std::uint64_t large = 5;
    stream.readUInt64(large);
    EXPECT_EQ(large, 0U);
    bool flag = false;
    stream.seek(12, VoIO::fromStart);
    stream.readBool(flag);
    EXPECT_FALSE(flag);
    EXPECT_THAT(reports(), ElementsAre(kBitsReport, kBitsReport, kBitsReport, kBitsReport));
}

} // namespace
