#include "StreamTest.h"

#include <bit>
#include <functional>
#include <limits>

namespace {

using namespace orvex::testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class VoBitStreamFormsTest : public StreamTest {};

using Limits = std::numeric_limits<double>;

std::string bits(std::uint64_t value, unsigned count) {
    std::string text;
    for (unsigned i = count; i-- > 0;) {
        text += (value >> i & 1U) != 0 ? '1' : '0';
    }
    return text;
}

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

struct Form {
    std::string name;
    std::function<void(VoBitStream&)> write;
    std::string encoding;
    std::function<bool(VoBitStream&)> readsBack;
};

template <class T, class Write, class Read>
Form form(const char* name, Write write, Read read, const T& value, const std::string& encoding,
          const T& result) {
    return {name, [=](VoBitStream& stream) { (stream.*write)(value); }, encoding,
            [=](VoBitStream& stream) {
                T got{};
                (stream.*read)(got);
                return got == result;
            }};
}

template <class T, class Write, class Read>
Form form(const char* name, Write write, Read read, const T& value, const std::string& encoding) {
    return form(name, write, read, value, encoding, value);
}

using S = VoBitStream;

std::vector<Form> wholeNumbers() {
    return {
        form<std::uint8_t>("UInt8", &S::writeUInt8, &S::readUInt8, 0xA5, "10100101"),
        form<std::int8_t>("Int8", &S::writeInt8, &S::readInt8, -2, "11111110"),
        form<std::uint16_t>("UInt16 0", &S::writeUInt16, &S::readUInt16, 0, "10"),
        form<std::uint16_t>("UInt16 1", &S::writeUInt16, &S::readUInt16, 1, "01" + raw(1, 1)),
        form<std::uint16_t>("UInt16 255", &S::writeUInt16, &S::readUInt16, 255, "01" + raw(255, 1)),
        form<std::uint16_t>("UInt16 256", &S::writeUInt16, &S::readUInt16, 256, "11"),
        form<std::uint16_t>("UInt16 257", &S::writeUInt16, &S::readUInt16, 257, "00" + raw(257, 2)),
        form<std::int16_t>("Int16 -1", &S::writeInt16, &S::readInt16, -1, "00" + raw(0xFFFF, 2)),
        form<std::int16_t>("Int16 256", &S::writeInt16, &S::readInt16, 256, "11"),
        form<std::uint32_t>("UInt32 0", &S::writeUInt32, &S::readUInt32, 0, "10"),
        form<std::uint32_t>("UInt32 200", &S::writeUInt32, &S::readUInt32, 200, "01" + raw(200, 1)),
        form<std::uint32_t>("UInt32 256", &S::writeUInt32, &S::readUInt32, 256, "00" + raw(256, 4)),
        form<std::int32_t>("Int32", &S::writeInt32, &S::readInt32, -70000,
                           "00" + raw(static_cast<std::uint32_t>(-70000), 4)),
        form<std::uint64_t>("UInt64 0", &S::writeUInt64, &S::readUInt64, 0, "000"),
        form<std::uint64_t>("UInt64 0x1FF", &S::writeUInt64, &S::readUInt64, 0x1FF,
                            "010" + raw(0x1FF, 2)),
        form<std::uint64_t>("UInt64 2^31-1", &S::writeUInt64, &S::readUInt64, 0x7FFFFFFF,
                            "100" + raw(0x7FFFFFFF, 4)),
        // Byte 3 counts as -2^31 here.
        form<std::uint64_t>("UInt64 2^31", &S::writeUInt64, &S::readUInt64, 0x80000000,
                            "100" + raw(0x80000000, 4), 0xFFFFFFFF80000000),
        // Bytes 4 to 6 add at bits 0, 8, 16: 4 + 5 * 2^8 + 6 * 2^16 + 3 * 2^24 of the lower ones.
        form<std::uint64_t>("UInt64 7 bytes", &S::writeUInt64, &S::readUInt64, 0x06050403000000,
                            "111" + raw(0x06050403000000, 7), 0x03060504),
        form<std::int64_t>("Int64", &S::writeInt64, &S::readInt64, 70000, "011" + raw(70000, 3)),
        form<wchar_t>("WChar", &S::writeWChar, &S::readWChar, L'\u20AC', "00" + raw(0x20AC, 2)),
        form<wchar_t>("WChar cut", &S::writeWChar, &S::readWChar, static_cast<wchar_t>(0x1F641),
                      "00" + raw(0xF641, 2), static_cast<wchar_t>(0xF641)),
        form<bool>("Bool", &S::writeBool, &S::readBool, true, "1"),
        form<bool>("Bool", &S::writeBool, &S::readBool, false, "0"),
        form<char>("Char", &S::writeChar, &S::readChar, 'x', bits('x', 8)),
        form<std::uint8_t>("raw 8", &S::writeRawUInt8, &S::readRawUInt8, 7, raw(7, 1)),
        form<std::uint16_t>("raw 16", &S::writeRawUInt16, &S::readRawUInt16, 0x1234,
                            raw(0x1234, 2)),
        form<std::uint32_t>("raw 32", &S::writeRawUInt32, &S::readRawUInt32, 0x12345678,
                            raw(0x12345678, 4)),
        form<std::uint64_t>("raw 64", &S::writeRawUInt64, &S::readRawUInt64, 0x123456789ABCDEF0,
                            raw(0x123456789ABCDEF0, 8)),
    };
}

std::vector<Form> realNumbers() {
    const std::string zeros = raw(0, 8);
    return {
        form<double>("Double 0", &S::writeDouble, &S::readDouble, 0.0, "10"),
        form<double>("Double -0", &S::writeDouble, &S::readDouble, -0.0, "10"),
        form<double>("Double 1", &S::writeDouble, &S::readDouble, 1.0, "01"),
        form<double>("Double", &S::writeDouble, &S::readDouble, 0.1, "00" + raw(0.1)),
        form<double>("NaN", &S::writeDouble, &S::readDouble, Limits::quiet_NaN(), "00" + zeros, 0),
        form<double>("infinity", &S::writeDouble, &S::readDouble, -Limits::infinity(), "00" + zeros,
                     0),
        form<double>("denormal", &S::writeDouble, &S::readDouble, Limits::denorm_min(),
                     "00" + zeros, 0),
        form<double>("raw", &S::writeRawDouble, &S::readRawDouble, 1.0, raw(1.0)),
        form<double>("raw NaN", &S::writeRawDouble, &S::readRawDouble, Limits::quiet_NaN(), zeros,
                     0),
        form<float>("Float", &S::writeFloat, &S::readFloat, 0.1F,
                    "00" + raw(static_cast<double>(0.1F))),
        form<float>("Float 1", &S::writeFloat, &S::readFloat, 1.0F, "01"),
    };
}

std::vector<Form> shapes() {
    KdGeMatrix2d plane;
    plane.setCoordSystem({0, 1}, {2, 3}, {4, 5});
    KdGeMatrix3d space;
    space.setCoordSystem({0, 1, 0}, {1, 0, 0}, {0, 1, 0}, {0, 0, 7});
    return {
        form<KdGePoint2d>("Point2d", &S::writePoint2d, &S::readPoint2d, {0, 1},
                          raw(0.0) + raw(1.0)),
        form<KdGeVector2d>("Vector2d far", &S::writeVector2d, &S::readVector2d, {-2e100, 1e100},
                           raw(-2e100) + raw(1e100), {-1e100, 1e100}),
        form<KdGeScale2d>("Scale2d far", &S::writeScale2d, &S::readScale2d, {2e100, 1},
                          raw(2e100) + raw(1.0)),
        form<KdGePoint3d>("Point3d", &S::writePoint3d, &S::readPoint3d, {0, 1, 5},
                          "1001"
                          "00" +
                              raw(5.0)),
        form<KdGePoint3d>("Point3d far", &S::writePoint3d, &S::readPoint3d, {2e100, 0, 0},
                          "00" + raw(2e100) + "1010", {1e100, 0, 0}),
        form<KdGeVector3d>("Vector3d", &S::writeVector3d, &S::readVector3d, {0, 0, 1}, "101001"),
        form<KdGeScale3d>("Scale3d far", &S::writeScale3d, &S::readScale3d, {1, 2e100, 1},
                          "0100" + raw(2e100) + "01"),
        form<KdGeMatrix2d>("Matrix2d", &S::writeMatrix2d, &S::readMatrix2d, plane,
                           raw(0.0) + raw(1.0) + raw(2.0) + raw(3.0) + raw(4.0) + raw(5.0)),
        form<KdGeMatrix3d>("Matrix3d", &S::writeMatrix3d, &S::readMatrix3d, space,
                           "100110"
                           "011010"
                           "100110"
                           "1010"
                           "00" +
                               raw(7.0)),
    };
}

TEST_F(VoBitStreamFormsTest, EveryFormHasItsBitsAtEveryPositionAndReadsBack) {
    std::vector<Form> forms = wholeNumbers();
    for (const auto& more : {realNumbers(), shapes()}) {
        forms.insert(forms.end(), more.begin(), more.end());
    }
    for (const Form& each : forms) {
        for (unsigned start = 0; start < 8; ++start) {
            VoFlatMemBuf buffer;
            VoBitStream stream(&buffer);
            stream.writeBits(0x2A, start);
            each.write(stream);
            ASSERT_EQ(stream.tell(), start + each.encoding.size()) << each.name;
            ASSERT_EQ(stream.length(), stream.tell()) << each.name;
            ASSERT_EQ(bitsFrom(stream, start), each.encoding) << each.name << ' ' << start;
            stream.seek(start, VoIO::fromStart);
            ASSERT_TRUE(each.readsBack(stream)) << each.name << ' ' << start;
            ASSERT_TRUE(stream.isEOS()) << each.name << ' ' << start;
        }
    }
    EXPECT_THAT(reports(), IsEmpty());
}

TEST_F(VoBitStreamFormsTest, CodesWithoutMeaningAreReportedAndGiveZero) {
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

TEST_F(VoBitStreamFormsTest, NumbersWithoutAFormAreRefused) {
    VoFlatMemBuf buffer;
    VoBitStream stream(&buffer);
    stream.writeUInt64((std::uint64_t{1} << 56) - 1);
    EXPECT_EQ(stream.length(), 3U + 56);
    EXPECT_THAT(reports(), IsEmpty());
    stream.writeUInt64(std::uint64_t{1} << 56);
    stream.writeInt64(-1);
    EXPECT_EQ(stream.length(), 3U + 56);
    EXPECT_EQ(reports().size(), 2U);
}

TEST_F(VoBitStreamFormsTest, AFloatIsReadWithoutTouchingItsNeighbour) {
    VoFlatMemBuf buffer;
    VoBitStream stream(&buffer);
    stream.writeDouble(2.5);
    stream.seek(0, VoIO::fromStart);
    float pair[2] = {0.0F, 7.0F};
    stream.readFloat(pair[0]);
    EXPECT_EQ(pair[0], 2.5F);
    EXPECT_EQ(pair[1], 7.0F);
}

TEST_F(VoBitStreamFormsTest, AValueThatIsCutOffGivesZerosForWhatIsMissing) {
    VoFlatMemBuf buffer;
    fill(buffer, {0x00, 0xC0});
    VoBitStream stream(&buffer, 12); // code 0, then 8 of 16 bits, and 2 more
    std::uint16_t whole = 5;
    stream.readUInt16(whole);
    EXPECT_EQ(whole, 3U);
    EXPECT_EQ(stream.tell(), 10U);
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
