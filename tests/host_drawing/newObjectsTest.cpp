// Objects that the file has not had, and the places that have to be made for them.

#include "BlockList.h"
#include "ChangeLog.h"
#include "DatabaseCore.h"
#include "KdDbBlockTable.h"
#include "KdDbDictionary.h"
#include "KdDbLayerTable.h"
#include "KdDbLinetypeTable.h"
#include "KdDbMline.h"
#include "KdDbMlineStyle.h"
#include "MlineContent.h"
#include "MlineStyleContent.h"
#include "ObjectTable.h"
#include "WellKnownObjects.h"
#include "sampleDrawing.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace orvex;
using namespace orvex::testing;
using ::testing::HasSubstr;

KdDbStub& addMline(DrawingFile& file, BlockEntities& block, KdDbStub* style) {
    DatabaseCore& core = file.database().core();
    auto mline = std::make_unique<KdDbMline>();
    auto content = std::make_shared<MlineContent>();
    content->style = KdDbObjectId(style);
    content->scale = 2.5;
    content->justification = 1;
    content->vertices = {{{0.0, 0.0, 0.0}, {1.0, 0.0, 0.0}, {0.0, 1.0, 0.0}},
                         {{8.0, 0.0, 0.0}, {1.0, 0.0, 0.0}, {0.0, 1.0, 0.0}}};
    content->lists.assignFlat(2, {2, 0, 2, 0, 0, 0, 0, 0}, {1.25, 0.0, -1.25, 0.0});
    mline->setContent(content);
    KdDbStub& stub = core.adopt(std::move(mline), ObjectKind::mline, block.record);
    core.blocks().appendEntity(block, stub);
    return stub;
}

KdDbStub& addStyle(DrawingFile& file, const wchar_t* name) {
    DatabaseCore& core = file.database().core();
    auto style = std::make_unique<KdDbMlineStyle>();
    style->initMlineStyle();
    style->setName(name);
    auto* const dictionary =
        dynamic_cast<KdDbDictionary*>(core.open(*core.wellKnown().styleDictionary, true));
    KdDbObjectId id;
    dictionary->setAt(name, style.release(), id);
    return *id.stub();
}

KdDbStub& addLinetype(DrawingFile& file, const wchar_t* name) {
    DatabaseCore& core = file.database().core();
    auto linetype = std::make_unique<KdDbLinetypeTableRecord>();
    linetype->setName(name);
    linetype->setComments(L"Dots . . .");
    linetype->setDashes({0.0, -0.25});
    auto* const table =
        dynamic_cast<KdDbLinetypeTable*>(core.open(*core.wellKnown().linetypeTable, true));
    KdDbObjectId id;
    table->add(id, linetype.release());
    return *id.stub();
}

void addLayer(DrawingFile& file, std::unique_ptr<KdDbLayerTableRecord> layer) {
    DatabaseCore& core = file.database().core();
    auto* const table =
        dynamic_cast<KdDbLayerTable*>(core.open(*core.wellKnown().layerTable, true));
    KdDbObjectId id;
    table->add(id, layer.release());
}

std::unique_ptr<KdDbLayerTableRecord> unusualLayer() {
    auto layer = std::make_unique<KdDbLayerTableRecord>();
    layer->setName(L"Hidden");
    layer->setIsOff(true);
    layer->setIsFrozen(true);
    layer->setIsLocked(true);
    layer->setLinetype(L"DOTS");
    layer->setLineweight(25);
    KdCmColor color;
    color.setColorIndex(3);
    layer->setColor(color);
    return layer;
}

std::uint64_t highestHandle(DrawingFile& file) {
    std::uint64_t highest = 0;
    for (const KdDbStub& stub : file.database().core().objects().stubs()) {
        highest = std::max(highest, stub.handle);
    }
    return highest;
}

std::uint64_t seedOf(DrawingFile& file) {
    return std::get<HeaderHandle>(*file.database().core().variables().find("HANDSEED")).value;
}

constexpr const char* kNewMline = "100 AcDbMline\n2 WALL\n340 2F\n40 2.5\n70 1\n71 1\n72 2\n73 2\n"
                                  "10 0.0\n20 0.0\n30 0.0\n210 0.0\n220 0.0\n230 1.0\n"
                                  "11 0.0\n21 0.0\n31 0.0\n12 1.0\n22 0.0\n32 0.0\n"
                                  "13 0.0\n23 1.0\n33 0.0\n"
                                  "74 2\n41 1.25\n41 0.0\n75 0\n74 2\n41 -1.25\n41 0.0\n75 0\n"
                                  "11 8.0\n21 0.0\n31 0.0\n12 1.0\n22 0.0\n32 0.0\n"
                                  "13 0.0\n23 1.0\n33 0.0\n74 0\n75 0\n74 0\n75 0\n";

