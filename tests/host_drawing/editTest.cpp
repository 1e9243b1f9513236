// A changed object is written anew only where it differs; everything else keeps its text.

#include "BlockList.h"
#include "ChangeLog.h"
#include "DatabaseCore.h"
#include "KdDbDatabase.h"
#include "KdDbDictionary.h"
#include "KdDbLayerTable.h"
#include "KdDbMline.h"
#include "KdDbMlineStyle.h"
#include "MlineContent.h"
#include "RandomEdits.h"
#include "WellKnownObjects.h"
#include "sampleDrawing.h"

#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <initializer_list>
#include <iterator>

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

// Gives one element of a vertex another list of lines.
void setLines(KdDbMline& mline, int vertex, int element, std::initializer_list<double> values) {
    KdArray<void*> parameters;
    mline.getParametersAt(vertex, parameters);
    VoVector<KdMLSegment> record(*static_cast<VoVector<KdMLSegment>*>(parameters[0]));
    record[element].m_lineParams.resize(0);
    for (const double value : values) {
        record[element].m_lineParams.append(value);
    }
    KdArray<void*> changed;
    changed.append(&record);
    mline.setParametersAt(vertex, changed);
}

// Runs an edit as a command; what is saved then is as expected.
// Taken back, the drawing is saved as it was.
template <class Edit>
void expectEdit(const std::string& bytes, Edit edit, const std::string& expected) {
    const auto file = openDrawing(bytes);
    DatabaseCore& core = file->database().core();
    core.changes().beginCommand();
    edit(*file);
    core.changes().endCommand();
    EXPECT_TRUE(sameText(file->bytes(), expected));
    EXPECT_TRUE(sameText(file->bytes(), expected)) << "a second save differs";
    core.changes().undo();
    EXPECT_TRUE(sameText(file->bytes(), bytes)) << "taken back, but not the same";
}
template <class Edit>
void expectEdit(Edit edit, std::string_view from, std::string_view to) {
    SCOPED_TRACE(to);
    expectEdit(sampleDrawing(), edit, replaced(sampleDrawing(), from, to));
}
// The same for one object.
template <class Edit>
void expectMline(Edit edit, std::string_view from, std::string_view to) {
    expectEdit([&](DrawingFile& file) { edit(opened<KdDbMline>(file, 0x51)); }, from, to);
}
template <class Edit>
void expectStyle(Edit edit, std::string_view from, std::string_view to) {
    expectEdit([&](DrawingFile& file) { edit(opened<KdDbMlineStyle>(file, 0x2F)); }, from, to);
}
// The sample's text from one place up to another.
std::string between(std::string_view from, std::string_view to) {
    const std::string sample = sampleDrawing();
    const std::size_t at = sample.find(from);
    return sample.substr(at, sample.find(to, at) - at);
}

TEST(ChangedMline, keepsTheTextOfWhatIsTheSame) {
    const std::string first = dxf("74      2\n41 0.250\n41 0.0");
    const std::string second = dxf("74      4\n41 -0.250\n41 0.0\n41 2.0\n41 3.5");
    expectMline(
        [](KdDbMline& m) {
            setLines(m, 0, 0, {0.25, 0.0, 1.0, 2.5});
        },
        first, dxf("74      4\n41 0.250\n41 0.0\n41 1.0\n41 2.5"));
    // An entry in the middle goes, those after it keep their text.
    expectMline(
        [](KdDbMline& m) {
            setLines(m, 0, 1, {-0.25, 2.0, 3.5});
        },
        second, dxf("74      3\n41 -0.250\n41 2.0\n41 3.5"));
    expectMline([](KdDbMline& m) { setLines(m, 0, 1, {}); }, second, dxf("74      0"));
    expectMline([](KdDbMline& m) { setLines(m, 0, 0, {0.1, 0.0}); }, "0.250", "0.1");
    // The last digit counts: 0.1 + 0.2 is not 0.3. A zero has a sign.
    expectMline(
        [](KdDbMline& m) {
            setLines(m, 0, 0, {0.1 + 0.2, -0.0});
        },
        "0.250\n 41\n0.0", "0.30000000000000004\n 41\n-0.0");
}

