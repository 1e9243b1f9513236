// What is refused, what is warned of, and what an opened drawing holds.

#include "BlockList.h"
#include "DatabaseCore.h"
#include "KdDbBlockTable.h"
#include "KdDbLayerTable.h"
#include "KdDbLinetypeTable.h"
#include "KdDbMline.h"
#include "KdDbMlineStyle.h"
#include "MlineStyleContent.h"
#include "ObjectTable.h"
#include "TestPaths.h"
#include "WellKnownObjects.h"
#include "sampleDrawing.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

using namespace orvex;
using namespace orvex::testing;
using ::testing::HasSubstr;

TEST(Opening, isRefusedWithTheLine) {
    const struct {
        std::string bytes;
        std::size_t line;
        const char* text;
    } files[] = {
        {std::string("Drawing in bytes  \r\n\x1A\0\0\0SECTION", 31), 0, "at byte 0: "},
        {"  0\nSECTION\n  x\nHEADER\n", 3, "a group code is no integer"},
        {"  0\nSECTION\n\nHEADER\n", 3, "no integer"},
        {"  0\nSECTION\n 2 2\nHEADER\n", 3, "no integer"},
        {std::string("  0\nSECTION\n  2\0\nHEADER\n", 23), 3, "no integer"},
        {"  0\nSECTION\n  2\nHEADER\n  0\n", 5, "no value"},
        {"  0\nSECTION\n  2\nHEADER\n  0", 5, "no value"},
        {"\xFF\xFE\x30", 1, "this is no drawing: a group code is no integer"},
        {"\x89PNG\r\n\x1A\n", 1, "this is no drawing: "},
        {"12\nwords\nmore words\n", 3, "this is no drawing: "},
    };
    for (const auto& file : files) {
        const Failure failure = openFailing(file.bytes);
        EXPECT_EQ(failure.cause, FailureCause::unreadableInput);
        EXPECT_EQ(failure.line, file.line) << file.bytes;
        EXPECT_THAT(failure.text, HasSubstr(file.text));
    }
}

// The least integer has no absolute value: an index that means nothing, and no undefined result.
TEST(Opening, takesAnyNumberForAColor) {
    const struct {
        const char* tags;
        int index;
    } colors[] = {{"62 7", 7}, {"62 -7", 7}, {"62 -2147483648", 0}, {"420 255\n62 7", 7}};
    for (const auto& [tags, index] : colors) {
        const auto file = openDrawing(replaced(sampleDrawing(), " 62\n2\n", dxf(tags)));
        auto* const style =
            dynamic_cast<KdDbMlineStyle*>(file->database().core().load(stubOf(*file, 0x2F)));
        ASSERT_NE(style, nullptr);
        EXPECT_EQ(style->fillColor().colorIndex(), index) << tags;
    }
}

// A pipe without a writer must not hang, a device without an end not fill the memory.
TEST(Opening, takesRegularFilesOnlyAndNamesWhatItRefuses) {
    const std::string pipe = (std::filesystem::temp_directory_path() / "pipe.dxf").string();
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    for (const std::string& path :
         {std::string("/nowhere/at/all.dxf"), std::string("/"), pipe, std::string("/dev/zero"),
          std::string("/dev/null"), (sourceDir() / "README.md").string()}) {
        const auto opened = DrawingFile::open(path);
        ASSERT_FALSE(opened) << path;
        EXPECT_EQ(opened.failure().cause, FailureCause::unreadableInput);
        EXPECT_EQ(opened.failure().file, path);
        EXPECT_NE(opened.failure().text, "");
    }
}

