#include "CDlgItemResizer.h"

#include "CDialog.h"

#include <QDialog>
#include <QPushButton>

#include <gtest/gtest.h>

namespace {

class ItemResizer : public ::testing::Test {
protected:
    ItemResizer() {
        view.setGeometry(100, 50, 300, 200);
        logic.SetHandle(&view);
        logic.SetDlgItem(1, new QPushButton(&view));
    }

    CRect sized(CWnd* window, CRect rectangle) {
        resizer.OnSizing(window, &rectangle);
        return rectangle;
    }

    QDialog view;
    CDialog logic{101};
    CDlgItemResizer resizer;
};

TEST_F(ItemResizer, theEdgeThatIsDraggedStopsAtTheSizeOfTheFirstItemsMoment) {
    const CRect tiny(100, 50, 150, 60);
    resizer.Add(&logic, 1, 0);
    EXPECT_EQ(sized(&logic, tiny), tiny);
    resizer.Add(&logic, 1, RESIZE_LOCKALL); // 300 by 200 it is
    view.setGeometry(100, 50, 400, 300);
    resizer.Add(&logic, 1, RESIZE_LOCKTOPLEFT);
    const std::pair<CRect, CRect> cases[] = {
        // dragged to, held at
        {{100, 50, 150, 350}, {100, 50, 400, 350}},   // the right edge inward
        {{450, 50, 500, 350}, {200, 50, 500, 350}},   // the left one
        {{100, 50, 500, 60}, {100, 50, 500, 250}},    // the lower one
        {{100, 340, 500, 350}, {100, 150, 500, 350}}, // the upper one
        {{100, 50, 400, 250}, {100, 50, 400, 250}},   // as small as may be
        {{90, 40, 520, 360}, {90, 40, 520, 360}},
    };
    for (const auto& [dragged, held] : cases) {
        EXPECT_EQ(sized(&logic, dragged), held) << dragged.left;
    }
}

} // namespace
