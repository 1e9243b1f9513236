#include "NewDrawing.h"

#include "TagText.h"

#include <charconv>
#include <string_view>

namespace orvex {

namespace {

// A tag a line, code and value with one blank between. Handles are those of this file alone; the
// seed is the next one.

constexpr std::string_view kHeader = R"(0 SECTION
2 HEADER
9 $ACADVER
1 AC1018
9 $DWGCODEPAGE
3 ANSI_1252
9 $INSBASE
10 0.0
20 0.0
30 0.0
9 $EXTMIN
10 1.0E+20
20 1.0E+20
30 1.0E+20
9 $EXTMAX
10 -1.0E+20
20 -1.0E+20
30 -1.0E+20
9 $LTSCALE
40 1.0
9 $CLAYER
8 0
9 $CELTYPE
6 ByLayer
9 $CECOLOR
62 256
9 $CELTSCALE
40 1.0
9 $HANDSEED
5 40
9 $UCSORG
10 0.0
20 0.0
30 0.0
9 $UCSXDIR
10 1.0
20 0.0
30 0.0
9 $UCSYDIR
10 0.0
20 1.0
30 0.0
9 $MEASUREMENT
70 1
9 $CMLSTYLE
2 STANDARD
9 $CMLJUST
70 0
9 $CMLSCALE
40 1.0
0 ENDSEC
0 SECTION
2 CLASSES
0 ENDSEC
)";

constexpr std::string_view kViewsAndLinetypes = R"(0 SECTION
2 TABLES
0 TABLE
2 VPORT
5 1
330 0
100 AcDbSymbolTable
70 1
0 VPORT
5 20
330 1
100 AcDbSymbolTableRecord
100 AcDbViewportTableRecord
2 *Active
70 0
10 0.0
20 0.0
11 1.0
21 1.0
12 0.0
22 0.0
13 0.0
23 0.0
14 10.0
24 10.0
15 10.0
25 10.0
16 0.0
26 0.0
36 1.0
17 0.0
27 0.0
37 0.0
40 10.0
41 1.333333333333333
42 50.0
43 0.0
44 0.0
50 0.0
51 0.0
71 0
72 1000
73 1
74 3
75 0
76 0
77 0
78 0
0 ENDTAB
0 TABLE
2 LTYPE
5 2
330 0
100 AcDbSymbolTable
70 3
0 LTYPE
5 21
330 2
100 AcDbSymbolTableRecord
100 AcDbLinetypeTableRecord
2 ByBlock
70 0
3
72 65
73 0
40 0.0
0 LTYPE
5 22
330 2
100 AcDbSymbolTableRecord
100 AcDbLinetypeTableRecord
2 ByLayer
70 0
3
72 65
73 0
40 0.0
0 LTYPE
5 23
330 2
100 AcDbSymbolTableRecord
100 AcDbLinetypeTableRecord
2 Continuous
70 0
3 Solid line
72 65
73 0
40 0.0
0 ENDTAB
)";

constexpr std::string_view kOtherTables = R"(0 TABLE
2 LAYER
5 3
330 0
100 AcDbSymbolTable
70 1
0 LAYER
5 24
330 3
100 AcDbSymbolTableRecord
100 AcDbLayerTableRecord
2 0
70 0
62 7
6 Continuous
370 -3
0 ENDTAB
0 TABLE
2 STYLE
5 4
330 0
100 AcDbSymbolTable
70 1
0 STYLE
5 25
330 4
100 AcDbSymbolTableRecord
100 AcDbTextStyleTableRecord
2 Standard
70 0
40 0.0
41 1.0
50 0.0
71 0
42 2.5
3 txt
4
0 ENDTAB
0 TABLE
2 VIEW
5 5
330 0
100 AcDbSymbolTable
70 0
0 ENDTAB
0 TABLE
2 UCS
5 6
330 0
100 AcDbSymbolTable
70 0
0 ENDTAB
0 TABLE
2 APPID
5 7
330 0
100 AcDbSymbolTable
70 1
0 APPID
5 26
330 7
100 AcDbSymbolTableRecord
100 AcDbRegAppTableRecord
2 ACAD
70 0
0 ENDTAB
0 TABLE
2 DIMSTYLE
5 8
330 0
100 AcDbSymbolTable
70 1
100 AcDbDimStyleTable
0 DIMSTYLE
105 27
330 8
100 AcDbSymbolTableRecord
100 AcDbDimStyleTableRecord
2 Standard
70 0
340 25
0 ENDTAB
0 TABLE
2 BLOCK_RECORD
5 9
330 0
100 AcDbSymbolTable
70 2
0 BLOCK_RECORD
5 28
330 9
100 AcDbSymbolTableRecord
100 AcDbBlockTableRecord
2 *Model_Space
340 34
0 BLOCK_RECORD
5 29
330 9
100 AcDbSymbolTableRecord
100 AcDbBlockTableRecord
2 *Paper_Space
340 35
0 ENDTAB
0 ENDSEC
)";