TEST(Opening, tellsOfWhatIsOdd) {
    const std::string sample = sampleDrawing();
    const std::size_t lastLine = std::count(sample.begin(), sample.end(), '\n');
    const auto odd = [&](const char* from, const std::string& to) {
        return replaced(sample, from, to);
    };
    const struct {
        std::string bytes;
        std::string text; // of the only warning; with its line where one is to blame
    } files[] = {
        {"\xEF\xBB\xBF" + sample, "1: a byte-order mark"},
        {odd("\n", "\r\n"), "0: the lines end in different ways"},
        {sample.substr(0, sample.size() - 1), std::to_string(lastLine) + ": the last line"},
        {sample.substr(0, sample.find("  0\nEOF")), "stops without EOF"},
        {sample + "\n", std::to_string(lastLine + 1) + ": bytes follow"},
        {odd("AC1018", "AC1009"), "older than AC1012"},
        {odd("AC1018", "AC1099"), "newer than AC1032"},
        {odd("$ACADVER", "$NOTHING"), "doesn't say its version"},
        {odd(" 72\n     3", " 72\n     4"),
         "289: a multiline contradicts itself, the number of its vert"},
        {odd(" 73\n     2", " 73\n     3"), ": a multiline contradicts itself"},
        {odd(" 74\n     4", " 74\n     3"), ": a multiline contradicts itself, a list is longer"},
        {odd(" 74\n     4", " 74\n     5"), ": a multiline contradicts itself, its lists"},
        {odd("0.250", "inf"), ": a multiline contradicts itself, a value is no finite"},
        {odd("0.250", "0,25"), ": a multiline contradicts itself, a value is no finite"},
        {odd("340\n2F\n", ""), ": a multiline names its style by name alone"},
        {odd("  2\nWALL\n340\n2F\n", ""), ": a multiline contradicts itself, it names no style"},
        {odd("340\n2F\n", "340\nX\n"), ", its style's handle is no handle"},
        {odd("50\n 70\n     1", "50\n 70\n     3"), ", its justification is none of the three"},
        {odd("50\n 70\n     1", "50\n 70\n    -1"), ", a count is invalid"},
        {odd(" 71\n     1", " 71\n     x"), ", its flags are no number"},
        {odd("0.50\n 70", "0.50\n 74\n0\n 70"), ", a list stands before its first vertex"},
        {odd(" 11\n10.00", " 40\n2.0\n 11\n10.00"), ", a value stands after the vertices"},
        {odd(" 72\n     3\n", ""), ", a count is missing"},
        {odd(" 12\n1.00\n 22\n0.00\n", " 22\n0.00\n 12\n1.00\n"), ", a vertex is not complete"},
        {odd(" 22\n0.00\n 32\n0.0\n", " 32\n0.0\n 22\n0.00\n"), ", a vertex is not complete"},
        {odd(" 13\n0.0\n 23\n1.0\n 33\n0.0\n", " 13\n0.0\n"), ", its lists don't match"},
        {dxf("0 MLINE\n2 A\n72 1\n73 0\n11 1\n21 2\n12 1\n22 0\n13 0"), ", its last vertex is not"},
        {odd(" 13\n0.0\n 23\n1.0", " 13\n0.0"), ", a vertex is not complete"},
        {odd(" 12\n1.00\n", " 12\n1.00\n 12\n1.0\n"), ", a vertex is out of order"},
        {odd("340\n2F", "340\nFFF"), ": a multiline names a style that the drawing doesn't have"},
        {odd(" 71\n2\n 49\n0.50", " 71\n3\n 49\n0.50"), ": a multiline style contradicts itself"},
        {odd("62\n1\n420", "62\nx\n420"), ": a multiline style contradicts itself, a colour is no"},
        {odd("420\n16711680", "420\nx"), ": a multiline style contradicts itself, a colour is no"},
        {odd(" 51\n45.000", " 51\nx"), ": a multiline style contradicts itself, a value is no fin"},
    };
    for (const char* const field : {"2 WALL", "340 2F", "40 1", "70 1", "71 1", "72 3", "73 2",
                                    "10 0", "20 0", "30 0", "210 0", "220 0", "230 1"}) {
        EXPECT_THAT(warningsOf(odd("AcDbMline\n", "AcDbMline\n" + dxf(field))),
                    HasSubstr(", a value is there twice"))
            << field;
    }
    EXPECT_EQ(warningsOf(sample), "");
    EXPECT_EQ(warningsOf(odd("AcDbMline\n", "AcDbMline\n102\n{X\n 40\nx\n102\n}\n")), "");
    // Data of other applications may stand before the vertices; what follows after them is theirs.
    EXPECT_EQ(warningsOf(odd(" 11\n0.0\n 21\n0.0\n 31\n0.0\n 12\n1.00",
                             "1000\nx\n 11\n0.0\n 21\n0.0\n 31\n0.0\n 12\n1.00")),
              "");
    EXPECT_EQ(warningsOf(odd("1001\nOTHER_APP\n", "1001\nOTHER_APP\n 11\n1.0\n 40\n1.0\n")), "");
    // All styles that contradict themselves are named.
    const std::string styles = warningsOf(dxf("0 SECTION\n2 OBJECTS\n0 MLINESTYLE\n2 A\n71 5\n"
                                              "0 MLINESTYLE\n2 B\n71 0\n0 MLINESTYLE\n2 C\n71 5"));
    EXPECT_THAT(styles, HasSubstr("5: a multiline style"));
    EXPECT_THAT(styles, HasSubstr("17: a multiline style"));
    for (const auto& file : files) {
        EXPECT_THAT(warningsOf(file.bytes), HasSubstr(file.text));
    }
}

