#include "DatabaseCore.h"
#include "FindStyleName.h"
#include "KdDbDatabase.h"
#include "KdDbMlineStyle.h"
#include "KdDocument.h"
#include "MlineStyleContent.h"
#include "TestPaths.h"
#include "WellKnownObjects.h"
#include "promptStatus.h"
#include "styleAccessors.h"
#include "styleLibraryReader.h"
#include "styleLibraryWriter.h"
#include "supportFiles.h"
#include "systemVariables.h"
#include "textCodec.h"
#include "wholeFiles.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>

#include <sys/stat.h>

namespace fs = std::filesystem;
using namespace mledit;
using orvex::testing::readFile;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr double kDegree = 3.141592653589793 / 180.0;

// As the format has it: two colours as packed values, angles with all zeros, one flag of three.
const std::string kWall =
    "MLSTYLE\n2\n WALL\n70\n 1\n3\n Outer wall\n62\n 30\n420\n 3271524352\n"
    "51\n 90.00000000000000\n52\n 90.00000000000000\n71\n 2\n"
    "49\n 0.50000000000000\n62\n 256\n6\n ByLayer\n"
    "49\n -0.50000000000000\n62\n 150\n420\n -1040154369\n6\n Continuous\n0\n";

class StyleLibrary : public testing::Test {
protected:
    StyleLibrary() : m_before(orvex::setCurrentDocument(&m_document)) {}
    ~StyleLibrary() override {
        fs::remove(m_path);
        orvex::setCurrentDocument(m_before);
    }

    [[nodiscard]] KdDbObjectId linetype(const wchar_t* name) {
        return KdDbObjectId(m_database.core().wellKnown().findLinetype(name));
    }

    [[nodiscard]] KdDbMlineStyle wall() {
        KdDbMlineStyle style;
        style.initMlineStyle();
        style.setName(L"WALL");
        style.setDescription(L"Outer wall");
        style.setFilled(true);
        style.setStartRoundCap(true);
        style.setEndRoundCap(true);
        KdCmColor fill;
        fill.setColorIndex(30);
        fill.setColor(0xC2FF8000);
        style.setFillColor(fill);
        KdCmColor color;
        int index = 0;
        style.setElement(index, 0.5, color, linetype(L"ByLayer"));
        color.setColorIndex(150);
        color.setColor(0xC20080FF);
        style.setElement(++index, -0.5, color, linetype(L"Continuous"));
        return style;
    }

    std::wstring write(const std::string& bytes) {
        orvex::testing::writeFile(m_path, bytes);
        return orvex::widen(m_path.string());
    }
    // What a library's block makes of a fresh style, open or to be closed.
    bool apply(const std::string& bytes, const wchar_t* name, KdDbMlineStyle& style) {
        return applyLibraryStyle(write(bytes).c_str(), name, style);
    }

    KdDbDatabase m_database;
    KdDocument m_document{&m_database};
    KdDocument* m_before;
    fs::path m_path = fs::temp_directory_path() / "styles.mln";
};

std::string joined(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) {
        text += line + '\n';
    }
    return text;
}

std::vector<std::wstring> texts(const std::optional<std::vector<CStdStr<wchar_t>>>& names) {
    std::vector<std::wstring> result;
    for (const auto& name : names.value()) {
        result.push_back(name.text());
    }
    return result;
}

TEST_F(StyleLibrary, writesAStyleAsItsLines) {
    resbuf dimzin;
    dimzin.restype = kResultShort;
    dimzin.resval.rint = 8;
    kdedSetVar(L"DIMZIN", &dimzin);
    EXPECT_EQ(joined(styleBlockLines(wall())), kWall);
    kdedGetVar(L"DIMZIN", &dimzin);
    EXPECT_EQ(dimzin.resval.rint, 8);
    for (const int first : {0, 1, 2, 16, 32, 64, 256, 512, 1024}) {
        KdDbMlineStyle style;
        SetFlag(&style, first == 0 ? 0 : 0x773 & ~(first - 1)); // and all that come after it
        EXPECT_EQ(styleBlockLines(style)[4], ' ' + std::to_string(first));
    }
}

