// Numbers and texts as the file has them.

#include "DrawingText.h"
#include "NumberText.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace {

using namespace orvex;

TEST(NumberText, readsWhatProgramsWriteAndNothingElse) {
    const struct {
        const char* text;
        double value;
    } good[] = {
        {"1", 1.0},
        {" 2.50 ", 2.5},
        {"+3", 3.0},
        {"-.5", -0.5},
        {"4.", 4.0},
        {"1E+20", 1e20},
        {"\t1e-400\t", 0.0},
        {"-0.0", -0.0},
        {"1e300", 1e300},
        {"00012", 12.0},
        {"0.1000000000000000055", 0.1},
    };
    for (const auto& each : good) {
        const auto value = parseReal(each.text);
        ASSERT_EQ(value, each.value) << each.text;
        EXPECT_EQ(std::signbit(*value), std::signbit(each.value)) << each.text;
    }
    for (const char* const text : {"", " ", "x", "1,5", "1 2", "inf", "-nan", "1e999", "0.5e400",
                                   "1e-400x", "0x10", "+-1", "1d5", "--1"}) {
        EXPECT_FALSE(parseReal(text)) << text;
    }
    EXPECT_EQ(parseInteger("     3"), 3);
    for (const char* const text : {"", "3.0", "2147483648", "F"}) {
        EXPECT_FALSE(parseInteger(text)) << text;
    }
}

TEST(NumberText, writesWhatReadsBackTheSame) {
    EXPECT_EQ(realText(3.0), "3.0");
    EXPECT_EQ(realText(-0.0), "-0.0");
    EXPECT_EQ(realText(0.1), "0.1");
    EXPECT_EQ(realText(1e21), "1e+21");
    EXPECT_EQ(realText(1.0 / 3.0), "0.3333333333333333");
    EXPECT_EQ(realText(std::numeric_limits<double>::infinity()), "0.0");
}

TEST(DrawingText, readsAndWritesInTheFilesCodePage) {
    const struct {
        const char* version;
        const char* codePage;
        std::string bytes;
        std::wstring text;
    } cases[] = {
        {"AC1018", "ANSI_1252", "T\xFCr", L"T\u00FCr"},
        {"AC1018", "ansi_1252", "\\U+0416\x80", L"\u0416\u20AC"},
        {"AC1021", "ANSI_1252", "T\xC3\xBCr \xF0\x9F\x8F\xA0", L"T\u00FCr \U0001F3E0"},
        {"AC1015", "ANSI_1252", "\\U+D83C\\U+DFE0", L"\U0001F3E0"},
        {"AC1015", "ANSI_932", "\x95\xC7", L"\u58C1"}, // the second byte of some is a backslash
        {"AC1015", "ANSI_932", "\x95\x5C", L"\u8868"},
        {"AC1015", "ANSI_936", "\xC7\xBD", L"\u5899"},
        {"AC1015", "ANSI_1251", "\xD1\xF2", L"\u0421\u0442"},
        {"", "", "\xE4", L"\u00E4"},
        {"AC1015", "NO_SUCH_PAGE", "\xE4", L"\u00E4"},
        {"AC1021", "", "a\\U+000Ab", L"a\nb"},
        {"AC1021", "", "\\U+005CU+0041", L"\\U+0041"}, // not an A
        {"AC1021", "", "C:\\User \\P \\U+00G1", L"C:\\User \\P \\U+00G1"},
    };
    for (const auto& each : cases) {
        const DrawingText text(each.version, each.codePage);
        EXPECT_EQ(text.decode(each.bytes), each.text) << each.bytes;
        EXPECT_EQ(text.encode(each.text), each.bytes) << each.bytes;
    }
    const DrawingText text("AC1021", "");
    EXPECT_EQ(text.decode("\xFFx"), L"\uFFFDx");
    EXPECT_EQ(text.encode(std::wstring(1, wchar_t{0xD800})), "\\U+D800");
}

} // namespace