TEST(Opening, keepsAContradictingMultilineOutOfReach) {
    const auto file = openDrawing(replaced(sampleDrawing(), " 72\n     3", " 72\n     4"));
    KdDbStub& stub = stubOf(*file, 0x51);
    EXPECT_EQ(stub.kind, ObjectKind::opaque);
    EXPECT_EQ(file->database().core().open(stub, true), nullptr);
    DatabaseCore& core = file->database().core();
    for (const KdDbStub* const bare :
         {&stub, &core.objects().addStub(ObjectKind::entity, 0xFFF, kNoRecord, nullptr)}) {
        EXPECT_TRUE(std::holds_alternative<NoShape>(core.objects().source()->shapeOf(*bare)));
    }
    const auto& entities = core.blocks().modelSpace().entities;
    EXPECT_EQ(entities.size(), 5U);
    EXPECT_EQ(entities[1], &stub);
}

TEST(Opening, putsEntitiesIntoTheirBlocks) {
    const auto file = openDrawing(sampleDrawing());
    DatabaseCore& core = file->database().core();
    const auto handles = [](const BlockEntities& block) {
        std::vector<std::uint64_t> result;
        for (const KdDbStub* const stub : block.entities) {
            result.push_back(stub->handle);
        }
        return result;
    };
    using Handles = std::vector<std::uint64_t>;
    EXPECT_EQ(handles(core.blocks().modelSpace()), (Handles{0x50, 0x51, 0x52, 0x53, 0x56}));
    EXPECT_EQ(handles(*core.blocks().find(L"*PAPER_SPACE")), (Handles{0x57}));
    const BlockEntities* const room = core.blocks().find(L"room");
    ASSERT_NE(room, nullptr);
    EXPECT_EQ(handles(*room), (Handles{0x41}));
    EXPECT_EQ(room->basePoint, (KdGePoint3d{1.5, 2.5, 0.0}));
    EXPECT_EQ(room->record, &stubOf(*file, 0x1C));
    EXPECT_EQ(core.blocks().blockOf(stubOf(*file, 0x41)), room);
    // A block that its section ends has what stands in it.
    const auto open =
        openDrawing(dxf("0 SECTION\n2 BLOCKS\n0 BLOCK\n2 A\n30 4\n0 LINE\n5 B\n0 ENDSEC"));
    const BlockEntities* const elevated = open->database().core().blocks().find(L"a");
    EXPECT_EQ(handles(*elevated), (Handles{0xB}));
    EXPECT_EQ(elevated->basePoint, (KdGePoint3d{0.0, 0.0, 4.0}));
}