TEST(NewMline, standsBehindTheOthersOfItsBlock) {
    const std::string sample = sampleDrawing();
    const struct {
        const wchar_t* block;
        const char* head;
        const char* behind; // what it stands before, from there on
        const char* place;
    } cases[] = {
        {L"*Model_Space", "330 1F\n100 AcDbEntity\n8 0\n", "ENTITIES", "  0\nENDSEC"},
        {L"*Paper_Space", "330 1B\n100 AcDbEntity\n67 1\n8 0\n", "ENTITIES", "  0\nENDSEC"},
        {L"Room", "330 1C\n100 AcDbEntity\n8 0\n", "BLOCKS", "  0\nENDBLK"},
    };
    for (const auto& c : cases) {
        const auto file = openDrawing(sample);
        DatabaseCore& core = file->database().core();
        core.changes().beginCommand();
        addMline(*file, *core.blocks().find(c.block), &stubOf(*file, 0x2F));
        core.changes().endCommand();
        std::string expected = replaced(sample, "$HANDSEED\n  5\n100", "$HANDSEED\n  5\n101");
        expected.insert(expected.find(c.place, expected.find(c.behind)),
                        dxf(std::string("0 MLINE\n5 100\n") + c.head + kNewMline));
        EXPECT_TRUE(sameText(file->bytes(), expected));
        core.changes().undo();
        EXPECT_TRUE(sameText(file->bytes(), sample));
    }
}

// No handle comes after the last one, so a seed there is as good as none.
TEST(NewMline, takesTheNextHandleWhereTheSeedIsNoUse) {
    const auto file = openDrawing(
        replaced(sampleDrawing(), "$HANDSEED\n  5\n100", "$HANDSEED\n  5\nFFFFFFFFFFFFFFFF"));
    const std::uint64_t highest = highestHandle(*file);
    BlockEntities& model = file->database().core().blocks().modelSpace();
    EXPECT_EQ(addMline(*file, model, &stubOf(*file, 0x2F)).handle, highest + 1);
    EXPECT_EQ(seedOf(*file), highest + 2);
}

TEST(NewStyle, isListedInTheDictionary) {
    const std::string sample = sampleDrawing();
    const auto file = openDrawing(sample);
    addStyle(*file, L"Zaun");
    std::string expected = replaced(sample, "$HANDSEED\n  5\n100", "$HANDSEED\n  5\n101");
    expected = replaced(expected, "350\n2F\n", "350\n2F\n  3\nZaun\n350\n100\n");
    expected.insert(expected.rfind("  0\nENDSEC"),
                    dxf("0 MLINESTYLE\n5 100\n102 {ACAD_REACTORS\n330 17\n102 }\n330 17\n"
                        "100 AcDbMlineStyle\n2 Zaun\n70 0\n3 \n62 256\n51 90.0\n52 90.0\n71 2\n"
                        "49 0.5\n62 256\n6 BYLAYER\n49 -0.5\n62 256\n6 BYLAYER\n"));
    EXPECT_TRUE(sameText(file->bytes(), expected));
}

TEST(NewStyle, isListedInADictionaryWithoutEntries) {
    const auto file = openDrawing(dxf("0 SECTION\n2 OBJECTS\n0 DICTIONARY\n5 C\n3 ACAD_MLINESTYLE\n"
                                      "350 17\n0 DICTIONARY\n5 17\n281 1\n0 ENDSEC\n0 EOF"));
    addStyle(*file, L"Zaun");
    EXPECT_THAT(file->bytes(), HasSubstr(dxf("281 1\n3 STANDARD\n350 19\n3 Zaun\n350 18\n")));
}

TEST(NewStyle, isWrittenOnceItIsCurrent) {
    const auto file = openDrawing(dxf("0 SECTION\n2 HEADER\n9 $CMLSTYLE\n2 GONE\n0 ENDSEC\n0 EOF"));
    file->database().core().setVariable("CMLSTYLE", std::wstring(L"STANDARD"));
    EXPECT_THAT(file->bytes(), HasSubstr(dxf("100 AcDbMlineStyle\n2 STANDARD")));
}

