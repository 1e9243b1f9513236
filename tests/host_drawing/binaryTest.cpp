// The binary form: bytes kept, edits in the right place, damage told with its offset; and the way
// from one form to the other.

#include "BinaryTags.h"
#include "DatabaseCore.h"
#include "DrawingConversion.h"
#include "KdDbMline.h"
#include "sampleDrawing.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace orvex;
using namespace orvex::testing;
using ::testing::HasSubstr;
using ::testing::StartsWith;

std::string converted(const std::string& bytes, DrawingForm form) {
    const auto result = convertBytes(bytes, form);
    EXPECT_TRUE(result) << result.failure().text;
    return result ? result->bytes : std::string();
}

std::string binaryOf(const std::string& text) {
    return converted(text, DrawingForm::binary);
}

// The signature and tags of zero-ended texts, codes of two bytes.
std::string binaryFile(std::string_view tags) {
    return std::string(binarySignature()) + std::string(tags);
}

void rescale(DrawingFile& file, double scale) {
    auto* const mline =
        dynamic_cast<KdDbMline*>(file.database().core().open(stubOf(file, 0x51), true));
    ASSERT_NE(mline, nullptr);
    mline->setScale(scale);
    mline->appendSeg({7.0, 8.5, 0.0});
}

// One-byte codes with their escape in the old version, two bytes in the other.
TEST(BinaryForm, editsAsTheTextFormDoes) {
    for (const char* const version : {"AC1009", "AC1018"}) {
        const std::string text = replaced(sampleDrawing(), "AC1018", version);
        const std::string bytes = binaryOf(text);
        const auto ofText = openDrawing(text);
        const auto ofBinary = openDrawing(bytes);
        ASSERT_EQ(ofBinary->bytes(), bytes);
        rescale(*ofText, 2.5);
        rescale(*ofBinary, 2.5);
        EXPECT_NE(ofBinary->bytes(), bytes);
        EXPECT_TRUE(sameText(ofBinary->bytes(), binaryOf(ofText->bytes()))) << version;
        EXPECT_EQ(openDrawing(ofBinary->bytes())->bytes(), ofBinary->bytes());
    }
}

// A value that doesn't fit into its two bytes.
TEST(BinaryForm, isNotSavedWithWhatItHasNoRoomFor) {
    const auto file = openDrawing(binaryOf(sampleDrawing()));
    file->database().core().setVariable("CMLJUST", 70000);
    const auto failure = file->save("/dev/null");
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->cause, FailureCause::unwritableOutput);
    EXPECT_THAT(messageOf(*failure),
                ::testing::StartsWith("/dev/null: the value 70000 of group code 70: "));
}

// A line end in a text and numbers that are no numbers have no text of their own; of those that
// would have the same one each stays where it is.
TEST(BinaryForm, keepsOddTagsOfAnEditedRecord) {
    std::string bytes = binaryOf(sampleDrawing());
    const std::string handle("\x05\0"
                             "51\0",
                             5);
    const std::string odd("\x01\0a\nb\r\0\x30\0\x01\x02\x03\x04\x05\x06\xF8\x7F"
                          "\x30\0\x02\x02\x03\x04\x05\x06\xF8\x7F\x30\0\0\0\0\0\0\0\xF0\x7F"
                          "\x30\0\0\0\0\0\0\0\xF0\xFF",
                          47);
    ASSERT_NE(bytes.find(handle), std::string::npos);
    const std::size_t place = bytes.find(handle) + handle.size();
    std::string oddNumbers = bytes;
    bytes.insert(place, odd);
    const auto file = openDrawing(bytes);
    ASSERT_EQ(file->bytes(), bytes);
    rescale(*file, 2.5);
    EXPECT_NE(file->bytes(), bytes);
    EXPECT_NE(file->bytes().find(odd), std::string::npos);
    oddNumbers.insert(place, odd.substr(7));
    for (const std::string& refused : {bytes, oddNumbers}) {
        EXPECT_THAT(convertBytes(refused, DrawingForm::text).failure().text,
                    HasSubstr("at byte " + std::to_string(place) + ":"));
    }
    EXPECT_THAT(warningsOf(binaryOf(replaced(sampleDrawing(), " 71\n2\n 49", " 71\n3\n 49"))),
                StartsWith("0: at byte "));
}