TEST(ChangedMline, writesItsFields) {
    using M = KdDbMline;
    expectMline([](M& m) { m.setScale(2.0); }, "0.50\n 70", "2.0\n 70");
    expectMline([](M& m) { m.setScale(1e300); }, "0.50\n 70", "1e+300\n 70");
    expectMline([](M& m) { m.setJustification(2); }, "50\n 70\n     1", "50\n 70\n     2");
    expectMline([](M& m) { m.setClosedMline(true); }, " 71\n     1\n", " 71\n     3\n");
    expectMline([](M& m) { m.setSupressEndCaps(true); }, " 71\n     1\n", " 71\n     9\n");
    expectMline(
        [](M& m) {
            m.setNormal({0.0, 0.0, -1.0});
        },
        "230\n1.0\n 11\n0.0\n 21\n0.0\n", "230\n-1.0\n 11\n0.0\n 21\n0.0\n");
    expectMline([](M& m) { m.setLayer(L"W\u00E4nde \u0416"); }, "  8\nWalls\n 62",
                "  8\nW\xE4nde \\U+0416\n 62");
    expectMline([](M& m) { m.setColorIndex(256); }, " 62\n1\n100\nAcDbMline", "100\nAcDbMline");
    expectMline([](M& m) { m.setLinetype(L"DASHED"); }, "Walls\n 62", "Walls\n  6\nDASHED\n 62");
    expectEdit(
        [](DrawingFile& drawing) {
            opened<M>(drawing, 0x51).setStyle(KdDbObjectId(&stubOf(drawing, 0x2E)));
        },
        "  2\nWALL\n340\n2F\n 40\n0.50", "  2\nSTANDARD\n340\n2E\n 40\n0.50");
}

TEST(ChangedMline, gainsAndLosesVertices) {
    const std::string sample = sampleDrawing();
    const std::string third = between(" 11\n10.00\n 21\n5.0", "1001\nOTHER_APP");
    expectEdit(
        sample,
        [](DrawingFile& file) {
            KdGePoint3d removed;
            opened<KdDbMline>(file, 0x51).removeLastSeg(removed);
        },
        replaced(replaced(sample, third, ""), " 72\n     3", " 72\n     2"));
    const std::string bare = dxf("12 0.0\n22 0.0\n32 0.0\n13 0.0\n23 0.0\n33 0.0");
    expectEdit(
        sample,
        [](DrawingFile& file) {
            opened<KdDbMline>(file, 0x51).appendSeg({1.0, 2.0, 3.0});
        },
        replaced(replaced(sample, "1001\nOTHER_APP",
                          dxf("11 1.0\n21 2.0\n31 3.0") + bare + dxf("74 0\n75 0\n74 0\n75 0") +
                              "1001\nOTHER_APP"),
                 " 72\n     3", " 72\n     4"));
    // The first vertex goes: the others keep their text, and the start follows.
    const std::string first =
        between(" 11\n0.0\n 21\n0.0\n 31\n0.0\n 12\n1.00", " 11\n10.00\n 21\n0.0");
    expectEdit(
        sample,
        [](DrawingFile& file) {
            auto& mline = opened<KdDbMline>(file, 0x51);
            const auto old = std::dynamic_pointer_cast<const MlineContent>(mline.content());
            auto content = std::make_shared<MlineContent>(*old);
            content->vertices.erase(content->vertices.begin());
            content->lists.assignFlat(
                2, {2, 2, 2, 0, 0, 0, 0, 0},
                {0.3535533905932737, 0.0, 0.0, 1.0, -0.3535533905932737, 0.0});
            mline.setContent(content);
        },
        replaced(replaced(replaced(sample, first, ""), " 72\n     3", " 72\n     2"),
                 " 73\n     2\n 10\n0.0", " 73\n     2\n 10\n10.0"));
    // Where the file has none, its count of elements stands for nothing.
    expectEdit(
        sample,
        [](DrawingFile& file) {
            opened<KdDbMline>(file, 0x41).appendSeg({1.0, 0.0, 0.0});
        },
        replaced(replaced(sample, " 71\n1\n 72\n0\n 73\n2\n 10\n0.0",
                          " 71\n1\n 72\n1\n 73\n0\n 10\n1.0"),
                 "  0\nENDBLK", dxf("11 1.0\n21 0.0\n31 0.0") + bare + "  0\nENDBLK"));
}