TEST_F(StyleLibrary, readsBackWhatTheFormatKeeps) {
    KdDbMlineStyle style;
    style.setShowMiters(true);
    ASSERT_TRUE(apply(kWall, L"wall", style));
    orvex::MlineStyleContent kept = wall().values();
    kept.name.clear();
    kept.flags = kStyleFilled;
    kept.fillColor = style.fillColor();
    EXPECT_EQ(kept.fillColor.color(), 196608U);   // the first digit, moved
    kept.elements[1].color.setColor(0xC2000000U); // any true colour comes as black
    EXPECT_TRUE(style.values().equals(kept));
}

TEST_F(StyleLibrary, writesColorBooksAndOnlyTheLinetypesThatExist) {
    KdDbMlineStyle style = wall();
    KdCmColor fill;
    fill.setNamesFromDictionaryKey(L"BOOK$sand");
    style.setFillColor(fill);
    KdCmColor color;
    color.setNamesFromDictionaryKey(L"OTHER$sea");
    int index = 0;
    style.setElement(index, 1e308, color, KdDbObjectId());
    const std::string text = joined(styleBlockLines(style));
    EXPECT_THAT(text, testing::HasSubstr("\n420\n 3221225472\n430\n BOOK$sand\n51\n"));
    // The fill's name stands for the element's, and without a line type there is no tag 6.
    EXPECT_THAT(text, testing::ContainsRegex("\n49\n 1[0-9]+\\.0{14}\n62\n 256\n430\n "
                                             "BOOK\\$sand\n49\n -0.5"));
    // Out of step: the next element's tag is taken for a line type's, and none is found after it.
    KdDbMlineStyle read;
    EXPECT_FALSE(apply(text, L"WALL", read));
    EXPECT_STREQ(read.fillColor().colorName(), L"sand");
    EXPECT_EQ(read.numElements(), 2);
    EXPECT_EQ(read.values().elements[1].offset, 0.5); // the count was set, the values never came
}

TEST_F(StyleLibrary, keepsAValueOnItsLine) {
    KdDbMlineStyle style = wall();
    style.setName(L"A\n0");
    style.setDescription(L"100% %n ä\nMLSTYLE");
    const std::string saved = withStyleBlock("", L"A\n0", styleBlockLines(style));
    EXPECT_THAT(saved, testing::HasSubstr("\n A 0\n70\n 1\n3\n 100% %n \u00e4 MLSTYLE\n"));
    EXPECT_EQ(withStyleBlock(saved, L"A\n0", styleBlockLines(style)), saved);
    KdDbMlineStyle read;
    EXPECT_TRUE(apply(saved, L"A 0", read));
    EXPECT_STREQ(read.description(), L"100% %n ä MLSTYLE");
}

TEST_F(StyleLibrary, replacesABlockInItsPlace) {
    const std::vector<std::string> block{"MLSTYLE", "2", " Wall", "0"};
    const std::string text = "MLSTYLE\n2\n Wall\n0\n";
    const struct {
        const char* before;
        std::string after;
    } cases[] = {
        {"", text},
        {"x\nMLSTYLE\n2\n WALL\n70\n 0\n0\n\xFFy\n0", "x\n" + text + "\xFFy\n0\n"},
        {"x\r\nmlstyle\r\n2\r\n wall\r\n9\r\n0\r\ny\r\n", "x\n" + text + "y\n"},
        // Without its end a block goes on to the end of the file.
        {"x\nMLSTYLE\n2\n wall\n 0\nMLSTYLE\n2\n B\n", "x\n" + text},
        // Two blanks, or a line that was compared already: no match.
        {"MLSTYLE\n2\n  wall\n0\n", "MLSTYLE\n2\n  wall\n0\n" + text},
        {"MLSTYLE\nMLSTYLE\n2\n wall\n0\n", "MLSTYLE\nMLSTYLE\n2\n wall\n0\n" + text},
        {"MLSTYLE\n2\n A\nMLSTYLE\n2\n wall\n0\nMLSTYLE\n2\n wall\n0\n",
         "MLSTYLE\n2\n A\n" + text + "MLSTYLE\n2\n wall\n0\n"},
        {"\xEF\xBB\xBFMLSTYLE\n2\n wall\n0\nx\n", "\xEF\xBB\xBF" + text + "x\n"},
    };
    for (const auto& each : cases) {
        EXPECT_EQ(withStyleBlock(each.before, L"Wall", block), each.after) << each.before;
    }
}