TEST(BinaryForm, opensWhatIsCutAtATagAndRefusesAllElse) {
    const std::string bytes = binaryOf(sampleDrawing());
    BinaryTagReader reader(bytes, binarySignature().size(), bytes.size(), CodeWidth::two);
    BinaryTag tag;
    std::size_t at = binarySignature().size();
    while (reader.next(tag) == BinaryTagReader::Result::tag && tag.end < bytes.size()) {
        for (; at < tag.end; ++at) {
            if (at == tag.begin) {
                const bool isEmpty = at == binarySignature().size();
                EXPECT_THAT(warningsOf(bytes.substr(0, at)),
                            HasSubstr(isEmpty ? "is empty" : "stops without EOF"));
                continue;
            }
            const Failure failure = openFailing(bytes.substr(0, at));
            ASSERT_EQ(failure.cause, FailureCause::unreadableInput) << at;
            ASSERT_THAT(failure.text, HasSubstr("at byte " + std::to_string(tag.begin) + ":"));
        }
    }
    EXPECT_GT(at, bytes.size() / 2);
}

TEST(BinaryForm, isRefusedWithTheOffset) {
    const std::string section("\0\0SECTION\0", 10);
    const struct {
        std::string bytes;
        const char* text;
    } files[] = {
        {binaryFile("  0\nSECTION\n"), "at byte 22: a binary drawing has to begin"},
        {binaryFile(section + "  2\nHEADER\n"), "at byte 32: there is no group code 8224"},
        {binaryFile(section + std::string("\xFF\xFF\0", 3)),
         "at byte 32: there is no group code -1"},
        {binaryFile(section + std::string("\x36\x01\x09"
                                          "12345678",
                                          11)),
         "at byte 32: the file ends"},
        {std::string(binarySignature().substr(0, 18)) + "\n\x1A", "at byte 0: the signature"},
    };
    for (const auto& file : files) {
        const Failure failure = openFailing(file.bytes);
        EXPECT_EQ(failure.cause, FailureCause::unreadableInput);
        EXPECT_THAT(failure.text, HasSubstr(file.text));
    }
    EXPECT_THAT(warningsOf(binaryOf(sampleDrawing()) + "x"), HasSubstr("bytes follow after EOF"));
}

// The text of each value is the one that the way back gives again.
TEST(Conversion, keepsValuesThereAndBack) {
    const std::string text =
        dxf("0 SECTION\n9 $ACADVER\n1 AC1015\n1 a \xC3\xBC\\U+4E2D\n40 0.1\n41 -0.0\n"
            "42 5e-324\n43 1.7976931348623157e+308\n70 -32768\n90 2147483647\n"
            "160 -9223372036854775808\n290 1\n310 00FFA1\n1071 -1\n1004 \n0 EOF\n");
    const std::string back = converted(binaryOf(text), DrawingForm::text);
    EXPECT_TRUE(sameText(back, text));
    // Where codes have one byte, 255 begins a longer one.
    const std::string old = dxf("0 SECTION\n9 $ACADVER\n1 AC1009\n254 a\n255 b\n256 c\n0 EOF\n");
    EXPECT_TRUE(sameText(converted(binaryOf(old), DrawingForm::text), old));
    const std::string noted = replaced(text, "  1\nAC1015", "999\nnote\n  1\nAC1015");
    EXPECT_EQ(binaryOf(noted), binaryOf(text));
    const std::string loose = dxf("0 SECTION\n70 +5\n71 \t-7 \n90 0012\n40 +1.50\n310  0aF9\n"
                                  "311 abcdef\n290 +255\n0 EOF\n");
    const std::string strict = dxf("0 SECTION\n70 5\n71 -7\n90 12\n40 1.5\n310 0AF9\n"
                                   "311 ABCDEF\n290 255\n0 EOF\n");
    EXPECT_TRUE(sameText(converted(binaryOf(loose), DrawingForm::text), strict));
    EXPECT_EQ(converted(text, DrawingForm::text), text);
    EXPECT_EQ(converted(binaryOf(text), DrawingForm::binary), binaryOf(text));
}

