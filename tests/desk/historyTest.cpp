#include "WallsFixture.h"

#include "PlayScript.h"

#include <QTemporaryDir>

namespace orvex::testing {

namespace {

class History : public WallsFixture {
protected:
    Step look(PlanPoint center, double height) {
        return [this, center, height] { canvas()->lookAt(center, height); };
    }
    Step expectZooms(int count) {
        return [this, count] {
            EXPECT_EQ(QString::fromStdString(script()).count("'ZOOM"), count) << script();
        };
    }
};

TEST_F(History, hasAZoomWhereAPickWouldMissInAScriptAndNowhereElse) {
    playOnWalls({
        type("ZOOM"),           type("E"),
        look({350, 0}, 1000), // about as in a script
        type("-MLEDIT"),        type("OC"),
        clickAt(200, 0),        clickAt(100, 50),
        expectZooms(0),         key(Qt::Key_Return),
        look({350, 0}, 40'000), // all of the wall is some pixels wide
        type("-MLEDIT"),        type("DV"),
        clickAt(300, 60),       expectZooms(1),
        clickAt(300, 60),
        expectZooms(1), // the script's view is this one by now
        key(Qt::Key_Return),    look({300, 50}, 100),
        type("-MLEDIT"),        type("CA"),
        clickAt(290, 40), // the second line of it
        clickAt(290, 60),       key(Qt::Key_Return),
    });
    expectSameBy(script());
}

TEST_F(History, hasWhatIsTypedToCancelAsACancel) {
    play({
        type("MLRESTYLE"),
        type("*CANCEL*"), // of a name, which it isn't
        [this] { EXPECT_FALSE(window->isBusy()); },
        type("MLINE\n0,0\n500,0\n*CANCEL*"),
        [this] { EXPECT_EQ(script(), "MLRESTYLE\n*CANCEL*\nMLINE\n0,0\n500,0\n*CANCEL*\n"); },
    });
}

TEST_F(History, isSavedAsAScript) {
    const QTemporaryDir folder;
    const QString path = folder.filePath("history.scr");
    playOnWalls({
        type("MOVE"),
        clickAt(200, 0),
        type("\n0,0"),
        type("nonsense"), // isn't answered
        type("@0,7"),
        trigger("undo"),
        trigger("redo"),
        [&] { window->findChild<PlayScript*>()->save(*window->session(), "plan", path); },
    });
    EXPECT_TRUE(history().contains("Written into"));
    const std::string text = readFile(path.toStdString());
    EXPECT_THAT(text, ::testing::StartsWith("; what was done to plan\nMLINE\n"));
    expectSameBy(text);
}

TEST_F(History, aNewDrawingHasRoomForAHouseAndExtentsHaveWhatIsDrawn) {
    const auto height = [this] { return window->session()->view().viewHeight(); };
    play({
        trigger("new"),
        [&] { EXPECT_GE(height(), 297 * 50); },
        type("MLINE\n0,0"),
        trigger("zoomExtents"),
        [&] { EXPECT_GE(height(), 297 * 50); },
        type("90000,0\n90000,70000"),
        trigger("zoomExtents"),
        [&] {
            EXPECT_GE(height(), 70000);
            EXPECT_LE(height(), 100000);
        },
        [&] {
            QTest::mouseMove(canvas(), {-5, -5});
            emit canvas()->cursorMoved(-1e-9, 0.0);
            EXPECT_EQ(window->findChild<QLabel*>("statusCursor")->text(), "0, 0");
        },
        key(Qt::Key_Escape),
    });
}

TEST_F(History, pointsComeOutRoundWhereOnlyRoundingPartsThemFromIt) {
    play({
        trigger("new"),
        look({0, 0}, 1000),
        trigger("ortho"),
        trigger("snap"),
        type("MLINE\n120.35,0"),
        hover(300, 0),
        type("244.65\n"),
    });
    EXPECT_THAT(script(), ::testing::HasSubstr("\n365,0\n"));
    makeWindow(); // remembers
    EXPECT_TRUE(window->findChild<QAction*>("ortho")->isChecked());
    EXPECT_FALSE(window->findChild<QAction*>("snap")->isChecked());
}

} // namespace

} // namespace orvex::testing
