#include "CButton.h"
#include "CRect.h"
#include "DialogPair.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>
#include <QTextEdit>

#include <climits>

using namespace orvex::testing;

namespace {

TEST(CWnd, textsGoToEveryKindOfWidgetAndBack) {
    Logic logic;
    EXPECT_EQ(logic.add<QLabel>(1).textFormat(), Qt::PlainText); // shows markup as it stands
    logic.add<QLineEdit>(2);
    logic.add<QPushButton>(3);
    logic.add<QGroupBox>(4);
    logic.add<QTextEdit>(5);
    const wchar_t* const text = L"<b>50 %s</b> \x00E4\x4E2D & [*]";
    for (int number = 1; number <= 5; ++number) {
        logic.GetDlgItem(number)->SetWindowTextW(text);
        EXPECT_EQ(textOf(*logic.GetDlgItem(number)), text) << number;
        logic.GetDlgItem(number)->SetWindowTextW(nullptr);
        EXPECT_EQ(textOf(*logic.GetDlgItem(number)), L"") << number;
    }
    logic.SetWindowTextW(text);
    EXPECT_EQ(textOf(logic), text);
}

TEST(CWnd, aReadIsCutAndTerminated) {
    Logic logic;
    logic.add<QLineEdit>(1);
    CWnd* const field = logic.GetDlgItem(1);
    field->SetWindowTextW(L"abcdef");
    for (const auto& [max, result] :
         {std::pair{7, L"abcdef"}, {4, L"abc"}, {1, L""}, {0, L"zzz"}}) {
        wchar_t buffer[8] = L"zzz";
        const int length = field->GetWindowTextW(buffer, max);
        EXPECT_STREQ(buffer, result) << max;
        EXPECT_EQ(length, max > 0 ? static_cast<int>(std::wcslen(result)) : 0);
    }
    EXPECT_EQ(field->GetWindowTextW(nullptr, 5), 0);
}

TEST(CWnd, whatTheLogicSetsIsSilent) {
    Logic logic;
    auto& field = logic.add<QLineEdit>(1);
    auto& other = logic.add<QLineEdit>(3);
    QSignalSpy changed(&field, &QLineEdit::textChanged);
    QSignalSpy finished(&field, &QLineEdit::editingFinished);
    logic.runWith([&] {
        field.setFocus();
        logic.GetDlgItem(1)->SetWindowTextW(L"set");
        logic.GetDlgItem(3)->SetFocus(); // takes the focus away from a field in use
        EXPECT_TRUE(other.hasFocus());
        EXPECT_EQ(finished.count(), 0);
        field.setFocus();
        logic.GetDlgItem(1)->EnableWindow(false);
        EXPECT_EQ(finished.count(), 0);
        EXPECT_EQ(changed.count(), 0);

        logic.GetDlgItem(1)->EnableWindow(true);
        QTest::keyClicks(&field, "x"); // the user's act does report
        EXPECT_EQ(changed.count(), 1);
        logic.OnCancel();
    });
}

TEST(CWnd, anUnregisteredNumberIsAnObjectThatDoesNothing) {
    Logic logic;
    CWnd* const nothing = logic.GetDlgItem(1064);
    ASSERT_NE(nothing, nullptr);
    EXPECT_EQ(logic.GetDlgItem(1064), nothing);
    EXPECT_EQ(nothing->GetSafeHwnd(), nullptr);
    nothing->SetWindowTextW(L"unseen");
    nothing->EnableWindow(true);
    nothing->SetFocus();
    nothing->Invalidate();
    nothing->MoveWindow({0, 0, 10, 10});
    nothing->SetIcon(nullptr, 1);
    tagRECT rect{1, 2, 3, 4};
    nothing->GetWindowRect(&rect);
    EXPECT_EQ(rect.right, 0);
    EXPECT_EQ(textOf(*nothing), L"");
    EXPECT_FALSE(EnableWindow(nullptr, true));
    EXPECT_EQ(GetDlgItem(nullptr, 1), nullptr);
    CButton stranger;
    EXPECT_FALSE(stranger.SubclassDlgItem(1064, &logic));
    EXPECT_FALSE(stranger.SubclassDlgItem(1064, nullptr));

    // Registered later, it is the same object.
    auto& label = logic.add<QLabel>(1064);
    EXPECT_EQ(nothing->GetSafeHwnd(), &label);
    EXPECT_EQ(nothing->GetParent(), &logic);
    logic.SetDlgItem(1064, nullptr);
    EXPECT_EQ(nothing->GetSafeHwnd(), nullptr);
}

TEST(CWnd, messageBoxesAnswerByNumberInPlainText) {
    struct Case {
        unsigned flags;
        QMessageBox::StandardButton press;
        int answer;
    };
    const Case cases[] = {
        {36, QMessageBox::Yes, 6}, {36, QMessageBox::No, 7},    {36, QMessageBox::NoButton, 7},
        {0, QMessageBox::Ok, 1},   {1, QMessageBox::Cancel, 2}, {3, QMessageBox::NoButton, 2},
    };
    for (const Case& each : cases) {
        orvex::testing::inNextDialog([&](QWidget& dialog) {
            auto& box = dynamic_cast<QMessageBox&>(dialog);
            EXPECT_EQ(box.textFormat(), Qt::PlainText);
            EXPECT_EQ(box.text(), "Delete \"<b>A</b>\"?");
            if (each.press == QMessageBox::NoButton) {
                QTest::keyClick(&box, Qt::Key_Escape);
            } else {
                box.button(each.press)->click();
            }
        });
        EXPECT_EQ(Logic().MessageBoxW(L"Delete \"<b>A</b>\"?", L"ORVEX", each.flags), each.answer)
            << each.flags << ' ' << each.press;
    }
}

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