TEST_F(StyleLibrary, savesIntoRegularFilesAlone) {
    const KdDbMlineStyle style = wall();
    const std::wstring path = write("kept");
    EXPECT_TRUE(saveLibraryStyle(path.c_str(), L"WALL", &style));
    EXPECT_EQ(readFile(m_path), "kept\n" + kWall);
    EXPECT_TRUE(saveLibraryStyle(path.c_str(), L"gone", nullptr));
    EXPECT_EQ(readFile(m_path), "");
    fs::remove(m_path);
    ASSERT_EQ(mkfifo(m_path.c_str(), 0600), 0);
    const std::wstring nones[] = {
        L"", path, L"/", L"/dev/zero", L"/nowhere/x.mln", L"/tmp/" + std::wstring(1100, L'.')};
    for (const std::wstring& none : nones) {
        EXPECT_FALSE(saveLibraryStyle(none.c_str(), L"WALL", &style));
        EXPECT_EQ(listLibraryStyles(none.c_str()), std::nullopt);
        KdDbMlineStyle read;
        EXPECT_FALSE(applyLibraryStyle(none.c_str(), L"WALL", read));
    }
    EXPECT_EQ(listLibraryStyles(nullptr), std::nullopt);
}

TEST_F(StyleLibrary, listsWhateverFollowsALineWithA2) {
    const std::string longName(3000, 'x');
    EXPECT_THAT(
        texts(listLibraryStyles(
            write("2\n A\n2\r\n\t B \r\nx\n2\nMLSTYLE\n2\n\n2 \n C\n02\n2\n \u00e9\xFF\n" +
                  ("2\n" + longName + "\n2"))
                .c_str())),
        ElementsAre(L"A", L"B", L"MLSTYLE", L"", L"\u00e9\uFFFD", std::wstring(2047, L'x')));
    EXPECT_THAT(texts(listLibraryStyles(write("").c_str())), IsEmpty());
}

TEST_F(StyleLibrary, findsABlockByItsThreeLines) {
    const struct {
        const char* library;
        const wchar_t* name;
        bool closed;
    } cases[] = {
        {"MLSTYLE\n2\n A\n0\n", L"a", true},
        {"mlstyle\n2\nxA\n0", L"A", true},     // any first character
        {"MLSTYLE\n2\n  A\n0\n", L"A", false}, // listed, but not found
        {"MLSTYLE\r\n2\r\n A\r\n0\r\n", L"A", false},
        {"MLSTYLE\nMLSTYLE\n2\n A\n0\n", L"A", false},
        {"MLSTYLE\n2\n\n0\n", L"", true},     // a line without anything is an empty name
        {"MLSTYLE\n2\n A\n", L"A", false},    // no end
        {"MLSTYLE\n2\n A\n3\n", L"A", false}, // no value
        {"MLSTYLE\n2\n A\n9", L"A", true},    // the end of the file in a line is an end
        {"MLSTYLE\n2\n B\n0\nx", L"A", true},
        {"\xEF\xBB\xBFMLSTYLE\n2\n A\n0\n", L"A", true},
    };
    for (const auto& each : cases) {
        KdDbMlineStyle style;
        EXPECT_EQ(apply(each.library, each.name, style), each.closed) << each.library;
        EXPECT_TRUE(style.values().equals(KdDbMlineStyle().values())) << each.library;
    }
}

TEST_F(StyleLibrary, takesTheValuesOfABlockInItsOrder) {
    KdDbMlineStyle style;
    style.initMlineStyle();
    ASSERT_TRUE(
        apply("MLSTYLE\n2\n A\n420\n 96\n62\n 65539\nnote\n3\n" + std::string(3000, 'y') +
                  "\n70\n 1 or more\n52\n 1e999\n51\n -45.5\n51\n\n51\n east\n3\n\n430\n B$c\n0\n",
              L"A", style));
    EXPECT_EQ(style.fillColor().color(), 0xC3000003U); // 62 after 420, of 16 bits
    EXPECT_STREQ(style.fillColor().bookName(), L"B");
    EXPECT_EQ(style.values().flags, 1);
    EXPECT_DOUBLE_EQ(style.startAngle(), -45.5 * kDegree);
    EXPECT_TRUE(std::isfinite(style.endAngle()));
    EXPECT_STREQ(style.description(), L"");
    EXPECT_EQ(style.numElements(), 2);
}