constexpr std::string_view kBlocks = R"(0 SECTION
2 BLOCKS
0 BLOCK
5 2A
330 28
100 AcDbEntity
8 0
100 AcDbBlockBegin
2 *Model_Space
70 0
10 0.0
20 0.0
30 0.0
3 *Model_Space
1
0 ENDBLK
5 2B
330 28
100 AcDbEntity
8 0
100 AcDbBlockEnd
0 BLOCK
5 2C
330 29
100 AcDbEntity
67 1
8 0
100 AcDbBlockBegin
2 *Paper_Space
70 0
10 0.0
20 0.0
30 0.0
3 *Paper_Space
1
0 ENDBLK
5 2D
330 29
100 AcDbEntity
67 1
8 0
100 AcDbBlockEnd
0 ENDSEC
0 SECTION
2 ENTITIES
0 ENDSEC
)";

constexpr std::string_view kDictionaries = R"(0 SECTION
2 OBJECTS
0 DICTIONARY
5 30
330 0
100 AcDbDictionary
281 1
3 ACAD_GROUP
350 31
3 ACAD_LAYOUT
350 32
3 ACAD_MLINESTYLE
350 33
0 DICTIONARY
5 31
102 {ACAD_REACTORS
330 30
102 }
330 30
100 AcDbDictionary
281 1
0 DICTIONARY
5 32
102 {ACAD_REACTORS
330 30
102 }
330 30
100 AcDbDictionary
281 1
3 Layout1
350 35
3 Model
350 34
0 DICTIONARY
5 33
102 {ACAD_REACTORS
330 30
102 }
330 30
100 AcDbDictionary
281 1
3 STANDARD
350 36
0 MLINESTYLE
5 36
102 {ACAD_REACTORS
330 33
102 }
330 33
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
)";

// A sheet to plot on; the two that every drawing has differ in a few values.
constexpr std::string_view kPlotSettings = R"(100 AcDbPlotSettings
1
2 none_device
4
6
40 0.0
41 0.0
42 0.0
43 0.0
44 0.0
45 0.0
46 0.0
47 0.0
48 0.0
49 0.0
140 0.0
141 0.0
142 1.0
143 1.0
)";

constexpr std::string_view kPlotForm = R"(72 0
73 0
74 5
7
75 16
147 1.0
148 0.0
149 0.0
100 AcDbLayout
)";

constexpr std::string_view kLimits = R"(10 0.0
20 0.0
11 12.0
21 9.0
12 0.0
22 0.0
32 0.0
14 1.0E+20
24 1.0E+20
34 1.0E+20
15 -1.0E+20
25 -1.0E+20
35 -1.0E+20
146 0.0
13 0.0
23 0.0
33 0.0
16 1.0
26 0.0
36 0.0
17 0.0
27 1.0
37 0.0
76 0
)";

// Adds tags given one a line, code and value with a blank between.
void addTags(TagText& target, std::string_view tags) {
    while (!tags.empty()) {
        const std::size_t end = tags.find('\n');
        std::string_view line = tags.substr(0, end);
        tags.remove_prefix(end + 1);
        int code = 0;
        const auto [stop, error] = std::from_chars(line.data(), line.data() + line.size(), code);
        line.remove_prefix(static_cast<std::size_t>(stop - line.data()));
        if (!line.empty()) {
            line.remove_prefix(1);
        }
        target.add(code, line);
    }
}

struct Layout {
    std::string_view name;
    std::uint64_t handle;
    std::uint64_t blockRecord;
    int plotFlags;
    int flags;
    int order;
};

void addLayout(TagText& target, const Layout& layout) {
    constexpr std::uint64_t kLayouts = 0x32;
    target.add(0, "LAYOUT");
    target.addHandle(5, layout.handle);
    target.add(102, "{ACAD_REACTORS");
    target.addHandle(330, kLayouts);
    target.add(102, "}");
    target.addHandle(330, kLayouts);
    addTags(target, kPlotSettings);
    target.add(70, layout.plotFlags);
    addTags(target, kPlotForm);
    target.add(1, layout.name);
    target.add(70, layout.flags);
    target.add(71, layout.order);
    addTags(target, kLimits);
    target.addHandle(330, layout.blockRecord);
}

} // namespace

std::string newDrawingText() {
    TagText text{TagFormat()};
    for (const std::string_view part :
         {kHeader, kViewsAndLinetypes, kOtherTables, kBlocks, kDictionaries}) {
        addTags(text, part);
    }
    addLayout(text, {"Model", 0x34, 0x28, 1712, 1, 0});
    addLayout(text, {"Layout1", 0x35, 0x29, 688, 1, 1});
    addTags(text, "0 ENDSEC\n0 EOF\n");
    return text.take();
}

} // namespace orvex
