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
    // Two walls of 100 by 20 that cross, in a new drawing; the second lies there twice.
    void playOnWalls(std::deque<Step> then) {
        play(joined({{type("MLINE\ns\n20\nj\nz\n0,0\n100,0\n\nMLINE\n50,-50\n50,50\n\n"
                           "MLINE\n50,-50\n50,50\n\nZOOM\nc\n50,0\n200")},
                     std::move(then)}));
    }
    // As long as it takes the mouse to be at rest, and a step more, so that timers come first.
    static Step rest() {
        return [] { QThread::msleep(150); };
    }
    [[nodiscard]] const CanvasHints& hints() const { return canvas()->hints(); }
    [[nodiscard]] QString status(const char* label) const {
        return window->findChild<QLabel*>(label)->text();
    }
};

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
    std::string before;
    std::vector<Stroke> ghost;
    playOnWalls({
        type("-MLEDIT"),
        clickKeyword("CC"),
        [&] {
            before = bytes();
            EXPECT_TRUE(prompt().startsWith("Closed Cross: "));
            EXPECT_EQ(status("statusTool"), "Closed Cross");
            EXPECT_TRUE(hints().lit.empty());
        },
        clickAt(20, 10),
        [&] { EXPECT_EQ(hints().lit.size(), 1U); },
        hover(60, 40),
        [&] { EXPECT_TRUE(hints().after.empty()) << "the mouse may be on its way"; },
        rest(),
        [] {},
        [] {},
        [&] {
            ASSERT_FALSE(hints().after.empty());
            ghost = hints().after.front().strokes;
            EXPECT_NE(ghost.size(), hints().before.front().strokes.size());
            EXPECT_EQ(bytes(), before) << "nothing is changed by looking";
            EXPECT_THAT(status("statusHovered").toStdString(), ::testing::HasSubstr("20 wide"));
        },
        clickAt(60, 40),
        [&] {
            EXPECT_TRUE(hints().after.empty());
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
        clickAt(20, 10),
        hover(80, 10),
        rest(),
        [] {},
        [] {},
        [&] {
            EXPECT_TRUE(hints().after.empty());
            EXPECT_EQ(hints().words, "this is the same multiline");
        },
        clickAt(80, -80),
        [&] {
            EXPECT_EQ(hints().words, "nothing here");
            EXPECT_TRUE(hints().flashes);
            EXPECT_EQ(lastLine(), "Nothing here; pick on a line of a multiline.");
        },
        key(Qt::Key_Escape),
        [&] { EXPECT_EQ(status("statusTool"), ""); },
    });
}

TEST_F(ToolDeskTest, anotherClickInTheSamePlaceTakesTheNextAndSaysWhich) {
    QStringList picked;
    const auto note = [&] { picked << history().section('#', -1).section('\n', 0, 0); };
    playOnWalls({type("-MLEDIT"), clickKeyword("AV"), clickAt(60, 40), note, clickAt(60, 40), note,
                 clickAt(60, 40), note, clickAt(61, -40), note, key(Qt::Key_Escape)});
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
