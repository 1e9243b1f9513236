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
    [[nodiscard]] int zooms() const {
        return static_cast<int>(QString::fromStdString(script()).count("'ZOOM"));
    }
    Step expectZooms(int count) {
        return [this, count] { EXPECT_EQ(zooms(), count) << script(); };
    }
    Step snapOff() {
        return [this] { window->findChild<QAction*>("snap")->trigger(); };
    }
};

TEST_F(History, hasAZoomWhereAPickWouldMissInAScriptAndNowhereElse) {
    play(then(drawWalls(), {
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
                           }));
    const std::string byHand = bytes();
    EXPECT_EQ(byHand, bytesOfNewByScript(script()));
}

TEST_F(History, isSavedAsAScript) {
    const QTemporaryDir folder;
    const QString path = folder.filePath("history.scr");
    play(then(drawWalls(),
              {
                  type("MOVE"),
                  clickAt(200, 0),
                  type(""),
                  type("0,0"),
                  type("nonsense"), // isn't answered
                  type("@0,7"),
                  trigger("undo"),
                  trigger("redo"),
                  [&] { window->findChild<PlayScript*>()->save(*window->session(), "plan", path); },
              }));
    EXPECT_TRUE(history().contains("Written into"));
    const std::string text = readFile(path.toStdString());
    EXPECT_THAT(text, ::testing::StartsWith("; what was done to plan\nMLINE\n"));
    const std::string byHand = bytes();
    EXPECT_EQ(byHand, bytesOfNewByScript(text));
}

TEST_F(History, aNewDrawingHasRoomForAHouseAndExtentsHaveWhatIsDrawn) {
    const auto height = [this] { return window->session()->view().viewHeight(); };
    play({
        trigger("new"),
        [&] { EXPECT_GE(height(), 297 * 50); },
        type("MLINE"),
        type("0,0"),
        trigger("zoomExtents"),
        [&] { EXPECT_GE(height(), 297 * 50); },
        type("90000,0"),
        type("90000,70000"),
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
    const auto aim = [this](double x, double y) {
        return [this, x, y] {
            const QPoint at = pixelAt(x, y);
            QMouseEvent move(QEvent::MouseMove, at, canvas()->mapToGlobal(at), Qt::NoButton,
                             Qt::NoButton, Qt::NoModifier);
            QCoreApplication::sendEvent(canvas(), &move);
        };
    };
    play({
        trigger("new"),
        look({0, 0}, 1000),
        trigger("ortho"),
        snapOff(),
        type("MLINE"),
        type("120.35,0"),
        aim(300, 0),
        type("244.65"),
        type(""),
    });
    EXPECT_THAT(script(), ::testing::HasSubstr("\n365,0\n"));
    makeWindow(); // remembers
    EXPECT_TRUE(window->findChild<QAction*>("ortho")->isChecked());
    EXPECT_FALSE(window->findChild<QAction*>("snap")->isChecked());
}

} // namespace

} // namespace orvex::testing