TEST(NewLinetype, isCountedWhereTheTableCountedRight) {
    const std::string sample = sampleDrawing();
    for (const char* const count : {"2", "7"}) {
        const std::string bytes = replaced(sample, "AcDbSymbolTable\n 70\n2",
                                           std::string("AcDbSymbolTable\n 70\n") + count);
        const auto file = openDrawing(bytes);
        addLinetype(*file, L"DOTS");
        std::string expected = replaced(bytes, "$HANDSEED\n  5\n100", "$HANDSEED\n  5\n101");
        if (count[0] == '2') {
            expected = replaced(expected, "AcDbSymbolTable\n 70\n2", "AcDbSymbolTable\n 70\n3");
        }
        expected.insert(expected.find("  0\nENDTAB"),
                        dxf("0 LTYPE\n5 100\n330 5\n100 AcDbSymbolTableRecord\n"
                            "100 AcDbLinetypeTableRecord\n2 DOTS\n70 0\n3 Dots . . .\n72 65\n"
                            "73 2\n40 0.25\n49 0.0\n74 0\n49 -0.25\n74 0\n"));
        EXPECT_TRUE(sameText(file->bytes(), expected));
    }
}

TEST(NewLinetype, isCountedInATableThatItsSectionEnds) {
    const auto file = openDrawing(dxf("0 SECTION\n2 TABLES\n0 TABLE\n2 LAYER\n0 LTYPE\n2 B\n"
                                      "0 TABLE\n2 LTYPE\n70 1\n0 LTYPE\n2 A\n0 ENDSEC\n0 EOF"));
    DatabaseCore& core = file->database().core();
    EXPECT_EQ(core.wellKnown().findLinetype(L"B"), nullptr) << "in a table of another kind";
    addLinetype(*file, L"DOTS");
    EXPECT_NE(file->bytes().find(dxf("2 LTYPE\n70 2")), std::string::npos) << file->bytes();
}

TEST(NewLayer, hasNoFlagsAndNoLineweightUnlessTheyAreSet) {
    const auto file = openDrawing(sampleDrawing());
    auto layer = std::make_unique<KdDbLayerTableRecord>();
    layer->setName(L"Plain");
    KdCmColor color;
    color.setColorIndex(7);
    layer->setColor(color);
    addLayer(*file, std::move(layer));
    EXPECT_THAT(file->bytes(), HasSubstr(dxf("2 Plain\n70 0\n62 7\n6 Continuous\n0 ENDTAB")));
}

// The multiline A1 names a style A3 that the file doesn't have, and still does so afterwards.
TEST(NewObjects, doNotTakeTheHandleOfAMissingStyle) {
    const std::string torn = dxf("0 SECTION\n2 ENTITIES\n0 MLINE\n5 A1\n8 0\n100 AcDbMline\n"
                                 "2 GONE\n340 A3\n40 1.0\n70 0\n71 1\n72 0\n73 2\n"
                                 "0 ENDSEC\n0 EOF\n");
    const auto file = openDrawing(torn);
    DatabaseCore& core = file->database().core();
    addMline(*file, core.blocks().modelSpace(), core.wellKnown().findStyle(L"STANDARD"));
    const auto again = openDrawing(file->bytes());
    EXPECT_EQ(again->database().core().objects().findHandle(0xA3), nullptr);
    EXPECT_NE(again->database().core().wellKnown().findStyle(L"STANDARD")->record, kNoRecord);
}

// Sections, tables, dictionaries and a seed of handles come with them where the file has none.
TEST(NewObjects, areWrittenWhereverTheFileBreaksOff) {
    const std::string sample = sampleDrawing();
    for (std::size_t at = 0; at < sample.size();
         at = sample.find('\n', sample.find('\n', at) + 1) + 1) {
        SCOPED_TRACE("cut at byte " + std::to_string(at));
        const std::string cut = sample.substr(0, at);
        const auto file = openDrawing(cut);
        DatabaseCore& core = file->database().core();
        core.changes().beginCommand();
        KdDbStub& mline = addMline(*file, core.blocks().modelSpace(), &addStyle(*file, L"Zaun"));
        addLinetype(*file, L"DOTS");
        const std::uint64_t handle = mline.handle;
        core.changes().endCommand();
        const auto again = openDrawing(file->bytes());
        DatabaseCore& read = again->database().core();
        KdDbStub* const found = read.objects().findHandle(handle);
        KdDbStub* const style = read.wellKnown().findStyle(L"Zaun");
        ASSERT_TRUE(found != nullptr && style != nullptr);
        ASSERT_EQ(read.blocks().modelSpace().entities.back(), found);
        const auto* const copy = dynamic_cast<KdDbMline*>(read.load(*found));
        ASSERT_NE(copy, nullptr);
        ASSERT_EQ(copy->numVertices(), 2);
        ASSERT_EQ(copy->style().stub(), style);
        ASSERT_EQ(style->owner, read.wellKnown().styleDictionary);
        ASSERT_NE(read.wellKnown().findLinetype(L"DOTS"), nullptr);
        ASSERT_GT(seedOf(*again), highestHandle(*again));
        core.changes().undo();
        ASSERT_TRUE(sameText(file->bytes(), cut));
    }
}