TEST(ChangedMline, keepsCommentsOtherDataAndTheLineEndsOfItsRecord) {
    const std::string sample =
        replaced(replaced(sampleDrawing(), " 41\n0.250\n", " 41\n0.250\n999\na remark\n"),
                 "340\n2F\n", "340\n2F\n999\nanother\n");
    const auto edit = [](DrawingFile& file) {
        auto& mline = opened<KdDbMline>(file, 0x51);
        mline.setScale(3.0);
        setLines(mline, 0, 0, {0.125, 0.0, 1.0});
    };
    const std::string expected =
        replaced(replaced(sample, dxf("74      2\n41 0.250\n999 a remark\n41 0.0"),
                          dxf("74      3\n41 0.125\n999 a remark\n41 0.0\n41 1.0")),
                 "0.50\n 70", "3.0\n 70");
    expectEdit(sample, edit, expected);
    expectEdit(withReturns(sample), edit, withReturns(expected));
}

TEST(ChangedMline, keepsTheWidthOfItsNumbers) {
    const auto edit = [](DrawingFile& file) {
        auto& mline = opened<KdDbMline>(file, 0x41);
        mline.appendSeg({2.5, 0.0, 0.0});
    };
    const std::string sample =
        replaced(sampleDrawing(), " 73\n2\n 10\n0.0", " 73\n2\n 10\n     0.0");
    const auto file = openDrawing(sample);
    edit(*file);
    EXPECT_NE(file->bytes().find(" 73\n0\n 10\n     2.5"), std::string::npos) << file->bytes();
}

TEST(ChangedMline, isErased) {
    expectMline([](KdDbMline& mline) { mline.erase(); },
                between("  0\nMLINE\n  5\n51", "  0\nMLINE\n  5\n52"), "");
    // A polyline goes with its vertices.
    expectEdit([](DrawingFile& file) { file.database().core().erase(stubOf(file, 0x53)); },
               between("  0\nPOLYLINE", "  0\nWHATEVER"), "");
}

TEST(ChangedStyle, keepsTheTextOfWhatIsTheSame) {
    using Style = KdDbMlineStyle;
    expectEdit(
        replaced(sampleDrawing(), "Thick wall", "    Thick wall"),
        [](DrawingFile& file) { opened<Style>(file, 0x2F).setDescription(L"Thin"); },
        replaced(sampleDrawing(), "Thick wall", "Thin")); // a text isn't padded
    const std::string element = dxf("49 0.50\n62 1\n420 16711680\n6 DASHED");
    expectStyle([](Style& style) { style.setDescription(L"\u00DCber\nall"); }, "Thick wall",
                "\xDC"
                "ber\\U+000Aall");
    expectStyle([](Style& style) { style.setFilled(false); }, "1297", "1296");
    // 30 degrees, as a dialog computes them.
    expectStyle([](Style& style) { style.setEndAngle(30.0 * 3.14159265358979323846 / 180.0); },
                " 52\n90.0\n 71\n2\n 49\n0.50", " 52\n30.0\n 71\n2\n 49\n0.50");
    int index = 0;
    KdCmColor color;
    expectStyle([&](Style& style) { style.setElement(index, 0.5, color, {}); }, element,
                dxf("49 0.50\n62 256\n6 BYLAYER"));
    expectEdit(
        sampleDrawing(),
        [&](DrawingFile& file) {
            KdDbStub* const byBlock = file.database().core().wellKnown().findLinetype(L"BYBLOCK");
            opened<Style>(file, 0x2F).setElement(index, 0.5, color, KdDbObjectId(byBlock));
        },
        replaced(sampleDrawing(), element, dxf("49 0.50\n62 256\n6 BYBLOCK")));
    color.setColor(0xC20000FFU);
    color.setNamesFromDictionaryKey(L"BOOK$Sky");
    expectStyle([&](Style& style) { style.addElement(index, 1.5, color, {}, true); },
                dxf("71 2") + element,
                dxf("71 3\n49 1.5\n62 5\n420 255\n430 BOOK$Sky\n6 BYLAYER") + element);
    expectStyle([](Style& style) { style.removeElementAt(0); }, dxf("71 2") + element, dxf("71 1"));
}

