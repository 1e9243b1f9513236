#include "sampleDrawing.h"

#include "DatabaseCore.h"

#include <algorithm>

namespace orvex::testing {

std::string dxf(std::string_view tags, std::string_view lineEnd) {
    std::string text;
    while (!tags.empty()) {
        const std::size_t end = std::min(tags.find('\n'), tags.size());
        const std::string_view line = tags.substr(0, end);
        tags.remove_prefix(std::min(end + 1, tags.size()));
        const std::size_t blank = std::min(line.find(' '), line.size());
        text += std::string(blank < 3 ? 3 - blank : 0, ' ');
        text += line.substr(0, blank);
        text += lineEnd;
        text += blank < line.size() ? line.substr(blank + 1) : std::string_view();
        text += lineEnd;
    }
    return text;
}

// NOLINTNEXTLINE(readability-function-size): one text.
std::string sampleTags() {
    return R"(999 drawn by hand
0 SECTION
2 HEADER
9 $ACADVER
1 AC1018
9 $DWGCODEPAGE
3 ANSI_1252
9 $HANDSEED
5 100
9 $CMLSTYLE
2 WALL
9 $CMLSCALE
40 20.00
9 $PDMODE
70 3
0 ENDSEC
0 SECTION
2 TABLES
0 TABLE
2 LTYPE
5 5
100 AcDbSymbolTable
70 2
0 LTYPE
5 14
330 5
100 AcDbSymbolTableRecord
100 AcDbLinetypeTableRecord
2 ByLayer
70 0
3
72 65
73 0
40 0.0
0 LTYPE
5 15
330 5
100 AcDbSymbolTableRecord
100 AcDbLinetypeTableRecord
2 DASHED
70 0
3 Dashed __ __
72 65
73 2
40 0.75
49 0.5
74 0
49 -0.25
74 0
0 ENDTAB
0 TABLE
2 LAYER
5 2
100 AcDbSymbolTable
70 9
0 LAYER
5 10
330 2
100 AcDbSymbolTableRecord
100 AcDbLayerTableRecord
2 Walls
70 4
62 -3
6 DASHED
0 ENDTAB
0 TABLE
2 BLOCK_RECORD
5 1
100 AcDbSymbolTable
70 3
0 BLOCK_RECORD
5 1F
330 1
100 AcDbSymbolTableRecord
100 AcDbBlockTableRecord
2 *Model_Space
0 BLOCK_RECORD
5 1B
330 1
100 AcDbSymbolTableRecord
100 AcDbBlockTableRecord
2 *Paper_Space
0 BLOCK_RECORD
5 1C
330 1
100 AcDbSymbolTableRecord
100 AcDbBlockTableRecord
2 Room
0 ENDTAB
0 ENDSEC
0 SECTION
2 BLOCKS
0 BLOCK
5 40
330 1C
100 AcDbEntity
8 0
100 AcDbBlockBegin
2 Room
70 0
10 1.5
20 2.5
30 0.0
3 Room
0 MLINE
5 41
330 1C
100 AcDbEntity
8 0
100 AcDbMline
2 STANDARD
340 2E
40 1.0
70 1
71 1
72 0
73 2
10 0.0
20 0.0
30 0.0
210 0.0
220 0.0
230 1.0
0 ENDBLK
5 42
330 1C
100 AcDbEntity
8 0
100 AcDbBlockEnd
0 ENDSEC
0 SECTION
2 ENTITIES
0 LINE
5 50
330 1F
100 AcDbEntity
8 Walls
100 AcDbLine
10 0.0
20 0.0
30 0.0
11 4.0
21 3.0
31 0.0
0 MLINE
5 51
102 {ACAD_XDICTIONARY
360 F0
102 }
330 1F
100 AcDbEntity
8 Walls
62 1
100 AcDbMline
2 WALL
340 2F
40 0.50
70      1
71      1
72      3
73      2
10 0.0
20 0.0
30 0.0
210 0.0
220 0.0
230 1.0
11 0.0
21 0.0
31 0.0
12 1.00
22 0.00
32 0.0
13 0.0
23 1.0
33 0.0
74      2
41 0.250
41 0.0
75      0
74      4
41 -0.250
41 0.0
41 2.0
41 3.5
75      0
11 10.00
21 0.0
31 0.0
12 0.0
22 1.0
32 0.0
13 -0.7071067811865475
23 0.7071067811865476
33 0.0
74      2
41 0.3535533905932737
41 0.0
75      2
42 0.0
42 1.0
74      2
41 -0.3535533905932737
41 0.0
75      0
11 10.00
21 5.0
31 0.0
12 0.0
22 1.0
32 0.0
13 -1.0
23 0.0
33 0.0
74      0
75      0
74      0
75      0
1001 OTHER_APP
1000 kept
0 MLINE
5 52
330 1F
100 AcDbEntity
8 0
100 AcDbMline
2 STANDARD
340 2E
40 1.0
70 1
71 1
72 2
73 2
10 0.0
20 20.0
30 0.0
210 0.0
220 0.0
230 1.0
11 0.0
21 20.0
31 0.0
12 1.0
22 0.0
32 0.0
13 0.0
23 1.0
33 0.0
74 2
41 0.5
41 0.0
75 0
74 2
41 -0.5
41 0.0
75 0
11 10.0
21 20.0
31 0.0
12 1.0
22 0.0
32 0.0
13 0.0
23 1.0
33 0.0
74 0
75 0
74 0
75 0
0 POLYLINE
5 53
330 1F
100 AcDbEntity
8 0
100 AcDb2dPolyline
66 1
70 1
0 VERTEX
5 54
10 1.0
20 1.0
0 SEQEND
5 55
0 WHATEVER
5 56
8 0
1 of another program
0 LINE
5 57
330 1B
100 AcDbEntity
67 1
8 0
100 AcDbLine
10 0.0
20 0.0
11 1.0
21 1.0
0 ENDSEC
0 SECTION
2 OBJECTS
0 DICTIONARY
5 C
330 0
100 AcDbDictionary
281 1
3 ACAD_GROUP
350 D
3 ACAD_MLINESTYLE
350 17
0 DICTIONARY
5 17
102 {ACAD_REACTORS
330 C
102 }
330 C
100 AcDbDictionary
281 1
3 STANDARD
350 2E
3 WALL
350 2F
0 MLINESTYLE
5 2E
102 {ACAD_REACTORS
330 17
102 }
330 17
100 AcDbMlineStyle
2 STANDARD
70 0
3
62 256
51 90.0
52 90.0
71 2
49 0.5
62 256
6 BYLAYER
49 -0.5
62 256
6 BYLAYER
0 MLINESTYLE
5 2F
102 {ACAD_REACTORS
330 17
102 }
330 17
100 AcDbMlineStyle
2 WALL
70 1297
3 Thick wall
62 2
51 45.000
52 90.0
71 2
49 0.50
62 1
420 16711680
6 DASHED
49 -0.50
62 256
6 BYLAYER
0 ENDSEC
0 EOF
)";
}

