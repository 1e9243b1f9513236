// Writes a small drawing with dxflib, so that the corpus has files of a second writer: other
// padding of codes, other sections, a style STANDARD as that library makes it. It knows no
// multilines; ours are written tag by tag.
//
// Usage: dxflib_writer FILE

#include <cstdio>
#include <memory>
#include <numbers>

#include <dxflib/dl_dxf.h>

namespace {

DL_Attributes onLayer(const char* layer) {
    return {layer, 256, 0, "BYLAYER", 1.0};
}

struct Point {
    double x;
    double y;
};

void writePoint(const DL_WriterA& writer, int code, Point point, double z = 0.0) {
    writer.dxfReal(code, point.x);
    writer.dxfReal(code + 10, point.y);
    writer.dxfReal(code + 20, z);
}

// A straight multiline along the X axis in the style STANDARD: two elements, half the scale to
// either side.
void writeMultiline(const DL_WriterA& writer, Point start, double length, double scale) {
    writer.entity("MLINE");
    writer.dxfString(100, "AcDbEntity");
    writer.dxfString(8, "WALLS");
    writer.dxfString(100, "AcDbMline");
    writer.dxfString(2, "STANDARD");
    writer.dxfString(340, "18"); // the handle that the library always gives to STANDARD
    writer.dxfReal(40, scale);
    writer.dxfInt(70, 1);
    writer.dxfInt(71, 1);
    writer.dxfInt(72, 2);
    writer.dxfInt(73, 2);
    writePoint(writer, 10, start);
    writePoint(writer, 210, {0.0, 0.0}, 1.0);
    for (const Point vertex : {start, Point{start.x + length, start.y}}) {
        writePoint(writer, 11, vertex);
        writePoint(writer, 12, {1.0, 0.0});
        writePoint(writer, 13, {0.0, 1.0});
        for (const double offset : {0.5 * scale, -0.5 * scale}) {
            writer.dxfInt(74, 2);
            writer.dxfReal(41, offset);
            writer.dxfReal(41, 0.0);
            writer.dxfInt(75, 0);
        }
    }
}

void writeTables(DL_Dxf& dxf, DL_WriterA& writer) {
    writer.sectionTables();
    dxf.writeVPort(writer);
    writer.tableLinetypes(3);
    for (const char* name : {"BYBLOCK", "BYLAYER", "CONTINUOUS"})
        dxf.writeLinetype(writer, DL_LinetypeData(name, "", 0, 0, 0.0));
    writer.tableEnd();
    writer.tableLayers(2);
    dxf.writeLayer(writer, DL_LayerData("0", 0), DL_Attributes("", 7, 25, "CONTINUOUS", 1.0));
    dxf.writeLayer(writer, DL_LayerData("WALLS", 0), DL_Attributes("", 1, 50, "CONTINUOUS", 1.0));
    writer.tableEnd();
    writer.tableStyle(1);
    dxf.writeStyle(writer, DL_StyleData("standard", 0, 0.0, 1.0, 0.0, 0, 2.5, "txt", ""));
    writer.tableEnd();
    dxf.writeView(writer);
    dxf.writeUcs(writer);
    writer.tableAppid(1);
    dxf.writeAppid(writer, "ACAD");
    writer.tableEnd();
    dxf.writeDimStyle(writer, 2.5, 1.0, 0.625, 0.625, 2.5);
    dxf.writeBlockRecord(writer);
    dxf.writeBlockRecord(writer, "CORNER");
    writer.tableEnd();
    writer.sectionEnd();
}

void writeBlocks(DL_Dxf& dxf, DL_WriterA& writer) {
    writer.sectionBlocks();
    for (const char* name : {"*Model_Space", "*Paper_Space", "*Paper_Space0"}) {
        dxf.writeBlock(writer, DL_BlockData(name, 0, 0.0, 0.0, 0.0));
        dxf.writeEndBlock(writer, name);
    }
    dxf.writeBlock(writer, DL_BlockData("CORNER", 0, 0.0, 0.0, 0.0));
    dxf.writeLine(writer, DL_LineData(0, 0, 0, 400, 0, 0), onLayer("0"));
    writeMultiline(writer, {0.0, 200.0}, 400.0, 60.0);
    dxf.writeEndBlock(writer, "CORNER");
    writer.sectionEnd();
}

void writeEntities(DL_Dxf& dxf, DL_WriterA& writer) {
    const DL_Attributes plain = onLayer("0");
    writer.sectionEntities();
    writeMultiline(writer, {0.0, 0.0}, 3000.0, 115.0);
    dxf.writeLine(writer, DL_LineData(0, 500, 0, 3000, 500, 0), plain);
    dxf.writeCircle(writer, DL_CircleData(500, 1000, 0, 200), plain);
    dxf.writeArc(writer, DL_ArcData(1200, 1000, 0, 200, 0, 120), plain);
    dxf.writeEllipse(
        writer, DL_EllipseData(1900, 1000, 0, 300, 0, 0, 0.5, 0.0, 2 * std::numbers::pi), plain);
    dxf.writePoint(writer, DL_PointData(2500, 1000, 0), plain);
    dxf.writePolyline(writer, DL_PolylineData(3, 0, 0, 1), plain);
    dxf.writeVertex(writer, DL_VertexData(0, 1500, 0, 0));
    dxf.writeVertex(writer, DL_VertexData(800, 1500, 0, 1));
    dxf.writeVertex(writer, DL_VertexData(800, 1900, 0, 0));
    dxf.writePolylineEnd(writer);
    dxf.writeText(writer,
                  DL_TextData(1200, 1500, 0, 1200, 1500, 0, 150, 1.0, 0, 0, 0,
                              "K\xfc"
                              "che",
                              "standard", 0.0),
                  plain);
    dxf.writeInsert(writer, DL_InsertData("CORNER", 2200, 1500, 0, 1, 1, 1, 30, 1, 1, 0, 0), plain);
    dxf.writeSolid(writer, DL_TraceData(1200, 2000, 0, 1400, 2000, 0, 1200, 2200, 0, 1400, 2200, 0),
                   plain);
    writeMultiline(writer, {0.0, -500.0}, 3000.0, 240.0);
    writer.sectionEnd();
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("usage: dxflib_writer FILE\n", stderr);
        return 2;
    }
    DL_Dxf dxf;
    const std::unique_ptr<DL_WriterA> writer(dxf.out(argv[1], DL_Codes::AC1015));
    if (!writer || writer->openFailed()) {
        std::fprintf(stderr, "dxflib_writer: can't write %s\n", argv[1]);
        return 4;
    }
    dxf.writeHeader(*writer);
    writer->sectionEnd();
    writeTables(dxf, *writer);
    writeBlocks(dxf, *writer);
    writeEntities(dxf, *writer);
    dxf.writeObjects(*writer);
    dxf.writeObjectsEnd(*writer);
    writer->dxfEOF();
    writer->close();
    return 0;
}