// All of each record, in the order in which other readers want it. What is added has the handles 1
// to 4, dictionaries, STANDARD and tables those after.
TEST(NewObjects, areWrittenInFullWhereThereIsNothing) {
    const auto file = openDrawing(dxf("0 EOF"));
    KdDbStub& style = addStyle(*file, L"Zaun");
    addMline(*file, file->database().core().blocks().modelSpace(), &style);
    addLinetype(*file, L"DOTS");
    addLayer(*file, unusualLayer());
    const std::string usual =
        "70 0\n3 \n62 256\n51 90.0\n52 90.0\n71 2\n49 0.5\n62 256\n6 BYLAYER\n"
        "49 -0.5\n62 256\n6 BYLAYER\n";
    const std::string owned = "102 {ACAD_REACTORS\n330 5\n102 }\n330 5\n100 AcDbMlineStyle\n";
    const std::string expected =
        "0 SECTION\n2 HEADER\n9 $ACADVER\n1 AC1015\n9 $HANDSEED\n5 A\n0 ENDSEC\n"
        "0 SECTION\n2 TABLES\n0 TABLE\n2 LTYPE\n5 8\n330 0\n100 AcDbSymbolTable\n70 1\n"
        "0 LTYPE\n5 3\n330 8\n100 AcDbSymbolTableRecord\n100 AcDbLinetypeTableRecord\n"
        "2 DOTS\n70 0\n3 Dots . . .\n72 65\n73 2\n40 0.25\n49 0.0\n74 0\n49 -0.25\n74 0\n"
        "0 ENDTAB\n0 TABLE\n2 LAYER\n5 9\n330 0\n100 AcDbSymbolTable\n70 1\n"
        "0 LAYER\n5 4\n330 9\n100 AcDbSymbolTableRecord\n100 AcDbLayerTableRecord\n"
        "2 Hidden\n70 5\n62 -3\n6 DOTS\n370 25\n0 ENDTAB\n0 ENDSEC\n"
        "0 SECTION\n2 ENTITIES\n0 MLINE\n5 2\n100 AcDbEntity\n8 0\n" +
        replaced(replaced(kNewMline, "WALL", "Zaun"), "340 2F", "340 1") +
        "0 ENDSEC\n0 SECTION\n2 OBJECTS\n"
        "0 DICTIONARY\n5 6\n330 0\n100 AcDbDictionary\n281 1\n3 ACAD_MLINESTYLE\n350 5\n"
        "0 DICTIONARY\n5 5\n102 {ACAD_REACTORS\n330 6\n102 }\n330 6\n100 AcDbDictionary\n"
        "281 1\n3 STANDARD\n350 7\n3 Zaun\n350 1\n" +
        "0 MLINESTYLE\n5 7\n" + owned + "2 STANDARD\n" + usual + "0 MLINESTYLE\n5 1\n" + owned +
        "2 Zaun\n" + usual + "0 ENDSEC\n0 EOF";
    EXPECT_TRUE(sameText(file->bytes(), dxf(expected)));

    const auto again = openDrawing(dxf(expected));
    DatabaseCore& core = again->database().core();
    auto* const hidden = core.load(*core.wellKnown().findLayer(L"Hidden"));
    ASSERT_NE(hidden, nullptr);
    EXPECT_TRUE(dynamic_cast<KdDbLayerTableRecord&>(*hidden).isFrozen());
}

// Readers take the first object for the root of all, also where that place's own object is changed.
TEST(NewObjects, comeAfterTheRootDictionary) {
    const auto file = openDrawing(dxf("0 SECTION\n2 OBJECTS\n0 MLINESTYLE\n5 2F\n2 WALL\n71 0\n"
                                      "0 ENDSEC\n0 EOF"));
    auto* const wall =
        dynamic_cast<KdDbMlineStyle*>(file->database().core().open(stubOf(*file, 0x2F), true));
    ASSERT_NE(wall, nullptr);
    wall->setFilled(true);
    addStyle(*file, L"Zaun");
    const std::string bytes = file->bytes();
    EXPECT_NE(bytes.find(dxf("2 OBJECTS\n0 DICTIONARY")), std::string::npos) << bytes;
    EXPECT_NE(bytes.find(dxf("70 1")), std::string::npos) << bytes;
}

} // namespace