// Where another kind of value begins and ends: a value takes as many bytes as its kind has.
TEST(Conversion, knowsTheKindOfEachCode) {
    const struct {
        std::vector<int> firstAndLast;
        const char* value;
        std::size_t size;
    } kinds[] = {
        {{1,   9,   80,  89,  100, 109, 150, 159, 180, 209,  240,  269,  300,
          309, 320, 369, 390, 399, 410, 419, 430, 439, 1000, 1003, 1005, 1009},
         "1.50",
         5},
        {{10, 59, 110, 149, 210, 239, 460, 469, 1010, 1059}, "1.5", 8},
        {{60, 79, 170, 179, 270, 289, 370, 389, 400, 409, 1060, 1070}, "-2", 2},
        {{90, 99, 420, 429, 440, 459, 1071}, "70000", 4},
        {{160, 169}, "5000000000", 8},
        {{290, 299}, "255", 1},
        {{310, 319, 1004}, "0A", 2}, // with its length
    };
    const std::string head = "0 SECTION\n9 $ACADVER\n1 AC1018\n";
    for (const auto& [codes, value, size] : kinds) {
        for (const int code : codes) {
            const std::string tag = std::to_string(code) + " " + value;
            EXPECT_EQ(binaryOf(dxf(head + tag)).size(), binaryOf(dxf(head)).size() + 2 + size)
                << tag;
        }
    }
}

TEST(Conversion, refusesWhatTheBinaryFormLacks) {
    const std::string chunk(512, 'A');
    const struct {
        std::string tag;
        const char* reason; // empty when it is taken
    } tags[] = {
        {"70 32767", ""},
        {"70 32768", "too large"},
        {"90 2147483648", "too large"},
        {"70 1.0", "integer"},
        {"160 9223372036854775808", "too large"},
        {"290 256", "too large"},
        {"40 1e999", "finite"},
        {"40 nan", "finite"},
        {"40 one", "finite"},
        {"310 ABC", "odd"},
        {"310 GA", "hexadecimal"},
        {"310 0/", "hexadecimal"}, // and what else stands next to the digits
        {"310 :0", "hexadecimal"},
        {"310 0@", "hexadecimal"},
        {"310 `0", "hexadecimal"},
        {"70 +", "integer"},
        {"70 +-5", "integer"},
        {"290 -1", "too large"},
        {"90 -2147483649", "too large"},
        {std::string("1 a\0b", 5), "zero byte"},
        {"310 " + chunk.substr(2), ""},
        {"310 " + chunk, "255"},
        {"-1 x", "no such group code"},
        {"1072 x", "no such group code"},
    };
    for (const auto& [tag, reason] : tags) {
        const auto result =
            convertBytes(dxf("0 SECTION\n" + tag + "\n0 EOF\n"), DrawingForm::binary);
        ASSERT_EQ(result.hasValue(), *reason == '\0') << tag;
        if (!result) {
            EXPECT_EQ(result.failure().cause, FailureCause::unwritableOutput);
            EXPECT_EQ(result.failure().line, 4U) << tag;
            EXPECT_THAT(result.failure().text, HasSubstr(reason));
        }
    }
    EXPECT_EQ(convertBytes(dxf("0 SECTION") + "  x\nHEADER\n", DrawingForm::binary).failure().line,
              3U);
    EXPECT_THAT(convertBytes(dxf("1 x\n0 EOF"), DrawingForm::binary).failure().text,
                HasSubstr("has to begin with the group code 0"));
    const auto result =
        convertBytes(dxf("999 a\n0 SECTION\n999 b\n0 EOF\n") + "x", DrawingForm::binary);
    ASSERT_TRUE(result);
    ASSERT_EQ(result->warnings.size(), 2U);
    EXPECT_EQ(result->warnings[0].line, 2U);
    EXPECT_THAT(result->warnings[0].text, HasSubstr("2 left out"));
    EXPECT_EQ(result->warnings[1].line, 9U); // after four tags
}

} // namespace
