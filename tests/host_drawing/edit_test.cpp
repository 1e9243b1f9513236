// A changed object is written anew only where it differs; everything else keeps its text.

#include "DatabaseCore.h"
#include "KdDbDictionary.h"
#include "KdDbMline.h"
#include "KdDbMlineStyle.h"
#include "MlineContent.h"
#include "sampleDrawing.h"

#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <initializer_list>

namespace {

using namespace orvex;
using namespace orvex::testing;

template <class Object>
Object& opened(DrawingFile& file, std::uint64_t handle) {
    auto* const object =
        dynamic_cast<Object*>(file.database().core().open(stubOf(file, handle), true));
    if (object == nullptr) {
        throw std::runtime_error("no such object");
    }
    return *object;
}

VoVector<double> list(std::initializer_list<double> values) {
    VoVector<double> result;
    for (const double value : values) {
        result.append(value);
    }
    return result;
}

// Gives one element of a vertex another list of lines.
void setLines(KdDbMline& mline, int vertex, int element, std::initializer_list<double> values) {
    KdArray<void*> parameters;
    mline.getParametersAt(vertex, parameters);
    VoVector<KdMLSegment> record(*static_cast<VoVector<KdMLSegment>*>(parameters[0]));
    record[element].m_lineParams = list(values);
    KdArray<void*> changed;
    changed.append(&record);
    mline.setParametersAt(vertex, changed);
}

// Runs an edit as a command on the sample and gives what is saved then. Taken back, the sample is
// saved as it was.
std::string edited(const std::function<void(DrawingFile&)>& edit,
                   const std::string& bytes = sampleDrawing()) {
    const auto file = openDrawing(bytes);
    DatabaseCore& core = file->database().core();
    core.beginCommand();
    edit(*file);
    core.endCommand();
    std::string result = file->bytes();
    EXPECT_TRUE(file->bytes() == result) << "a second save differs";
    core.undo();
    EXPECT_TRUE(file->bytes() == bytes) << "taken back, but not the same";
    return result;
}

std::string editedMline(const std::function<void(KdDbMline&)>& edit) {
    return edited([&](DrawingFile& file) { edit(opened<KdDbMline>(file, 0x51)); });
}

std::string editedStyle(const std::function<void(KdDbMlineStyle&)>& edit) {
    return edited([&](DrawingFile& file) { edit(opened<KdDbMlineStyle>(file, 0x2F)); });
}

TEST(ChangedMline, KeepsTheTextOfWhatIsTheSame) {
    const std::string sample = sampleDrawing();
    EXPECT_TRUE(sameText(editedMline([](KdDbMline& mline) {
                             setLines(mline, 0, 0, {0.25, 0.0, 1.0, 2.5});
                         }),
                         replaced(sample, " 74\n     2\n 41\n0.250\n 41\n0.0\n",
                                  " 74\n     4\n 41\n0.250\n 41\n0.0\n 41\n1.0\n 41\n2.5\n")));
    // An entry in the middle goes, those behind it keep their text.
    EXPECT_TRUE(sameText(editedMline([](KdDbMline& mline) {
                             setLines(mline, 0, 1, {-0.25, 2.0, 3.5});
                         }),
                         replaced(sample, " 74\n     4\n 41\n-0.250\n 41\n0.0\n 41\n2.0\n",
                                  " 74\n     3\n 41\n-0.250\n 41\n2.0\n")));
    EXPECT_TRUE(
        sameText(editedMline([](KdDbMline& mline) { setLines(mline, 0, 1, {}); }),
                 replaced(sample, " 74\n     4\n 41\n-0.250\n 41\n0.0\n 41\n2.0\n 41\n3.5\n",
                          " 74\n     0\n")));
    EXPECT_TRUE(sameText(editedMline([](KdDbMline& mline) {
                             setLines(mline, 0, 0, {0.1, 0.0});
                         }),
                         replaced(sample, "0.250", "0.1")));
    // The last digit counts: 0.1 + 0.2 is not 0.3. A zero has a sign.
    EXPECT_TRUE(sameText(editedMline([](KdDbMline& mline) {
                             setLines(mline, 0, 0, {0.1 + 0.2, -0.0});
                         }),
                         replaced(sample, "0.250\n 41\n0.0", "0.30000000000000004\n 41\n-0.0")));
}

TEST(ChangedMline, WritesItsFields) {
    const std::string sample = sampleDrawing();
    const auto file = openDrawing(sample);
    EXPECT_TRUE(sameText(editedMline([](KdDbMline& mline) { mline.setScale(2.0); }),
                         replaced(sample, "0.50\n 70", "2.0\n 70")));
    EXPECT_TRUE(sameText(editedMline([](KdDbMline& mline) { mline.setScale(1e300); }),
                         replaced(sample, "0.50\n 70", "1e+300\n 70")));
    EXPECT_TRUE(sameText(editedMline([](KdDbMline& mline) { mline.setJustification(2); }),
                         replaced(sample, "0.50\n 70\n     1", "0.50\n 70\n     2")));
    EXPECT_TRUE(sameText(editedMline([](KdDbMline& mline) {
                             mline.setClosedMline(true);
                             mline.setSupressEndCaps(true);
                         }),
                         replaced(sample, " 71\n     1\n", " 71\n    11\n")));
    EXPECT_EQ(
        editedMline([](KdDbMline& mline) {
            mline.setNormal({0.0, 0.0, -1.0});
        }),
        replaced(sample, "230\n1.0\n 11\n0.0\n 21\n0.0\n", "230\n-1.0\n 11\n0.0\n 21\n0.0\n"));
    EXPECT_TRUE(
        sameText(editedMline([](KdDbMline& mline) { mline.setLayer(L"W\u00E4nde \u0416"); }),
                 replaced(sample, "  8\nWalls\n 62", "  8\nW\xE4nde \\U+0416\n 62")));
    EXPECT_TRUE(sameText(editedMline([](KdDbMline& mline) { mline.setColorIndex(256); }),
                         replaced(sample, " 62\n1\n100\nAcDbMline", "100\nAcDbMline")));
    EXPECT_TRUE(sameText(editedMline([](KdDbMline& mline) { mline.setLinetype(L"DASHED"); }),
                         replaced(sample, "Walls\n 62", "Walls\n  6\nDASHED\n 62")));
    EXPECT_EQ(
        edited([](DrawingFile& drawing) {
            opened<KdDbMline>(drawing, 0x51).setStyle(KdDbObjectId(&stubOf(drawing, 0x2E)));
        }),
        replaced(sample, "  2\nWALL\n340\n2F\n 40\n0.50", "  2\nSTANDARD\n340\n2E\n 40\n0.50"));
}

TEST(ChangedMline, GainsAndLosesVertices) {
    const std::string sample = sampleDrawing();
    const std::size_t second = sample.find(" 11\n10.00\n 21\n0.0");
    const std::size_t third = sample.find(" 11\n10.00\n 21\n5.0");
    const std::size_t end = sample.find("1001\nOTHER_APP");
    EXPECT_TRUE(sameText(
        editedMline([](KdDbMline& mline) {
            KdGePoint3d removed;
            mline.removeLastSeg(removed);
        }),
        replaced(sample.substr(0, third) + sample.substr(end), " 72\n     3", " 72\n     2")));

    std::string expected = sample.substr(0, end) +
                           dxf("11 1.0\n21 2.0\n31 3.0\n12 0.0\n22 0.0\n32 0.0\n13 0.0\n23 "
                               "0.0\n33 0.0\n74 0\n75 0\n74 0\n75 0\n") +
                           sample.substr(end);
    EXPECT_TRUE(sameText(editedMline([](KdDbMline& mline) {
                             mline.appendSeg({1.0, 2.0, 3.0});
                         }),
                         replaced(expected, " 72\n     3", " 72\n     4")));

    // The first vertex goes: the others keep their text, and the start follows.
    expected = sample;
    expected.erase(sample.find(" 11\n0.0\n 21\n0.0\n 31\n0.0\n 12\n1.00"),
                   second - sample.find(" 11\n0.0\n 21\n0.0\n 31\n0.0\n 12\n1.00"));
    expected = replaced(expected, " 72\n     3", " 72\n     2");
    expected = replaced(expected, " 73\n     2\n 10\n0.0", " 73\n     2\n 10\n10.0");
    EXPECT_TRUE(sameText(edited([](DrawingFile& file) {
                             auto& mline = opened<KdDbMline>(file, 0x51);
                             const auto old =
                                 std::dynamic_pointer_cast<const MlineContent>(mline.content());
                             auto content = std::make_shared<MlineContent>(*old);
                             content->vertices.erase(content->vertices.begin());
                             content->lists.assignFlat(
                                 2, {2, 2, 2, 0, 0, 0, 0, 0},
                                 {0.3535533905932737, 0.0, 0.0, 1.0, -0.3535533905932737, 0.0});
                             mline.setContent(content);
                         }),
                         expected));

    // Where the file has none, its count of elements stands for nothing.
    expected =
        replaced(sample, " 71\n1\n 72\n0\n 73\n2\n 10\n0.0", " 71\n1\n 72\n1\n 73\n0\n 10\n1.0");
    expected.insert(expected.find("  0\nENDBLK"),
                    dxf("11 1.0\n21 0.0\n31 0.0\n12 0.0\n22 0.0\n32 0.0\n"
                        "13 0.0\n23 0.0\n33 0.0\n"));
    EXPECT_TRUE(sameText(edited([](DrawingFile& file) {
                             opened<KdDbMline>(file, 0x41).appendSeg({1.0, 0.0, 0.0});
                         }),
                         expected));
}

TEST(ChangedMline, KeepsCommentsAndOtherData) {
    const std::string sample =
        replaced(replaced(sampleDrawing(), " 41\n0.250\n", " 41\n0.250\n999\na remark\n"),
                 "340\n2F\n", "340\n2F\n999\nanother\n");
    EXPECT_TRUE(
        sameText(edited(
                     [](DrawingFile& file) {
                         auto& mline = opened<KdDbMline>(file, 0x51);
                         mline.setScale(3.0);
                         setLines(mline, 0, 0, {0.125, 0.0});
                     },
                     sample),
                 replaced(replaced(sample, "0.250\n999", "0.125\n999"), "0.50\n 70", "3.0\n 70")));
}

TEST(ChangedMline, IsWrittenWithTheLineEndsOfItsRecord) {
    const std::string sample = dxf(sampleTags(), "\r\n");
    EXPECT_TRUE(
        sameText(edited(
                     [](DrawingFile& file) {
                         setLines(opened<KdDbMline>(file, 0x51), 0, 0, {0.25, 0.0, 1.0});
                     },
                     sample),
                 replaced(sample, " 74\r\n     2\r\n 41\r\n0.250\r\n 41\r\n0.0\r\n",
                          " 74\r\n     3\r\n 41\r\n0.250\r\n 41\r\n0.0\r\n 41\r\n1.0\r\n")));
}

TEST(ChangedMline, IsErased) {
    const std::string sample = sampleDrawing();
    const std::size_t begin = sample.find("  0\nMLINE\n  5\n51");
    const std::size_t end = sample.find("  0\nMLINE\n  5\n52");
    EXPECT_TRUE(sameText(editedMline([](KdDbMline& mline) { mline.erase(); }),
                         sample.substr(0, begin) + sample.substr(end)));
    // A polyline goes with its vertices.
    const std::size_t polyline = sample.find("  0\nPOLYLINE");
    EXPECT_TRUE(sameText(
        edited([](DrawingFile& file) { file.database().core().erase(stubOf(file, 0x53)); }),
        sample.substr(0, polyline) + sample.substr(sample.find("  0\nWHATEVER"))));
}

TEST(ChangedStyle, KeepsTheTextOfWhatIsTheSame) {
    const std::string sample = sampleDrawing();
    EXPECT_TRUE(sameText(
        editedStyle([](KdDbMlineStyle& style) { style.setDescription(L"\u00DCber\nall"); }),
        replaced(sample, "Thick wall",
                 "\xDC"
                 "ber\\U+000Aall")));
    EXPECT_TRUE(sameText(editedStyle([](KdDbMlineStyle& style) { style.setFilled(false); }),
                         replaced(sample, "1297", "1296")));
    // 30 degrees, as a dialog computes them.
    EXPECT_TRUE(
        sameText(editedStyle([](KdDbMlineStyle& style) {
                     style.setEndAngle(30.0 * 3.14159265358979323846 / 180.0);
                 }),
                 replaced(sample, " 52\n90.0\n 71\n2\n 49\n0.50", " 52\n30.0\n 71\n2\n 49\n0.50")));
    EXPECT_TRUE(sameText(editedStyle([](KdDbMlineStyle& style) {
                             int index = 0;
                             KdCmColor color;
                             style.setElement(index, 0.5, color, {});
                         }),
                         replaced(sample, " 49\n0.50\n 62\n1\n420\n16711680\n  6\nDASHED\n",
                                  " 49\n0.50\n 62\n256\n  6\nBYLAYER\n")));
    EXPECT_TRUE(
        sameText(editedStyle([](KdDbMlineStyle& style) {
                     int index = 0;
                     KdCmColor color;
                     color.setColor(0xC20000FFU);
                     color.setNamesFromDictionaryKey(L"BOOK$Sky");
                     style.addElement(index, 1.5, color, {}, true);
                 }),
                 replaced(sample, " 71\n2\n 49\n0.50\n 62\n1\n420\n16711680\n  6\nDASHED\n",
                          " 71\n3\n 49\n1.5\n 62\n5\n420\n255\n430\nBOOK$Sky\n  6\nBYLAYER\n"
                          " 49\n0.50\n 62\n1\n420\n16711680\n  6\nDASHED\n")));
    EXPECT_EQ(
        editedStyle([](KdDbMlineStyle& style) { style.removeElementAt(0); }),
        replaced(sample, " 71\n2\n 49\n0.50\n 62\n1\n420\n16711680\n  6\nDASHED\n", " 71\n1\n"));
}

TEST(ChangedDictionary, FollowsItsEntries) {
    const std::string sample = sampleDrawing();
    EXPECT_TRUE(sameText(edited([](DrawingFile& file) {
                             opened<KdDbDictionary>(file, 0x17).setName(L"WALL", L"Brick");
                         }),
                         replaced(sample, "  3\nWALL\n", "  3\nBrick\n")));
    const std::size_t style = sample.find("  0\nMLINESTYLE\n  5\n2F");
    EXPECT_TRUE(sameText(
        edited([](DrawingFile& file) { opened<KdDbDictionary>(file, 0x17).remove(L"WALL"); }),
        replaced(sample.substr(0, style) + sample.substr(sample.rfind("  0\nENDSEC")),
                 "  3\nWALL\n350\n2F\n", "")));
}

TEST(ChangedVariables, AreWrittenInPlaceOrAtTheEndOfTheHeader) {
    const std::string sample = sampleDrawing();
    const auto set = [](const char* name, HeaderValue value) {
        return edited([&](DrawingFile& file) { file.database().core().setVariable(name, value); });
    };
    EXPECT_TRUE(sameText(set("CMLSCALE", 1.5), replaced(sample, "20.00", "1.5")));
    EXPECT_TRUE(sameText(set("CMLSCALE", 20.0), sample));
    EXPECT_TRUE(sameText(set("CMLSTYLE", std::wstring(L"STANDARD")),
                         replaced(sample, "$CMLSTYLE\n  2\nWALL", "$CMLSTYLE\n  2\nSTANDARD")));
    EXPECT_TRUE(sameText(set("CMLJUST", 2), replaced(sample, "$PDMODE\n 70\n3\n",
                                                     "$PDMODE\n 70\n3\n  9\n$CMLJUST\n 70\n2\n")));
    EXPECT_TRUE(
        sameText(set("UCSORG", KdGePoint3d{1.0, 2.0, 3.0}),
                 replaced(sample, "$PDMODE\n 70\n3\n",
                          "$PDMODE\n 70\n3\n  9\n$UCSORG\n 10\n1.0\n 20\n2.0\n 30\n3.0\n")));
    EXPECT_TRUE(sameText(set("PICKBOX", 5), sample));
}

} // namespace