TEST(Opening, takesUsualValuesForWhatIsLeftOut) {
    const auto file = openDrawing(
        dxf("0 SECTION\n2 ENTITIES\n0 MLINE\n5 51\n2 BARE\n72 1\n73 0\n11 1\n21 2\n31 3\n12 1\n"
            "22 0\n13 0\n23 1\n0 MLINE\n5 52\n2 BARE\n71 12\n72 0\n73 0\n0 ENDSEC\n"
            "0 SECTION\n2 OBJECTS\n0 MLINESTYLE\n5 2F\n2 BARE\n71 0\n0 ENDSEC\n"
            "0 SECTION\n2 TABLES\n0 TABLE\n2 LAYER\n0 LAYER\n5 10\n2 BARE\n0 ENDSEC\n0 EOF"));
    DatabaseCore& core = file->database().core();
    const auto* const layer = dynamic_cast<KdDbLayerTableRecord*>(core.load(stubOf(*file, 0x10)));
    const auto* const mline = dynamic_cast<KdDbMline*>(core.load(stubOf(*file, 0x51)));
    const auto* const flagged = dynamic_cast<KdDbMline*>(core.load(stubOf(*file, 0x52)));
    const auto* const style = dynamic_cast<KdDbMlineStyle*>(core.load(stubOf(*file, 0x2F)));
    ASSERT_TRUE(mline != nullptr && flagged != nullptr && style != nullptr && layer != nullptr);
    EXPECT_EQ(layer->color().colorIndex(), 7);
    EXPECT_EQ(mline->scale(), 1.0);
    EXPECT_EQ(mline->justification(), 0);
    EXPECT_EQ(mline->normal(), (KdGeVector3d{0.0, 0.0, 1.0}));
    EXPECT_FALSE(mline->closedMline() || mline->supressStartCaps() || mline->supressEndCaps());
    EXPECT_TRUE(flagged->supressStartCaps() && flagged->supressEndCaps());
    EXPECT_DOUBLE_EQ(style->startAngle(), 1.5707963267948966);
    EXPECT_DOUBLE_EQ(style->endAngle(), 1.5707963267948966);
    EXPECT_EQ(style->fillColor().colorIndex(), 256);
    EXPECT_EQ(style->values().flags, 0);
}

TEST(Opening, readsStylesTablesAndVariables) {
    // What stands in another program's group of a record isn't the record's own.
    const auto file = openDrawing(replaced(
        replaced(sampleDrawing(), "\n  6\nDASHED\n", "\n  6\nDASHED\n102\n{X\n  6\nDOT\n102\n}\n"),
        "45.000\n 52\n90.0", "45.000\n 52\n135.0"));
    DatabaseCore& core = file->database().core();
    const auto* const style = dynamic_cast<KdDbMlineStyle*>(core.load(stubOf(*file, 0x2F)));
    ASSERT_NE(style, nullptr);
    EXPECT_STREQ(style->name(), L"WALL");
    EXPECT_STREQ(style->description(), L"Thick wall");
    EXPECT_EQ(style->values().flags, 1297);
    EXPECT_EQ(style->fillColor().colorIndex(), 2);
    EXPECT_DOUBLE_EQ(style->startAngle(), 0.7853981633974483);
    EXPECT_DOUBLE_EQ(style->endAngle(), 2.356194490192345);
    double offset = 0.0;
    KdCmColor color;
    KdDbObjectId linetype;
    ASSERT_EQ(style->getElementAt(0, offset, color, linetype), Status::done);
    EXPECT_EQ(offset, 0.5);
    EXPECT_EQ(color.colorMethod(), KdCmColor::byColor);
    EXPECT_EQ(color.rgb(), 0xFF0000U);
    EXPECT_EQ(color.colorIndex(), 1);
    EXPECT_EQ(linetype.stub(), &stubOf(*file, 0x15));
    EXPECT_EQ(core.wellKnown().findStyle(L"wall"), &stubOf(*file, 0x2F));

    const auto* const layer =
        dynamic_cast<KdDbLayerTableRecord*>(core.load(*core.wellKnown().findLayer(L"WALLS")));
    ASSERT_NE(layer, nullptr);
    EXPECT_EQ(layer->name(), L"Walls");
    EXPECT_TRUE(layer->isOff());
    EXPECT_TRUE(layer->isLocked());
    EXPECT_FALSE(layer->isFrozen());
    EXPECT_EQ(layer->color().colorIndex(), 3);
    EXPECT_EQ(layer->linetype(), L"DASHED");
    const auto* const dashed = dynamic_cast<KdDbLinetypeTableRecord*>(
        core.load(*core.wellKnown().findLinetype(L"dashed")));
    ASSERT_NE(dashed, nullptr);
    EXPECT_EQ(dashed->dashes(), (std::vector<double>{0.5, -0.25}));

    EXPECT_EQ(core.variables().text("CMLSTYLE"), L"WALL");
    EXPECT_EQ(core.variables().real("CMLSCALE"), 20.0);
    EXPECT_EQ(core.variables().integer("CMLJUST"), 0);
}

} // namespace
