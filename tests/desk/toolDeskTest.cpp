#include "DeskFixture.h"

#include "hoverText.h"
#include "toolGhost.h"

#include <QDialog>
#include <QMouseEvent>
#include <QThread>

#include <tuple>

namespace orvex::testing {

namespace {

class ToolDeskTest : public DeskFixture {
protected:
    // The mouse without a button, to a point that the view shows.
    Step move(double x, double y) {
        return [this, x, y] {
            const PlanPoint pixel = window->session()->view().toPixels({x, y});
            const QPoint at(static_cast<int>(pixel.x), static_cast<int>(pixel.y));
            QMouseEvent event(QEvent::MouseMove, at, canvas()->mapToGlobal(at), Qt::NoButton,
                              Qt::NoButton, Qt::NoModifier);
            QApplication::sendEvent(canvas(), &event);
        };
    }
    Step click(double x, double y) {
        return [this, x, y] {
            const PlanPoint pixel = window->session()->view().toPixels({x, y});
            QTest::mouseClick(canvas(), Qt::LeftButton, {},
                              {static_cast<int>(pixel.x), static_cast<int>(pixel.y)});
        };
    }
    // As long as it takes the mouse to be at rest, and a step more, so that timers come first.
    static Step rest() {
        return [] { QThread::msleep(150); };
    }
    static Step nothing() {
        return [] {};
    }
    [[nodiscard]] const CanvasHints& hints() const { return canvas()->hints(); }
    [[nodiscard]] QString status(const char* label) const {
        return window->findChild<QLabel*>(label)->text();
    }
    [[nodiscard]] std::string bytes() const { return window->session()->drawing().bytes(); }
};

// Two walls of 100 by 20 that cross, in a new drawing; the second lies there twice.
const QStringList kWalls{"MLINE", "s",     "20",     "j",     "z",    "0,0",   "100,0",
                         "",      "MLINE", "50,-50", "50,50", "",     "MLINE", "50,-50",
                         "50,50", "",      "ZOOM",   "c",     "50,0", "200"};

// Where the chain is closed or its ends are cut slanting, the lists measure along a slanting miter.
TEST_F(ToolDeskTest, tellsHowWideAWallIsSquareToItself) {
    play({openPlan(), [this] {
              Scene& scene = window->session()->scene();
              for (const auto& [x, y, width] : {std::tuple{2200.0, 0.0, "365 wide"},
                                                {8000.0, 8920.0, "60 wide"},
                                                {5025.0, 4000.0, "150 wide"}}) {
                  KdDbStub* const wall = scene.pick({x, y}, 10);
                  ASSERT_NE(wall, nullptr) << x;
                  EXPECT_THAT(hoverText(*wall).toStdString(), ::testing::HasSubstr(width));
              }
          }});
}

TEST_F(ToolDeskTest, showsWhatAClickWillDoAndWhatWasPicked) {
    std::deque<Step> all;
    for (const QString& line : kWalls) {
        all.push_back(type(line));
    }
    std::string before;
    std::vector<Stroke> ghost;
    const std::deque<Step> clicks{
        type("-MLEDIT"),
        clickKeyword("CC"),
        [&] {
            before = bytes();
            EXPECT_TRUE(prompt().startsWith("Closed Cross: "));
            EXPECT_EQ(status("statusTool"), "Closed Cross");
            EXPECT_TRUE(hints().lit.empty());
        },
        click(20, 10),
        [&] { EXPECT_EQ(hints().lit.size(), 1U); },
        move(60, 40),
        [&] { EXPECT_FALSE(hints().hasGhost()) << "the mouse may be on its way"; },
        rest(),
        nothing(),
        nothing(),
        [&] {
            ASSERT_TRUE(hints().hasGhost());
            ghost = hints().after.front().strokes;
            EXPECT_NE(ghost.size(), hints().before.front().strokes.size());
            EXPECT_EQ(bytes(), before) << "nothing is changed by looking";
            EXPECT_THAT(status("statusHovered").toStdString(), ::testing::HasSubstr("20 wide"));
        },
        click(60, 40),
        [&] {
            EXPECT_FALSE(hints().hasGhost());
            EXPECT_TRUE(hints().lit.empty());
            KdDbStub* const wall = window->session()->scene().pick({20, 10}, 1);
            ASSERT_NE(wall, nullptr);
            const auto now = window->session()->scene().appearance(*wall).strokes;
            ASSERT_EQ(now.size(), ghost.size());
            for (std::size_t i = 0; i < now.size(); ++i) {
                EXPECT_EQ(now[i].points, ghost[i].points) << i;
            }
        },
        // Over the same wall as before, the tool would do nothing.
        click(20, 10),
        move(80, 10),
        rest(),
        nothing(),
        nothing(),
        [&] {
            EXPECT_FALSE(hints().hasGhost());
            EXPECT_EQ(hints().words, "this is the same multiline");
        },
        click(80, -80),
        [&] {
            EXPECT_EQ(hints().words, "nothing here");
            EXPECT_TRUE(hints().flashes);
            EXPECT_EQ(lastLine(), "Nothing here; pick on a line of a multiline.");
        },
        key(Qt::Key_Escape),
        [&] { EXPECT_EQ(status("statusTool"), ""); },
    };
    all.insert(all.end(), clicks.begin(), clicks.end());
    play(std::move(all));
}

TEST_F(ToolDeskTest, anotherClickInTheSamePlaceTakesTheNextAndSaysWhich) {
    std::deque<Step> all;
    for (const QString& line : kWalls) {
        all.push_back(type(line));
    }
    QStringList picked;
    const auto note = [&] { picked << history().section('#', -1).section('\n', 0, 0); };
    all.insert(all.end(), {type("-MLEDIT"), clickKeyword("AV"), click(60, 40), note, click(60, 40),
                           note, click(60, 40), note, click(61, -40), note, key(Qt::Key_Escape)});
    play(std::move(all));
    ASSERT_EQ(picked.size(), 4);
    EXPECT_NE(picked[0], picked[1]);
    EXPECT_EQ(picked[0], picked[2]);
    EXPECT_EQ(picked[0], picked[3]) << "another place begins with what was drawn last";
}

TEST_F(ToolDeskTest, aPaletteThatIsClosedSaysSo) {
    play({
        type("MLEDIT"),
        inDialog<QDialog>([](QDialog& palette) { palette.reject(); }),
        [&] { EXPECT_EQ(lastLine(), "No editing tool was chosen."); },
    });
}

} // namespace

} // namespace orvex::testing
