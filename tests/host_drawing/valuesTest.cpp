// Numbers and texts as the file has them.

#include "DrawingText.h"
#include "NumberText.h"

#include <bit>
#include <charconv>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace {

using namespace orvex;

// By the standard library, which knows no shortcut.
TEST(NumberText, readsDecimalsToTheBit) {
    std::mt19937 numbers(5);
    const auto below = [&numbers](unsigned end) { return static_cast<unsigned>(numbers() % end); };
    for (int i = 0; i < 20'000; ++i) {
        std::string text = below(2) == 0 ? "-" : "";
        for (unsigned left = below(19); left > 0; --left) {
            text += static_cast<char>('0' + below(10));
        }
        if (const unsigned place = below(20); place < text.size()) {
            text.insert(place, ".");
        }
        double expected = 0.0;
        const char* const end = text.data() + text.size();
        const auto [stop, error] = std::from_chars(text.data(), end, expected);
        const bool isNumber = stop == end && error == std::errc();
        EXPECT_EQ(isReal(text), isNumber) << text;
        const auto value = parseReal(text);
        ASSERT_EQ(value.has_value(), isNumber) << text;
        if (value) {
            EXPECT_EQ(std::bit_cast<std::uint64_t>(*value), std::bit_cast<std::uint64_t>(expected))
                << text;
        }
    }
}

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
    for (const auto& [digits, isFinite] : {std::pair{300, true}, {308, true}, {309, false}}) {
        EXPECT_EQ(isReal(std::string(digits, '9')), isFinite) << digits;
        EXPECT_EQ(parseReal(std::string(digits, '9')).has_value(), isFinite) << digits;
    }
    EXPECT_EQ(parseInteger("     3"), 3);
    EXPECT_EQ(parseInteger("-123456789"), -123456789);
    EXPECT_EQ(parseInteger("-2147483648"), std::numeric_limits<int>::min());
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
        {"AC1015", "dos866", "\x80", L"\u0410"},
        {"AC1015", "ISO8859-5", "\xB0", L"\u0410"},
        {"AC1015", "BIG5", "\xC0\xF0", L"\u7246"},
        {"AC1015", "KSC5601", "\xBA\xAE", L"\uBCBD"},
        {"AC1015", "", "\\U+007F", L"\x7F"},
        {"AC1015", "", "\\U+DBFF\\U+DFFF", L"\U0010FFFF"},
        {"AC1015", "", "\\U+D800\\U+DC00", L"\U00010000"},
        {"AC1015", "", "\\U+D800\\U+E000", L"\xD800\xE000"}, // halves of nothing
        {"AC1015", "", "\\U+DC00\\U+D800x", L"\xDC00\xD800x"},
        {"AC1015", "", "\\U+0/00\\U+0:00\\U+0@00\\U+0G00\\U+0`00\\U+0g00",
         L"\\U+0/00\\U+0:00\\U+0@00\\U+0G00\\U+0`00\\U+0g00"}, // next to the digits
        {"", "", "\xE4", L"\u00E4"},
        {"AC1015", "NO_SUCH_PAGE", "\xE4", L"\u00E4"},
        {"AC1021", "", "a\\U+000Ab", L"a\nb"},
        {"AC1015", "ANSI_1252", "~\\U+007F", L"~\u007F"},
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
    EXPECT_EQ(text.decode("\\u+00fc\\U+a0Af"), L"\u00FC\uA0AF");
    EXPECT_EQ(text.decode("\\U+DBFF\\U+0041"), L"\xDBFF" + std::wstring(L"A"));
}

} // namespace
