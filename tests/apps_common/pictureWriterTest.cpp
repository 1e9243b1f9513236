#include "pictureWriter.h"

#include "MlineSample.h"
#include "Scene.h"
#include "TestDrawing.h"

#include <QByteArray>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

#include <gmock/gmock.h>

namespace orvex::testing {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

class PictureWriter : public ::testing::Test {
protected:
    // Two lines 10 long and 10 apart: a view of 11 units a side.
    PictureWriter() {
        MlineContent wall = sampleEastward(0, 0, 10, {{10, 0, 4, 6}, {0, 0}});
        wall.style = KdDbObjectId(&drawing.addStyle(filledStyle()));
        drawing.addMline(wall);
    }
    static MlineStyleContent filledStyle() {
        MlineStyleContent style = sampleStyle(1, {10, 0});
        style.fillColor.setColorIndex(3);
        style.elements[1].color.setColorIndex(1);
        return style;
    }
    std::string file(const char* name) const {
        return folder.filePath(QString::fromUtf8(name)).toStdString();
    }
    static std::string bytesOf(const std::string& path) {
        QFile opened(QString::fromStdString(path));
        return opened.open(QIODevice::ReadOnly) ? opened.readAll().toStdString() : "nothing";
    }

    QTemporaryDir folder;
    TestDrawing drawing;
};

TEST_F(PictureWriter, writesSvgThatReads) {
    drawing.addShape(TextShape{{5, 5, 0}, {1, 0, 0}, {0, 1, 0}, 1, 1, 2, {L"1 < 2 & \u00FC"}});
    Scene scene(drawing.database);
    EXPECT_FALSE(writePicture(scene, file("a.SVG"), {110, 110}));
    // 10 pixels a unit, from 5 to 105; white is black on paper.
    const std::string text = bytesOf(file("a.SVG"));
    EXPECT_THAT(text, HasSubstr("<path fill=\"#00ff00\" d=\"M5 5L105 5L105 105L5 105Z\"/>"));
    EXPECT_THAT(text, HasSubstr("<path stroke=\"#000000\" d=\"M5 5L45 5M65 5L105 5\"/>"));
    EXPECT_THAT(text, HasSubstr("<path stroke=\"#ff0000\" d=\"M5 105L105 105\"/>"));
    EXPECT_THAT(text, HasSubstr("text-anchor=\"middle\">1 &lt; 2 &amp; \u00FC</text>"));
}

TEST_F(PictureWriter, paintsPngAndPdf) {
    Scene scene(drawing.database);
    EXPECT_FALSE(writePicture(scene, file("a.png"), {110, 110}));
    const QImage image(QString::fromStdString(file("a.png")));
    ASSERT_EQ(image.size(), QSize(110, 110));
    EXPECT_EQ(image.pixel(1, 1), qRgb(255, 255, 255));
    EXPECT_EQ(image.pixel(50, 50), qRgb(0, 255, 0)) << "the fill";
    EXPECT_LT(qGreen(image.pixel(25, 4)), 200) << "the upper line, black";
    EXPECT_GT(qGreen(image.pixel(55, 4)), 250) << "its gap";

    EXPECT_FALSE(writePicture(scene, file("a.pdf"), {110, 110}));
    const std::string pdf = bytesOf(file("a.pdf"));
    EXPECT_THAT(pdf, StartsWith("%PDF-"));
    EXPECT_THAT(pdf, HasSubstr("%%EOF"));
}

TEST_F(PictureWriter, drawsAnEmptyDrawingAndOddOnes) {
    const TestDrawing empty;
    Scene nothing(empty.core.database());
    EXPECT_FALSE(writePicture(nothing, file("empty.svg"), {100, 50}));
    EXPECT_THAT(bytesOf(file("empty.svg")), Not(HasSubstr("<path")));

    TestDrawing odd;
    odd.addLine(1e99, 0, -1e99, 1e99);
    odd.addLine(3, 3, 3, 3);
    odd.addShape(TextShape{{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, 1e98, 1, 2, {L"large\x1"}});
    Scene scene(odd.database);
    for (const char* name : {"odd.svg", "odd.png", "odd.pdf"}) {
        EXPECT_FALSE(writePicture(scene, file(name), {64, 48})) << name;
    }
}

TEST_F(PictureWriter, refusesWhatItCantWriteAndLeavesNothingBehind) {
    Scene scene(drawing.database);
    const struct {
        std::string path;
        PictureSize size;
        FailureCause cause;
    } cases[] = {
        {file("a.jpg"), {10, 10}, FailureCause::wrongCall},
        {file("a"), {10, 10}, FailureCause::wrongCall},
        {file("a.svg"), {0, 10}, FailureCause::wrongCall},
        {file("a.pdf"), {10, -1}, FailureCause::wrongCall},
        {file("a.png"), {16'385, 10}, FailureCause::wrongCall},
        {file("a.png"), {16'000, 16'000}, FailureCause::wrongCall},
        {file("none/a.svg"), {10, 10}, FailureCause::unwritableOutput},
    };
    for (const auto& each : cases) {
        const auto failure = writePicture(scene, each.path, each.size);
        ASSERT_TRUE(failure) << each.path;
        EXPECT_EQ(failure->cause, each.cause) << each.path;
        EXPECT_EQ(failure->file, each.path);
        EXPECT_FALSE(QFile::exists(QString::fromStdString(each.path)));
    }
}

TEST_F(PictureWriter, writesIntoWhatIsNoRegularFile) {
    Scene scene(drawing.database);
    ASSERT_TRUE(QFile::link("/dev/full", QString::fromStdString(file("full.png"))));
    const auto failure = writePicture(scene, file("full.png"), {64, 48});
    ASSERT_TRUE(failure);
    EXPECT_THAT(failure->text, HasSubstr("No space left"));
    EXPECT_EQ(QFile::symLinkTarget(QString::fromStdString(file("full.png"))), "/dev/full");
}

} // namespace
} // namespace orvex::testing