TEST(ChangedDictionary, followsItsEntries) {
    const std::string sample = sampleDrawing();
    const auto rename = [](DrawingFile& file) {
        opened<KdDbDictionary>(file, 0x17).setName(L"WALL", L"Brick");
    };
    expectEdit(rename, "  3\nWALL\n", "  3\nBrick\n");
    // What stands in another program's group is no entry.
    const std::string grouped =
        replaced(sample, "C\n102\n}\n330\nC\n", "C\n  3\nWALL\n350\n2F\n102\n}\n330\nC\n");
    expectEdit(grouped, rename, replaced(grouped, "2E\n  3\nWALL\n", "2E\n  3\nBrick\n"));
    expectEdit(
        sample, [](DrawingFile& file) { opened<KdDbDictionary>(file, 0x17).remove(L"WALL"); },
        replaced(replaced(sample, between("  0\nMLINESTYLE\n  5\n2F", "  0\nENDSEC"), ""),
                 "  3\nWALL\n350\n2F\n", ""));
}

TEST(ChangedVariables, areWrittenInPlaceOrAtTheEndOfTheHeader) {
    const struct {
        const char* name;
        HeaderValue value;
        const char* from;
        const char* to;
    } cases[] = {
        {"CMLSCALE", 1.5, "20.00", "1.5"},
        {"CMLSCALE", 20.0, "20.00", "20.00"},
        {"CMLSTYLE", std::wstring(L"STANDARD"), "STYLE\n  2\nWALL", "STYLE\n  2\nSTANDARD"},
        {"CMLJUST", 2, " 70\n3\n", " 70\n3\n  9\n$CMLJUST\n 70\n2\n"},
        {"CLAYER", std::wstring(L"Walls"), " 70\n3\n", " 70\n3\n  9\n$CLAYER\n  8\nWalls\n"},
        {"CELTYPE", std::wstring(L"DASHED"), " 70\n3\n", " 70\n3\n  9\n$CELTYPE\n  6\nDASHED\n"},
        {"UCSORG", KdGePoint3d{1, 2, 3}, " 70\n3\n",
         " 70\n3\n  9\n$UCSORG\n 10\n1.0\n 20\n2.0\n 30\n3.0\n"},
        {"PICKBOX", 5, "", ""},
    };
    for (const auto& c : cases) {
        expectEdit([&](DrawingFile& f) { f.database().core().setVariable(c.name, c.value); },
                   c.from, c.to);
        if (*c.to != '\0') {
            const auto again = openDrawing(replaced(sampleDrawing(), c.from, c.to));
            const HeaderValue* const read = again->database().core().variables().find(c.name);
            EXPECT_TRUE(read != nullptr && *read == c.value) << c.name;
        }
    }
}

// A new header is written as the first record is: here its codes aren't padded, all others are.
TEST(ChangedVariables, beginAFileThatHasHadNone) {
    const auto file = openDrawing("0\nSECTION\n  2\nENTITIES\n  0\nENDSEC\n  0\nEOF\n");
    file->database().core().setVariable("CMLSCALE", 1.5);
    EXPECT_NE(file->bytes().find("\n9\n$CMLSCALE\n40\n1.5\n0\nENDSEC\n"), std::string::npos)
        << file->bytes();
}

