#include "CRect.h"
#include "DialogPair.h"

#include <QLabel>
#include <QScreen>

#include <gtest/gtest.h>

#include <climits>

using orvex::testing::Logic;

namespace {

CRect placeOf(const CWnd& window) {
    CRect rect;
    window.GetWindowRect(&rect);
    return rect;
}

TEST(WindowGeometry, aRectangleThatCannotBeUsedLeavesTheDefaultPlace) {
    const CRect cases[] = {
        {0, 0, 0, 0},                         // empty
        {100, 100, 50, 300},                  // the wrong way round
        {INT_MIN, INT_MIN, INT_MAX, INT_MAX}, // wider than an int
        {INT_MIN, 0, INT_MIN + 200, 200},     // far off
        {5000, 100, 5300, 300},               // right of every screen
        {-300, 100, 10, 300},                 // 10 pixels of it
        {100, -150, 400, 50},                 // its upper edge is out of reach
        {100, 590, 400, 790},                 // below the screen but for 10 pixels
    };
    ASSERT_EQ(QApplication::primaryScreen()->geometry(), QRect(0, 0, 800, 600));
    for (const CRect& each : cases) {
        Logic logic;
        const CRect before = placeOf(logic);
        logic.MoveWindow(each);
        EXPECT_EQ(placeOf(logic), before) << each.left << ' ' << each.top;
        EXPECT_FALSE(logic.view().testAttribute(Qt::WA_Moved));
    }
    // Half off screen, yet it can be grabbed.
    Logic logic;
    logic.MoveWindow(CRect(-100, 500, 200, 700));
    EXPECT_EQ(placeOf(logic), CRect(-100, 500, 200, 700));
}

TEST(WindowGeometry, controlsArePlacedInTheirDialog) {
    Logic logic;
    auto& label = logic.add<QLabel>(5);
    logic.MoveWindow(CRect(100, 50, 400, 250));
    CWnd* const item = logic.GetDlgItem(5);
    item->MoveWindow(CRect(10, 20, 110, 40));
    EXPECT_EQ(label.geometry(), QRect(10, 20, 100, 20));
    EXPECT_EQ(placeOf(*item), CRect(110, 70, 210, 90));
    CRect rect = placeOf(*item);
    logic.ScreenToClient(&rect);
    EXPECT_EQ(rect, CRect(10, 20, 110, 40));
    CRect extreme(INT_MIN, INT_MIN, INT_MAX, INT_MAX);
    logic.ScreenToClient(&extreme);
    EXPECT_EQ(extreme, CRect(INT_MIN, INT_MIN, INT_MAX - 100, INT_MAX - 50));
    item->MoveWindow(CRect(INT_MIN, 0, INT_MAX, -5));
    EXPECT_EQ(label.height(), 0);
}

} // namespace
