#include "DeskFixture.h"

#include "dialogRun.h"
#include "layoutFaults.h"

#include <QInputDialog>
#include <QMessageBox>

namespace orvex::testing {

namespace {

using ::testing::IsEmpty;

TEST_F(DeskFixture, nothingIsCutOrCoveredWithLargeText) {
    for (const int points : {kUsualTextSize, kLargeTextSize}) {
        const TextSize size(points);
        makeWindow();
        const auto look = [this, points](const char* what) {
            return [this, points, what] {
                EXPECT_THAT(layoutFaults(*window), IsEmpty()) << what << " at " << points;
            };
        };
        const auto lookAndLeave = [points](QDialog& dialog) {
            EXPECT_THAT(layoutFaults(dialog), IsEmpty())
                << dialog.windowTitle().toStdString() << " at " << points;
            dialog.reject();
        };
        play({
            [this] { window->resize(1024, 576); },
            openPlan(),
            look("idle"),
            trigger("undoMemory"),
            inDialog<QInputDialog>(lookAndLeave),
            trigger("about"),
            inDialog<QMessageBox>(lookAndLeave),
            trigger("properties"),
            trigger("selectAll"),
            type("mljoin"),
            [this, points] {
                // Beside a panel there is still a drawing.
                EXPECT_GE(canvas()->width(), 200) << points;
                EXPECT_LE(window->width(), 1024) << points;
                EXPECT_LE(window->height(), 576) << points;
            },
            key(Qt::Key_Escape),
            trigger("properties"),
            type("mline"),
            look("with keywords"),
            key(Qt::Key_Escape),
        });
    }
}

} // namespace

} // namespace orvex::testing