std::string sampleDrawing() {
    return dxf(sampleTags());
}

std::string replaced(std::string text, std::string_view from, std::string_view to) {
    const std::size_t at = text.find(from);
    EXPECT_NE(at, std::string::npos) << from;
    return at == std::string::npos ? text : text.replace(at, from.size(), to);
}

std::unique_ptr<DrawingFile> openDrawing(const std::string& bytes) {
    auto opened = DrawingFile::openBytes(bytes);
    if (auto* const error = std::get_if<DrawingError>(&opened)) {
        ADD_FAILURE() << "line " << error->line << ": " << error->text;
        return DrawingFile::create();
    }
    return std::move(std::get<std::unique_ptr<DrawingFile>>(opened));
}

DrawingError openFailing(const std::string& bytes) {
    auto opened = DrawingFile::openBytes(bytes);
    if (auto* const error = std::get_if<DrawingError>(&opened)) {
        return *error;
    }
    ADD_FAILURE() << "it opens";
    return {};
}

std::string warningsOf(const std::string& bytes) {
    const auto file = openDrawing(bytes);
    std::string text;
    for (const DrawingWarning& warning : file->warnings()) {
        text += std::to_string(warning.line) + ": " + warning.text + "\n";
    }
    return text;
}

::testing::AssertionResult sameText(const std::string& actual, const std::string& expected) {
    if (actual == expected) {
        return ::testing::AssertionSuccess();
    }
    const auto [a, b] = std::ranges::mismatch(actual, expected);
    const auto at = static_cast<std::size_t>(a - actual.begin());
    const std::size_t from = at - std::min<std::size_t>(at, 60);
    return ::testing::AssertionFailure()
           << "line " << 1 + std::count(actual.begin(), a, '\n') << "\n--- actual\n"
           << actual.substr(from, 120) << "\n--- expected\n"
           << expected.substr(from, 120);
}

KdDbStub& stubOf(DrawingFile& file, std::uint64_t handle) {
    KdDbStub* const stub = file.database().core().findHandle(handle);
    if (stub == nullptr) {
        ADD_FAILURE() << "no object has the handle " << handle;
        return file.database().core().stubs().front();
    }
    return *stub;
}

} // namespace orvex::testing
