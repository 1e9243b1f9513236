// Multilines that leave the file: what stands for them, and what named them.

#include "AtomicFile.h"
#include "BlockList.h"
#include "ChangeLog.h"
#include "DatabaseCore.h"
#include "DrawingExport.h"
#include "MlineContent.h"
#include "handleText.h"
#include "sampleDrawing.h"
#include "wholeFiles.h"

#include <filesystem>
#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <regex>
#include <unistd.h>

namespace {

using namespace orvex;
using namespace orvex::testing;

// Multilines with the handles 10 and 12. Both groups have the first, which has data of its own;
// the second has a place in the drawing order by its handle alone.
std::string drawing() {
    return dxf("0 SECTION\n2 HEADER\n9 $ACADVER\n1 AC1018\n9 $HANDSEED\n5 20\n0 ENDSEC\n"
               "0 SECTION\n2 TABLES\n0 TABLE\n2 BLOCK_RECORD\n5 1\n70 1\n"
               "0 BLOCK_RECORD\n5 2\n2 *Model_Space\n0 ENDTAB\n0 ENDSEC\n"
               "0 SECTION\n2 BLOCKS\n0 BLOCK\n2 *Model_Space\n0 ENDBLK\n"
               "0 BLOCK\n2 ORVEX_12\n0 ENDBLK\n0 BLOCK\n2 ORVEX_12_2\n0 ENDBLK\n0 ENDSEC\n"
               "0 SECTION\n2 ENTITIES\n"
               "0 MLINE\n5 10\n102 {ACAD_XDICTIONARY\n360 A\n102 }\n8 Walls\n60 1\n"
               "2 STANDARD\n72 0\n73 0\n"
               "0 LINE\n5 11\n0 MLINE\n5 12\n8 Doors\n2 STANDARD\n72 0\n73 0\n0 ENDSEC\n"
               "0 SECTION\n2 OBJECTS\n0 DICTIONARY\n5 3\n3 ACAD_GROUP\n350 4\n"
               "0 DICTIONARY\n5 4\n330 3\n3 ALONE\n350 5\n3 BOTH\n350 6\n"
               "0 GROUP\n5 5\n330 4\n340 10\n0 GROUP\n5 6\n330 4\n340 10\n340 11\n"
               "0 DICTIONARY\n5 A\n330 10\n3 MINE\n360 B\n3 YOURS\n360 6\n0 XRECORD\n5 B\n330 A\n"
               "0 SORTENTSTABLE\n5 C\n330 3\n330 2\n331 10\n5 FF\n331 11\n5 FE\n0 ENDSEC\n0 EOF");
}

constexpr const char* kFirst = "0 MLINE\n5 10\n102 {ACAD_XDICTIONARY\n360 A\n102 }\n8 Walls\n60 1\n"
                               "2 STANDARD\n72 0\n73 0";
constexpr const char* kSecond = "0 MLINE\n5 12\n8 Doors\n2 STANDARD\n72 0\n73 0";
constexpr const char* kOwned = "0 DICTIONARY\n5 A\n330 10\n3 MINE\n360 B\n3 YOURS\n360 6\n"
                               "0 XRECORD\n5 B\n330 A";
constexpr const char* kAlone = "3 ALONE\n350 5"; // in the dictionary of groups
constexpr const char* kGroups = "0 GROUP\n5 5\n330 4\n340 10\n0 GROUP\n5 6\n330 4\n340 10\n340 11";
constexpr const char* kOrder = "331 10\n5 FF\n331 11\n5 FE";

// The same with other texts in it.
std::string changed(const std::vector<std::pair<const char*, std::string>>& changes) {
    std::string text = drawing();
    for (const auto& [from, to] : changes) {
        text = replaced(text, dxf(from), dxf(to));
    }
    return text;
}

// A part of the drawing in another form, and what has to become of it.
struct Part {
    const char* part;
    std::string before;
    std::string after;
};
Part kept(const char* part, const std::string& text) {
    return {part, text, text};
}
// The drawing with such parts; what isn't one of them becomes the usual.
std::pair<std::string, std::string> beforeAndAfter(const std::vector<Part>& parts,
                                                   std::map<const char*, std::string> usual) {
    std::vector<std::pair<const char*, std::string>> before;
    for (const Part& each : parts) {
        before.emplace_back(each.part, each.before);
        usual[each.part] = each.after;
    }
    const std::vector<std::pair<const char*, std::string>> after(usual.begin(), usual.end());
    return {changed(before), changed(after)};
}

// A quarter of a circle, a triangle that is looked at from below, and a line.
Result<std::vector<PlainContent>> explode(const MlineContent& content) {
    constexpr double kQuarter = 1.5707963267948966;
    std::vector<PlainContent> parts(3);
    for (PlainContent& part : parts) {
        part.traits = content.traits;
    }
    parts[0].shape = ConicShape{{1.0, 2.0, 3.0}, {0.0, 2.0, 0.0}, {-2.0, 0.0, 0.0}, 0.0, kQuarter};
    parts[1].shape = SolidShape{{{0.0, 0.0, 0.0}, {1.0, 0.0, 0.0}, {1.0, 1.0, 0.0}}};
    parts[1].normal = {0.0, 0.0, -1.0};
    parts[2].shape = LineShape{{1.0, 2.0, 0.0}, {3.0, 4.0, 5.0}};
    return parts;
}

// What is written of them, with the handles from `first` on; `common` comes after each.
std::string partTags(std::uint64_t first, const std::string& common) {
    return "0 ARC\n5 " + handleText(first) + "\n" + common +
           "100 AcDbCircle\n10 1.0\n20 2.0\n30 3.0\n40 2.0\n100 AcDbArc\n50 90.0\n51 180.0\n"
           "0 SOLID\n5 " +
           handleText(first + 1) + "\n" + common +
           "100 AcDbTrace\n10 0.0\n20 0.0\n30 0.0\n11 -1.0\n21 0.0\n31 0.0\n"
           "12 -1.0\n22 1.0\n32 0.0\n13 -1.0\n23 1.0\n33 0.0\n210 0.0\n220 0.0\n230 -1.0\n"
           "0 LINE\n5 " +
           handleText(first + 2) + "\n" + common +
           "100 AcDbLine\n10 1.0\n20 2.0\n30 0.0\n11 3.0\n21 4.0\n31 5.0\n";
}

// A block of these parts in the order of its handles: its record, the block, the parts, its end.
std::string recordTags(std::uint64_t first, const std::string& name) {
    return "0 BLOCK_RECORD\n5 " + handleText(first) +
           "\n330 1\n100 AcDbSymbolTableRecord\n100 AcDbBlockTableRecord\n2 " + name + "\n340 0\n";
}
std::string blockTags(std::uint64_t first, const std::string& layer, const std::string& name) {
    const std::string common = "330 " + handleText(first) + "\n100 AcDbEntity\n8 " + layer + "\n";
    return "0 BLOCK\n5 " + handleText(first + 1) + "\n" + common + "100 AcDbBlockBegin\n2 " + name +
           "\n70 0\n10 0.0\n20 0.0\n30 0.0\n3 " + name + "\n1 \n" + partTags(first + 2, common) +
           "0 ENDBLK\n5 " + handleText(first + 5) + "\n" + common + "100 AcDbBlockEnd\n";
}
std::string insertTags(std::uint64_t handle, const std::string& traits, const std::string& name) {
    return "0 INSERT\n5 " + handleText(handle) + "\n330 2\n100 AcDbEntity\n" + traits +
           "100 AcDbBlockReference\n2 " + name + "\n10 0.0\n20 0.0\n30 0.0\n";
}

struct Exported {
    std::string bytes;
    std::string warnings;
};
std::string savingWarnings(const DrawingFile& file) {
    std::string text;
    for (const DrawingWarning& warning : file.savingWarnings()) {
        text += warning.text + "\n";
    }
    return text;
}
Exported exported(const std::string& bytes, const MlineExport& how) {
    const auto file = openDrawing(bytes);
    const auto path =
        std::filesystem::temp_directory_path() / ("export-" + std::to_string(getpid()) + ".dxf");
    AtomicFile target(path.string());
    EXPECT_FALSE(file->saveExported(target, how));
    Exported result{readFile(path), savingWarnings(*file)};
    std::filesystem::remove(path);
    return result;
}

TEST(Export, putsPlainEntitiesInTheirPlace) {
    const std::string first = partTags(0x20, "330 2\n100 AcDbEntity\n8 Walls\n60 1\n");
    const std::string firstPlace = "331 20\n5 FF\n331 21\n5 FF\n331 22\n5 FF\n331 11\n5 FE";
    const std::string secondPlace = "\n331 23\n5 12\n331 24\n5 12\n331 25\n5 12";
    const std::map<const char*, std::string> usual{
        {"9 $HANDSEED\n5 20", "9 $HANDSEED\n5 26"},
        {kFirst, first},
        {kSecond, partTags(0x23, "330 2\n100 AcDbEntity\n8 Doors\n")},
        {kGroups, "0 GROUP\n5 5\n330 4\n340 20\n340 21\n340 22\n"
                  "0 GROUP\n5 6\n330 4\n340 20\n340 21\n340 22\n340 11"},
        {kOwned, ""},
        {kOrder, firstPlace + secondPlace},
    };
    const std::string line = "0 LINE\n5 10\n"; // which may be meant as well by what names 10
    const std::vector<std::vector<Part>> cases{
        {},
        {kept(kOrder, "")},
        {kept("330 3\n330 2", "330 3\n330 9"), {kOrder, kOrder, firstPlace}}, // another block's
        {{kFirst, line + kFirst, line + first},
         kept(kGroups, kGroups),
         {kOrder, kOrder, kOrder + secondPlace}},
    };
    for (const auto& parts : cases) {
        const auto [before, after] = beforeAndAfter(parts, usual);
        const auto [bytes, warnings] = exported(before, {ExportForm::lines, explode});
        EXPECT_EQ(warnings, "");
        EXPECT_TRUE(sameText(bytes, after)) << before;
    }
}

TEST(Export, putsInsertsInTheirPlace) {
    const auto [bytes, warnings] = exported(drawing(), {ExportForm::blocks, explode});
    EXPECT_EQ(warnings, "");
    const std::string expected = changed({
        {"9 $HANDSEED\n5 20", "9 $HANDSEED\n5 2E"},
        {"5 1\n70 1", "5 1\n70 3"},
        {"0 ENDTAB", recordTags(0x20, "ORVEX_10") + recordTags(0x27, "ORVEX_12_3") + "0 ENDTAB"},
        {"2 ORVEX_12_2\n0 ENDBLK", "2 ORVEX_12_2\n0 ENDBLK\n" +
                                       blockTags(0x20, "Walls", "ORVEX_10") +
                                       blockTags(0x27, "Doors", "ORVEX_12_3")},
        {kFirst, insertTags(0x26, "8 Walls\n60 1\n", "ORVEX_10")},
        {kSecond, insertTags(0x2D, "8 Doors\n", "ORVEX_12_3")},
        {kGroups, "0 GROUP\n5 5\n330 4\n340 26\n0 GROUP\n5 6\n330 4\n340 26\n340 11"},
        {kOwned, ""},
        {kOrder, "331 26\n5 FF\n331 11\n5 FE\n331 2D\n5 12"},
    });
    EXPECT_TRUE(sameText(bytes, expected));
}

// Old ones without a table of block records, owners and classes; one that doesn't say its version
// gets one that has them.
TEST(Export, writesEachVersionAsItIs) {
    const auto edited = [](const std::string& tags, const char* what, const char* with) {
        return std::regex_replace(tags, std::regex(what), with);
    };
    const auto header = [](const std::string& version, const std::string& seed) {
        return "0 SECTION\n2 HEADER\n9 $ACADVER\n1 " + version + "\n9 $HANDSEED\n5 " + seed +
               "\n0 ENDSEC\n";
    };
    const std::string old = header("AC1009", "11");
    const std::string start = "0 SECTION\n2 ENTITIES\n";
    const std::string end = "0 ENDSEC\n0 EOF";
    const std::string drawn = start + "0 MLINE\n5 10\n8 Walls\n2 STANDARD\n72 0\n73 0\n" + end;
    const std::string parts = start + partTags(0x11, "100 AcDbEntity\n8 Walls\n");
    const auto block = [&start](std::uint64_t first) {
        return "0 SECTION\n2 BLOCKS\n" + blockTags(first, "Walls", "ORVEX_10") + "0 ENDSEC\n" +
               start + insertTags(first + 6, "8 Walls\n", "ORVEX_10");
    };
    const std::string table =
        "0 SECTION\n2 TABLES\n0 TABLE\n2 BLOCK_RECORD\n5 11\n330 0\n100 AcDbSymbolTable\n70 1\n" +
        edited(recordTags(0x12, "ORVEX_10"), "330 1\n", "330 11\n") + "0 ENDTAB\n0 ENDSEC\n";
    const char* const unknown = "(330|100) [^\n]*\n";
    const struct {
        std::string head;
        ExportForm form;
        std::string expected;
    } cases[] = {
        {old, ExportForm::lines, header("AC1009", "14") + edited(parts, unknown, "")},
        {old, ExportForm::blocks, header("AC1009", "17") + edited(block(0x10), unknown, "")},
        {"", ExportForm::lines, header("AC1015", "14") + parts},
        {"", ExportForm::blocks,
         header("AC1015", "19") + table + edited(block(0x12), "330 2\n", "")},
    };
    for (const auto& [head, form, expected] : cases) {
        const auto result = exported(dxf(head + drawn), {form, explode});
        EXPECT_TRUE(sameText(result.bytes, dxf(expected + end)));
    }
}

TEST(Export, leavesWhatNothingCanStandFor) {
    const auto refuse = [](const MlineContent&) -> Result<std::vector<PlainContent>> {
        return Failure{FailureCause::programFault, {}, 0, "no element"};
    };
    const auto [bytes, warnings] = exported(drawing(), {ExportForm::blocks, refuse});
    EXPECT_TRUE(sameText(bytes, drawing()));
    EXPECT_EQ(warnings, "multiline #10 stays as it is: no element\n"
                        "multiline #12 stays as it is: no element\n");
}

using Edit = std::function<void(DatabaseCore&, KdDbStub&)>;

// The bytes without the multiline 10, which `edit` gets, too; and what is told.
Exported erased(
    const std::string& bytes, const Edit& edit = [](DatabaseCore&, KdDbStub&) {}) {
    const auto file = openDrawing(bytes);
    DatabaseCore& core = file->database().core();
    core.changes().beginCommand();
    core.erase(stubOf(*file, 0x10));
    edit(core, stubOf(*file, 0x10));
    core.changes().endCommand();
    EXPECT_FALSE(file->save("/dev/null"));
    return {file->bytes(), savingWarnings(*file)};
}

TEST(Erasing, takesAMultilineOutOfWhatNamesIt) {
    const std::map<const char*, std::string> usual{{kFirst, ""},
                                                   {kAlone, ""},
                                                   {kGroups, "0 GROUP\n5 6\n330 4\n340 11"},
                                                   {kOwned, ""},
                                                   {kOrder, "331 11\n5 FE"}};
    const std::string end = " can't be read and still names what was erased\n";
    const std::string order = "the table of drawing order #C" + end;
    const struct {
        std::vector<Part> parts;
        std::string warnings;
    } cases[] = {
        {{}, ""},
        {{kept(kOrder, "331 10\n5 FF\n331 x\n5 FE")}, order},
        {{kept(kOrder, "331 10\n331 11\n5 FE")}, order}, // without a place
        {{kept(kOrder, "331 11\n5 FE\n331 10")}, order},
        {{kept(kOrder, "331 x\n331 11")}, ""}, // odd, but nothing of it leaves
        {{{kAlone, "350 5\n3 ALONE\n360 5\n3 X\n350 x", "350 5\n3 X\n350 x"}}, ""},
        {{kept(kAlone, kAlone), kept(kGroups, "0 GROUP\n5 6\n330 4\n340 10\n340 x")},
         "the group #6" + end},
        {{kept(kAlone, kAlone), kept(kGroups, "0 GROUP\n5 6\n330 4\n340 11\n340 x")}, ""},
        {{kept(kAlone, kAlone), {kGroups, "0 GROUP\n5 5\n340 10", ""}}, ""}, // nobody's
        {{kept(kOwned, "0 DICTIONARY\n5 A\n330 11\n3 MINE\n360 B\n0 XRECORD\n5 B\n330 A")}, ""},
        {{kept(kOwned, "0 DICTIONARY\n5 D\n330 10")}, ""},
        // Its record breaks off where its dictionary would be named.
        {{{kFirst, "0 MLINE\n5 10\n2 STANDARD\n72 0\n73 0\n102 {ACAD_XDICTIONARY", ""},
          kept(kOwned, kOwned)},
         ""},
        // Groups that belong to it go with it.
        {{kept(kAlone, kAlone),
          {kGroups, "0 GROUP\n5 5\n330 A\n340 10\n0 GROUP\n5 6\n330 A\n340 10\n340 11", ""},
          {kOwned, "0 DICTIONARY\n5 A\n330 10\n3 ONE\n360 5\n3 TWO\n360 6", ""}},
         ""},
    };
    for (const auto& [parts, warnings] : cases) {
        const auto [before, after] = beforeAndAfter(parts, usual);
        const Exported result = erased(before);
        EXPECT_TRUE(sameText(result.bytes, after)) << before;
        EXPECT_EQ(result.warnings, warnings);
    }
}

TEST(Erasing, putsWhatWasMadeOfAMultilineInItsGroupsAndItsPlace) {
    const auto [bytes, warnings] = erased(drawing(), [](DatabaseCore& core, KdDbStub& gone) {
        auto content = std::make_shared<PlainContent>();
        content->traits = shareTraits(EntityTraits());
        content->shape = LineShape{{1.0, 2.0, 0.0}, {3.0, 4.0, 5.0}};
        content->replaces = KdDbObjectId(&gone);
        auto line = std::make_unique<PlainEntity>();
        line->setContent(content);
        BlockEntities& model = core.blocks().modelSpace();
        core.blocks().appendEntity(model,
                                   core.adopt(std::move(line), ObjectKind::entity, model.record));
    });
    EXPECT_EQ(warnings, "");
    const std::string expected = changed({
        {"9 $HANDSEED\n5 20", "9 $HANDSEED\n5 21"},
        {kFirst, ""},
        {kSecond, std::string(kSecond) + "\n0 LINE\n5 20\n330 2\n100 AcDbEntity\n8 0\n"
                                         "100 AcDbLine\n10 1.0\n20 2.0\n30 0.0\n"
                                         "11 3.0\n21 4.0\n31 5.0"},
        {kGroups, "0 GROUP\n5 5\n330 4\n340 20\n0 GROUP\n5 6\n330 4\n340 20\n340 11"},
        {kOwned, ""},
        {kOrder, "331 20\n5 FF\n331 11\n5 FE"},
    });
    EXPECT_TRUE(sameText(bytes, expected));
}

} // namespace
