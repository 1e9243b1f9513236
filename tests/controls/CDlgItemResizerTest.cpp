#include "CDlgItemResizer.h"

#include "CDialog.h"

#include <QDialog>
#include <QPushButton>

#include <gtest/gtest.h>

namespace {

// Lets the records be seen.
class Resizer : public CDlgItemResizer {
public:
    using CDlgItemResizer::m_initialSize;
    using CDlgItemResizer::m_items;
    using CDlgItemResizer::m_minimumSize;

    [[nodiscard]] const DLGITEMINFO& item(int index) const {
        return *static_cast<const DLGITEMINFO*>(m_items.GetAt(index));
    }
};

class ItemResizer : public ::testing::Test {
protected:
    ItemResizer() {
        view.setGeometry(100, 50, 300, 200);
        left->setGeometry(10, 20, 80, 25);
        right->setGeometry(120, 60, 70, 25);
        logic.SetHandle(&view);
        logic.SetDlgItem(1, left);
        logic.SetDlgItem(2, right);
    }

    QDialog view;
    QPushButton* left = new QPushButton(&view);
    QPushButton* right = new QPushButton(&view);
    CDialog logic{101};
    Resizer resizer;
};

TEST_F(ItemResizer, recordsWhereItemsStandAndTheSizesOfTheFirstMoment) {
    resizer.Add(&logic, 1, 0);
    resizer.Add(&logic, 99, RESIZE_LOCKALL); // nothing is registered
    resizer.Add(nullptr, 1, RESIZE_LOCKALL);
    resizer.Add(static_cast<CWnd*>(nullptr), RESIZE_LOCKALL);
    resizer.Add(&logic, RESIZE_LOCKALL); // stands in nothing
    EXPECT_EQ(resizer.m_items.GetSize(), 0);
    EXPECT_EQ(resizer.m_initialSize.cx, 0);

    resizer.Add(&logic, 1, RESIZE_LOCKTOPLEFT);
    view.resize(400, 400);
    resizer.Add(&logic, 2, RESIZE_LOCKBOTTOMRIGHT);
    ASSERT_EQ(resizer.m_items.GetSize(), 2);
    EXPECT_EQ(resizer.item(0).flags, 5U);
    EXPECT_EQ(resizer.item(1).window, right);
    EXPECT_EQ(resizer.item(1).rectangle, CRect(120, 60, 190, 85));
    EXPECT_EQ(resizer.m_initialSize.cx, 300);
    EXPECT_EQ(resizer.m_minimumSize.cy, 200);
    resizer.ClearData();
    EXPECT_EQ(resizer.m_items.GetSize(), 0);
}

TEST_F(ItemResizer, theEdgeThatIsDraggedStopsAtTheSmallestSize) {
    resizer.Add(&logic, 1, RESIZE_LOCKALL); // 300 by 200 it is
    view.setGeometry(100, 50, 400, 300);
    struct Case {
        CRect dragged;
        CRect held;
    };
    const Case cases[] = {
        {{100, 50, 150, 350}, {100, 50, 400, 350}},   // the right edge inward
        {{450, 50, 500, 350}, {200, 50, 500, 350}},   // the left one
        {{100, 50, 500, 60}, {100, 50, 500, 250}},    // the lower one
        {{100, 340, 500, 350}, {100, 150, 500, 350}}, // the upper one
        {{100, 50, 400, 250}, {100, 50, 400, 250}},   // as small as may be
        {{90, 40, 520, 360}, {90, 40, 520, 360}},
    };
    for (const Case& each : cases) {
        CRect rect = each.dragged;
        resizer.OnSizing(&logic, &rect);
        EXPECT_EQ(rect, each.held) << each.dragged.left << ' ' << each.dragged.bottom;
    }
    CRect rect = cases[0].dragged;
    resizer.OnSizing(nullptr, &rect);
    resizer.OnSizing(logic.GetDlgItem(99), &rect);
    EXPECT_EQ(rect, cases[0].dragged);
}

} // namespace
