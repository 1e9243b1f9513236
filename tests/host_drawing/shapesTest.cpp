// What entities look like that are only seen.

#include "EntityShapes.h"
#include "sampleDrawing.h"

#include <gtest/gtest.h>
#include <numbers>

namespace {

using namespace orvex;
using namespace orvex::testing;

template <class Shape>
Shape shapeOf(std::string_view tags) {
    const std::string bytes = dxf(tags);
    const RecordKind kind = recordKind(tags.substr(2, tags.find('\n') - 2));
    const EntityShape shape = readShape(kind, bytes, {0, bytes.size()}, DrawingText());
    if (const auto* const typed = std::get_if<Shape>(&shape)) {
        return *typed;
    }
    ADD_FAILURE() << "another kind of shape";
    return {};
}

template <class Triple>
void expectNear(const Triple& a, double x, double y, double z) {
    EXPECT_NEAR(a.x, x, 1e-12);
    EXPECT_NEAR(a.y, y, 1e-12);
    EXPECT_NEAR(a.z, z, 1e-12);
}

constexpr double kPi = std::numbers::pi;

TEST(Shapes, ofLinesPointsAndSolids) {
    const auto line = shapeOf<LineShape>("0 LINE\n10 1\n20 2\n11 3\n21 4\n31 5\n1000 x\n10 9");
    expectNear(line.start, 1.0, 2.0, 0.0);
    expectNear(line.end, 3.0, 4.0, 5.0);
    expectNear(shapeOf<PointShape>("0 POINT\n10 1\n20 x\n30 3").position, 1.0, 0.0, 3.0);
    const auto solid =
        shapeOf<SolidShape>("0 SOLID\n10 0\n20 0\n11 1\n21 0\n12 0\n22 1\n13 1\n23 1");
    ASSERT_EQ(solid.corners.size(), 4U);
    expectNear(solid.corners[2], 1.0, 1.0, 0.0); // the third and fourth are crossed
    expectNear(solid.corners[3], 0.0, 1.0, 0.0);
    EXPECT_EQ(shapeOf<SolidShape>("0 TRACE\n10 0\n11 1\n12 2").corners.size(), 3U);
}

// With the extrusion (0,0,-1) the plane's x axis is (0,1,0) x N = (-1,0,0), its y axis (0,1,0).
TEST(Shapes, ofArcsInTheirPlane) {
    const auto arc =
        shapeOf<ConicShape>("0 ARC\n10 5\n20 1\n30 2\n40 2\n50 270\n51 90\n210 0\n220 0\n230 -1");
    expectNear(arc.center, -5.0, 1.0, -2.0);
    expectNear(arc.major, -2.0, 0.0, 0.0);
    expectNear(arc.minor, 0.0, 2.0, 0.0);
    EXPECT_DOUBLE_EQ(arc.start, 1.5 * kPi);
    EXPECT_DOUBLE_EQ(arc.end, 2.5 * kPi);
    EXPECT_DOUBLE_EQ(shapeOf<ConicShape>("0 ARC\n50 90\n51 90").end, 2.5 * kPi);
    // N = (1,0,0): x axis (0,0,1) x N = (0,1,0), y axis N x X = (0,0,1).
    const auto circle =
        shapeOf<ConicShape>("0 CIRCLE\n10 1\n20 2\n30 3\n40 4\n210 7\n220 0\n230 0");
    expectNear(circle.center, 3.0, 1.0, 2.0);
    expectNear(circle.major, 0.0, 4.0, 0.0);
    expectNear(circle.minor, 0.0, 0.0, 4.0);
    EXPECT_DOUBLE_EQ(circle.end - circle.start, 2.0 * kPi);
    const auto ellipse =
        shapeOf<ConicShape>("0 ELLIPSE\n10 1\n20 1\n11 0\n21 4\n40 0.5\n41 0\n42 1.5");
    expectNear(ellipse.center, 1.0, 1.0, 0.0);
    expectNear(ellipse.minor, -2.0, 0.0, 0.0); // N x major, half as long
    EXPECT_DOUBLE_EQ(ellipse.end, 1.5);
    EXPECT_DOUBLE_EQ(shapeOf<ConicShape>("0 ELLIPSE\n11 1\n41 1\n42 1").end, 1.0 + 2.0 * kPi);
}

TEST(Shapes, ofPolylines) {
    const auto light = shapeOf<PolylineShape>(
        "0 LWPOLYLINE\n90 9999999\n70 1\n38 3\n10 1\n20 2\n42 0.5\n10 4\n20 5");
    ASSERT_EQ(light.vertices.size(), 2U);
    EXPECT_TRUE(light.closed);
    expectNear(light.vertices[0].position, 1.0, 2.0, 3.0);
    expectNear(light.vertices[1].position, 4.0, 5.0, 3.0);
    EXPECT_EQ(light.vertices[0].bulge, 0.5);
    EXPECT_EQ(light.vertices[1].bulge, 0.0);
    const auto flat = shapeOf<PolylineShape>(
        "0 POLYLINE\n66 1\n30 7\n70 0\n0 VERTEX\n10 1\n20 2\n42 1\n0 VERTEX\n10 3\n20 4\n70 16\n"
        "0 VERTEX\n10 5\n20 6\n0 SEQEND");
    ASSERT_EQ(flat.vertices.size(), 2U); // the frame of a spline isn't drawn
    expectNear(flat.vertices[1].position, 5.0, 6.0, 7.0);
    const auto mesh = shapeOf<OutlinesShape>(
        "0 POLYLINE\n70 16\n71 2\n72 2\n0 VERTEX\n10 0\n0 VERTEX\n10 1\n0 VERTEX\n10 2\n"
        "0 VERTEX\n10 3\n0 SEQEND");
    ASSERT_EQ(mesh.paths.size(), 4U); // two rows, two columns
    expectNear(mesh.paths[3].vertices[1].position, 3.0, 0.0, 0.0);
    const auto faces = shapeOf<OutlinesShape>(
        "0 POLYLINE\n70 64\n71 3\n72 1\n0 VERTEX\n10 0\n70 192\n0 VERTEX\n10 1\n70 192\n"
        "0 VERTEX\n10 2\n70 192\n0 VERTEX\n70 128\n71 1\n72 -2\n73 3\n74 99\n0 SEQEND");
    ASSERT_EQ(faces.paths.size(), 1U);
    EXPECT_EQ(faces.paths[0].vertices.size(), 3U);
}

TEST(Shapes, ofTexts) {
    const auto text = shapeOf<TextShape>(
        "0 TEXT\n10 1\n20 2\n11 5\n21 6\n40 2.5\n50 90\n72 1\n73 2\n1 45%%d %%utop\\U+00E9");
    expectNear(text.position, 5.0, 6.0, 0.0);
    expectNear(text.direction, 0.0, 1.0, 0.0);
    expectNear(text.up, -1.0, 0.0, 0.0);
    EXPECT_EQ(text.height, 2.5);
    EXPECT_EQ(text.horizontal, 1);
    EXPECT_EQ(text.vertical, 2);
    EXPECT_EQ(text.lines, (std::vector<std::wstring>{L"45\u00B0 top\u00E9"}));

    const auto paragraph = shapeOf<TextShape>(
        "0 MTEXT\n10 1\n40 2\n71 5\n3 {\\fArial|b1;Bold} \\S1^2;\\P\\H2.5x;sec\n1 ond \\\\ "
        "\\{\\~}\\C");
    EXPECT_EQ(paragraph.lines, (std::vector<std::wstring>{L"Bold 1/2", L"second \\ { "}));
}

TEST(Shapes, ofControlCodesInTexts) {
    const struct {
        const char* kind;
        const char* text;
        std::vector<std::wstring> lines;
    } cases[] = {
        {"TEXT", "%%d%%D%%p%%P%%c%%C", {L"\u00B0\u00B0\u00B1\u00B1\u2205\u2205"}},
        {"TEXT", "%%ua%%Ub%%oc%%Od%%ke%%Kf", {L"abcdef"}},
        {"TEXT", "%%%%%x 5% %%", {L"%%%x 5% %%"}},
        {"TEXT", "%%065%%2550%%032%%176", {L"A\u00FF0 \u00B0"}},
        {"TEXT", "%%031%%256%%06/%%06:%%65", {L"%%031%%256%%06/%%06:%%65"}}, // no characters
        {"MTEXT", "a\\Pb\\Nc\\Xd\\~e%%d", {L"a", L"b", L"c", L"d e\u00B0"}},
        {"MTEXT", "{\\La\\l\\Ob\\o\\Kc\\k}\\}", {L"abc}"}},
        {"MTEXT", "a^Ib^ c^", {L"a b^c^"}},
        {"MTEXT", "\\S1#2;\\S3/4;\\Sx\\fArial\\", {L"1/23/4xArial\\"}}, // without a semicolon
    };
    for (const auto& [kind, text, lines] : cases) {
        const std::string tags = std::string("0 ") + kind + "\n1 " + text;
        EXPECT_EQ(shapeOf<TextShape>(tags).lines, lines) << text;
    }
}

// At their first point, (1,2), or at the second one, which they have in code 11 and which of their
// own points stands there.
TEST(Shapes, ofAlignedTexts) {
    const struct {
        const char* tags = "";
        double x = 0.0;
        int horizontal = 0;
        int vertical = 0;
        KdGeVector3d direction;
    } cases[] = {
        {"TEXT\n72 4\n73 1\n11 4", 4.0, 1, 2, {0.0, 1.0, 0.0}}, // the middle of all
        {"TEXT\n72 2\n73 3\n11 4", 4.0, 2, 3, {0.0, 1.0, 0.0}},
        {"TEXT\n72 0\n73 1\n11 4", 4.0, 0, 1, {0.0, 1.0, 0.0}},
        {"TEXT\n72 2\n73 0\n11 4", 4.0, 2, 0, {0.0, 1.0, 0.0}},
        {"TEXT\n72 9\n73 9\n11 4", 4.0, 2, 3, {0.0, 1.0, 0.0}},
        {"TEXT\n11 4", 1.0, 0, 0, {0.0, 1.0, 0.0}},
        {"TEXT\n72 2\n73 3", 1.0, 0, 0, {0.0, 1.0, 0.0}},
        {"TEXT\n72 5\n73 3\n11 4\n21 2", 1.0, 0, 0, {1.0, 0.0, 0.0}},
        {"TEXT\n72 3\n11 1\n21 2", 1.0, 0, 0, {0.0, 1.0, 0.0}}, // no way to go
        {"TEXT\n72 3\n11 4\n21 6", 1.0, 0, 0, {0.6, 0.8, 0.0}},
        {"TEXT\n72 3", 1.0, 0, 0, {0.0, 1.0, 0.0}},
        {"MTEXT", 1.0, 0, 3, {0.0, 1.0, 0.0}}, // at the top left
        {"MTEXT\n71 8\n11 3\n21 -4", 1.0, 1, 1, {0.6, -0.8, 0.0}},
        {"MTEXT\n71 10\n11 0", 1.0, 2, 1, {0.0, 1.0, 0.0}},
        {"MTEXT\n71 0", 1.0, 0, 3, {0.0, 1.0, 0.0}},
    };
    for (const auto& [tags, x, horizontal, vertical, direction] : cases) {
        SCOPED_TRACE(tags);
        const auto text = shapeOf<TextShape>("0 " + std::string(tags) + "\n10 1\n20 2\n50 90\n1 x");
        EXPECT_EQ(text.position.x, x);
        EXPECT_EQ(text.horizontal, horizontal);
        EXPECT_EQ(text.vertical, vertical);
        expectNear(text.direction, direction.x, direction.y, direction.z);
    }
}

TEST(Shapes, ofInsertsWithTheirAttributes) {
    const auto insert = shapeOf<InsertShape>(
        "0 INSERT\n66 1\n2 Room\n10 1\n20 2\n41 2\n42 3\n50 90\n70 4\n71 32767\n44 10\n45 20\n"
        "0 ATTRIB\n10 7\n20 8\n11 9\n40 1\n1 shown\n70 0\n73 1\n74 3\n"
        "0 ATTRIB\n1 hidden\n70 1\n0 SEQEND");
    EXPECT_EQ(insert.block, L"Room");
    expectNear(insert.xAxis, 0.0, 2.0, 0.0);
    expectNear(insert.yAxis, -3.0, 0.0, 0.0);
    expectNear(insert.zAxis, 0.0, 0.0, 1.0);
    EXPECT_EQ(insert.columns, 4);
    EXPECT_EQ(insert.rows, 25000); // more cells than anybody draws
    expectNear(insert.columnStep, 0.0, 10.0, 0.0);
    expectNear(insert.rowStep, -20.0, 0.0, 0.0);
    ASSERT_EQ(insert.attributes.size(), 1U);
    EXPECT_EQ(insert.attributes[0].lines[0], L"shown");
    EXPECT_EQ(insert.attributes[0].vertical, 3);
}

TEST(Shapes, ofHatches) {
    const auto hatch = shapeOf<OutlinesShape>(
        "0 HATCH\n10 0\n20 0\n30 1\n91 2\n92 2\n72 1\n73 1\n93 2\n10 0\n20 0\n42 1\n10 4\n20 0\n"
        "42 0\n97 0\n92 1\n93 4\n72 1\n10 0\n20 0\n11 1\n21 1\n72 2\n10 5\n20 5\n40 2\n50 0\n"
        "51 90\n73 0\n72 3\n10 0\n20 0\n11 2\n21 0\n40 0.5\n50 270\n51 90\n73 1\n"
        "72 4\n94 1\n73 0\n74 0\n95 6\n96 4\n40 0\n40 0\n40 1\n40 1\n40 2\n40 2\n"
        "10 0\n20 2\n10 8\n20 6\n10 8\n20 6\n10 8\n20 9\n97 0\n75 0");
    ASSERT_EQ(hatch.paths.size(), 3U);
    EXPECT_TRUE(hatch.paths[0].closed);
    EXPECT_EQ(hatch.paths[0].vertices[0].bulge, 1.0);
    expectNear(hatch.paths[1].vertices[1].position, 1.0, 1.0, 1.0);
    ASSERT_EQ(hatch.paths[2].vertices.size(), 18U); // a spline of two straight spans
    expectNear(hatch.paths[2].vertices[4].position, 4.0, 4.0, 1.0);
    expectNear(hatch.paths[2].vertices[13].position, 8.0, 7.5, 1.0);
    ASSERT_EQ(hatch.arcs.size(), 2U);
    // Clockwise from 0 to 90 degrees is the arc from -90 to 0.
    EXPECT_DOUBLE_EQ(hatch.arcs[0].start, -kPi / 2.0);
    EXPECT_DOUBLE_EQ(hatch.arcs[0].end, 0.0);
    expectNear(hatch.arcs[1].minor, 0.0, 1.0, 0.0);
    EXPECT_DOUBLE_EQ(hatch.arcs[1].start, 1.5 * kPi);
    EXPECT_DOUBLE_EQ(hatch.arcs[1].end, 2.5 * kPi); // past zero
    // A spline whose degree, knots and points don't fit together is drawn as its points.
    for (const char* const unfit :
         {"94 0\n95 3\n96 2\n40 0\n40 1\n40 2", "94 26\n95 2\n96 2\n40 0\n40 1",
          "94 2\n95 5\n96 2\n40 0\n40 0\n40 0\n40 1\n40 1", "94 1\n95 3\n96 2\n40 0\n40 0\n40 1",
          "94 1\n95 4\n96 2\n40 0\n40 1\n40 0\n40 1"}) {
        const auto spline = shapeOf<OutlinesShape>("0 HATCH\n92 0\n93 1\n72 4\n" +
                                                   std::string(unfit) + "\n10 0\n20 2\n10 8\n20 6");
        ASSERT_EQ(spline.paths.size(), 1U) << unfit;
        EXPECT_EQ(spline.paths[0].vertices.size(), 2U) << unfit;
    }
}

TEST(Shapes, ofDamagedEntitiesAreHarmless) {
    const std::string line = "\n72 1\n10 0\n20 0\n11 1\n21 1";
    const std::string rest = line + "\n92 0\n93 1" + line;
    const std::string path = "0 HATCH\n92 0\n93 9\n";
    // What comes after weights, fit points and directions is read; after a broken edge it is the
    // next path.
    const auto spline = shapeOf<OutlinesShape>(
        path +
        "72 4\n94 1\n95 4\n96 2\n40 0\n40 0\n40 1\n40 1\n10 0\n20 2\n42 1\n10 8\n20 6\n42 "
        "2\n97 2\n11 0\n21 2\n11 8\n21 6\n12 1\n22 0\n13 0\n23 1" +
        line);
    ASSERT_EQ(spline.paths.size(), 2U);
    expectNear(spline.paths[0].vertices.back().position, 8.0, 6.0, 0.0);
    for (const char* const broken :
         {"72 1\n10 0\n11 1\n21 1", "72 1\n10 0\n20 0\n11 1", "72 2\n10 0\n40 1",
          "72 2\n10 0\n20 0\n50 0", "72 3\n20 0", "72 3\n10 0\n20 0\n40 1",
          "72 3\n10 0\n20 0\n11 1\n21 0\n50 0", "72 4\n95 0\n96 0", "72 4\n94 1\n96 0",
          "72 4\n94 1\n95 0", "72 2\n10 0\n20 0", "72 3\n10 0\n20 0\n11 1\n21 0", "72 5",
          "92 2\n73 1\n10 0\n20 0", "92 0\n72 1"}) {
        const auto shape = shapeOf<OutlinesShape>(std::string(path).append(broken).append(rest));
        EXPECT_EQ(shape.paths.size(), 1U) << broken;
        EXPECT_TRUE(shape.arcs.empty()) << broken;
    }
    const std::string hatch = "0 HATCH\n91 999999999\n92 1\n93 999999999\n72 4\n94 3\n95 "
                              "999999999\n96 999999999\n40 0\n40 1\n10 0\n20 0";
    EXPECT_EQ(shapeOf<OutlinesShape>(hatch).paths.size(), 1U);
    EXPECT_TRUE(shapeOf<OutlinesShape>("0 POLYLINE\n70 16\n71 30000\n72 30000").paths.empty());
    EXPECT_TRUE(shapeOf<PolylineShape>("0 LWPOLYLINE\n20 1\n42 1").vertices.empty());
    shapeOf<NoShape>("0 WHATEVER\n10 1");
}

} // namespace