// Some edits, each after a mark, and back to some of the marks.
void editWithMarks(DrawingFile& file, RandomEdits& edits, Chance& chance,
                   const std::function<std::string()>& state) {
    ChangeLog& changes = file.database().core().changes();
    std::vector<std::string> atMarks;
    for (int count = 1 + chance.below(4); count > 0; --count) {
        changes.mark();
        atMarks.push_back(state());
        edits.edit();
    }
    if (chance.oneIn(2)) {
        return;
    }
    for (std::string last = state(); !chance.oneIn(3); last = state()) {
        while (!atMarks.empty() && atMarks.back() == last) {
            atMarks.pop_back(); // where nothing changed is no mark
        }
        if (!changes.rollBackToMark()) {
            break;
        }
        const std::string back = state();
        ASSERT_NE(std::find(atMarks.begin(), atMarks.end(), back), atMarks.end());
        ASSERT_TRUE(changes.rollForward());
        ASSERT_TRUE(sameText(state(), last));
        ASSERT_TRUE(changes.rollBackToMark());
        ASSERT_TRUE(sameText(state(), back));
    }
}

TEST(Undo, leadsBackAndForthByteForByte) {
    std::size_t steps = 0;
    for (unsigned seed = 1; seed <= 40; ++seed) {
        SCOPED_TRACE(seed);
        Chance chance(seed);
        const auto file = openDrawing(sampleDrawing());
        DatabaseCore& core = file->database().core();
        RandomEdits edits(*file, chance);
        // Of an old layer nothing is written, so it stands beside the file.
        const auto state = [&] {
            const auto& walls = opened<KdDbLayerTableRecord>(*file, 0x10);
            return file->bytes() + std::to_string(walls.color().colorIndex()) +
                   std::to_string(walls.lineweight()) + (walls.isFrozen() ? "frozen" : "") +
                   (walls.isLocked() ? "locked" : "");
        };
        std::vector<std::string> states{state()}; // what each number of steps leads to
        const auto walk = [&](std::size_t count, bool (ChangeLog::*step)()) {
            for (; count > 0 && (core.changes().*step)(); --count) {
                ASSERT_TRUE(sameText(state(), states[core.changes().undoDepth()]));
            }
        };
        for (int i = 0; i < 60; ++i) {
            core.changes().beginCommand();
            ASSERT_NO_FATAL_FAILURE(editWithMarks(*file, edits, chance, state));
            if (core.changes().endCommand()) {
                states.resize(core.changes().undoDepth());
                states.push_back(state());
                ++steps;
            }
            const std::size_t depth = core.changes().undoDepth();
            ASSERT_TRUE(sameText(state(), states[depth]));
            const std::size_t reachable = depth + core.changes().redoDepth();
            while (states.size() <= reachable) {
                // What was rolled back in the command comes again, a step for each mark.
                core.changes().redo();
                states.push_back(state());
            }
            ASSERT_NO_FATAL_FAILURE(walk(core.changes().undoDepth() - depth, &ChangeLog::undo));
            if (i % 7 == 6) {
                ASSERT_NO_FATAL_FAILURE(walk(3, &ChangeLog::undo));
                ASSERT_NO_FATAL_FAILURE(walk(1, &ChangeLog::redo));
            }
        }
        ASSERT_NO_FATAL_FAILURE(walk(states.size(), &ChangeLog::undo));
        EXPECT_EQ(core.changes().undoDepth(), 0U);
        ASSERT_NO_FATAL_FAILURE(walk(states.size(), &ChangeLog::redo));
        EXPECT_EQ(core.changes().redoDepth(), 0U);
        ASSERT_NO_FATAL_FAILURE(walk(states.size(), &ChangeLog::undo));
    }
    EXPECT_GT(steps, 1000U);
}

} // namespace