TEST_F(StyleLibrary, readsElementsWithoutTrustInTheirCount) {
    const auto library = [](const std::string& count, int groups) {
        std::string text = "MLSTYLE\n2\n A\n71\n " + count + "\n";
        for (int i = 0; i < groups; ++i) {
            text += "noise\n49\n " + std::to_string(i) + "\n62\n 3\n420\n 9\n430\n a$b\n6\n none\n";
        }
        return text + "3\n end\n0\n";
    };
    const struct {
        const char* count;
        int groups;
        int elements;
        bool closed;
    } cases[] = {
        {"256", 256, 256, true}, {"257", 256, 256, false},      {"-5", 1, 0, true},
        {"0", 0, 0, false},      {"2147483647", 2, 256, false}, {"", 2, 0, true},
    };
    for (const auto& each : cases) {
        KdDbMlineStyle style;
        style.initMlineStyle();
        EXPECT_EQ(apply(library(each.count, each.groups), L"A", style), each.closed) << each.count;
        EXPECT_EQ(style.numElements(), each.elements) << each.count;
        EXPECT_STREQ(style.description(), each.closed ? L"end" : L"") << each.count;
    }
    KdDbMlineStyle style;
    ASSERT_TRUE(apply(library("256", 256), L"A", style));
    const orvex::StyleElement& last = style.values().elements.back();
    EXPECT_EQ(last.offset, 255.0);
    EXPECT_EQ(last.color.color(), 0xC2090000U);
    EXPECT_STREQ(last.color.bookName(), L" a"); // the blank goes with the name
    EXPECT_EQ(last.linetype, linetype(L"Continuous"));
    // An element that the file's end cuts off anywhere isn't kept, and neither are those before it.
    const std::string text = library("2", 2);
    for (std::size_t at = text.find("\n49\n 1\n"); at + 1 < text.find("3\n end");
         at = text.find('\n', at + 1)) {
        KdDbMlineStyle cut;
        EXPECT_FALSE(apply(text.substr(0, at + 1), L"A", cut)) << at;
        ASSERT_EQ(cut.numElements(), 2) << at;
        EXPECT_NE(cut.values().elements[1].offset, 1.0) << at;
    }
    // A block without elements takes the next block's first one and its other values.
    ASSERT_TRUE(apply(library("0", 0) + kWall, L"A", style));
    EXPECT_EQ(style.numElements(), 0);
    EXPECT_EQ(style.fillColor().colorIndex(), 150);
    EXPECT_EQ(style.fillColor().color(), 0U);
}

// What is shipped has all its flags, and an index colour for the fill; else it is as it would be
// written.
TEST_F(StyleLibrary, thatIsShippedLoadsWhole) {
    orvex::setSupportFileFinder([](const std::wstring& name) {
        return (orvex::testing::binDir() / "Support" / orvex::narrow(name)).wstring();
    });
    const fs::path path = orvex::testing::binDir() / "Support" / "ORVEX.mln";
    const std::vector<std::wstring> names = texts(listLibraryStyles(path.wstring().c_str()));
    EXPECT_GE(names.size(), 12U);
    std::string read;
    for (const std::wstring& name : names) {
        KdDbMlineStyle style;
        style.setName(name.c_str());
        EXPECT_TRUE(applyLibraryStyle(path.wstring().c_str(), name.c_str(), style));
        std::vector<std::string> lines = styleBlockLines(style);
        lines[4] = ' ' + std::to_string(style.values().flags);
        const auto fill = std::find(lines.begin(), lines.end(), "420");
        lines.erase(fill, fill + 2);
        read += joined(lines);
    }
    EXPECT_EQ(read, readFile(path));
}

// Four bytes at a time make a character, so no line of a library is "2".
TEST_F(StyleLibrary, isntFoundByTheSearchByBytes) {
    std::wstring path = write(kWall);
    std::wstring name = L"WALL";
    EXPECT_FALSE(FindStyleName(path.data(), name.data()));
    using namespace std::string_literals;
    path = write("2\0\0\0\n \0\0\0W\0\0\0A\0\0\0L\0\0\0L\0\0\0\n"s);
    EXPECT_TRUE(FindStyleName(path.data(), name.data()));
}

} // namespace
