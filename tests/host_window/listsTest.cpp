#include "CComboBox.h"
#include "CListBox.h"
#include "DialogPair.h"

#include <QComboBox>
#include <QListWidget>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

using orvex::testing::Logic;

namespace {

class ListBox : public ::testing::Test {
protected:
    ListBox() : widget(logic.add<QListWidget>(1021)) {
        widget.resize(200, 150);
        list.SubclassDlgItem(1021, &logic);
        for (const wchar_t* const name : {L"STANDARD", L"b", L"A", L"Standard2"}) {
            list.AddString(name);
        }
        QObject::connect(&widget, &QListWidget::itemClicked,
                         [this](QListWidgetItem*) { told.push_back(list.GetCurSel()); });
    }

    [[nodiscard]] QPoint middleOf(int row) const {
        return widget.visualItemRect(widget.item(row)).center();
    }
    void click(QPoint place) { QTest::mouseClick(widget.viewport(), Qt::LeftButton, {}, place); }

    Logic logic;
    QListWidget& widget;
    CListBox list;
    std::vector<int> told; // the selection at each click that was told
    const QPoint m_emptyGround{100, 140};
};

TEST_F(ListBox, selectsWholeTextsIgnoringCase) {
    EXPECT_EQ(list.SelectString(-1, L"STANDARD2"), 3);
    EXPECT_EQ(list.SelectString(2, L"B"), 1); // from the beginning again
    EXPECT_EQ(list.GetSelCount(), 1);
    EXPECT_EQ(list.SelectString(-1, L"stand"), -1);
    EXPECT_EQ(list.GetSelCount(), 0);
    CStdStr<wchar_t> text;
    EXPECT_EQ(list.GetText(2, text), 1); // in the order in which they came
    EXPECT_STREQ(text, L"A");
    EXPECT_EQ(list.GetText(4, text), -1);
}

TEST_F(ListBox, eachChangeByTheUserIsToldOnce) {
    logic.runWith([this] {
        click(middleOf(1));
        QTest::keyClick(&widget, Qt::Key_Shift); // changes nothing
        EXPECT_EQ(told, (std::vector<int>{1}));
        QTest::keyClick(&widget, Qt::Key_Down);
        EXPECT_EQ(told, (std::vector<int>{1, 2}));
        QTest::keyClick(&widget, Qt::Key_End);
        QTest::keyClick(&widget, Qt::Key_Down); // stays
        EXPECT_EQ(told, (std::vector<int>{1, 2, 3}));
        QTest::keyClicks(&widget, "b"); // by its first letter
        EXPECT_EQ(told, (std::vector<int>{1, 2, 3, 1}));
        click(m_emptyGround);
        EXPECT_EQ(told, (std::vector<int>{1, 2, 3, 1, -1}));
        click(m_emptyGround); // nothing left to clear
        EXPECT_EQ(told.size(), 5U);
        EXPECT_EQ(list.GetSelCount(), 0);
        logic.OnCancel();
    });
}

TEST_F(ListBox, aPressThatEndsOnAnotherTextIsToldToo) {
    logic.SetDlgItem(1021, &widget); // bound twice it still tells once
    CListBox second;
    second.SubclassDlgItem(1021, &logic);
    logic.runWith([this] {
        QTest::mousePress(widget.viewport(), Qt::LeftButton, {}, middleOf(0));
        QTest::mouseMove(widget.viewport(), middleOf(2));
        QTest::mouseRelease(widget.viewport(), Qt::LeftButton, {}, middleOf(2));
        ASSERT_EQ(told.size(), 1U);
        EXPECT_EQ(told.front(), list.GetCurSel());
        QTest::mouseClick(widget.viewport(), Qt::RightButton, {}, middleOf(3));
        EXPECT_EQ(told.back(), 3);
        EXPECT_EQ(told.size(), 2U);
        // What the logic selects is no click, and a deleted text takes its selection along.
        list.SetCurSel(1);
        EXPECT_EQ(list.DeleteString(2), 3);
        EXPECT_EQ(list.GetCurSel(), 1);
        EXPECT_EQ(list.DeleteString(1), 2);
        EXPECT_EQ(list.GetCurSel(), -1);
        EXPECT_EQ(list.DeleteString(7), -1);
        EXPECT_EQ(list.SetCurSel(7), -1);
        list.ResetContent();
        EXPECT_EQ(told.size(), 2U);
        logic.OnCancel();
    });
}

TEST(ComboBox, findsAndSelects) {
    Logic logic;
    auto& widget = logic.add<QComboBox>(1055);
    widget.hide();
    CComboBox combo;
    combo.SubclassDlgItem(1055, &logic);
    QSignalSpy changed(&widget, QOverload<int>::of(&QComboBox::currentIndexChanged));
    for (const wchar_t* const name : {L"Dashed2", L"ByLayer", L"DASHED", L"Dot"}) {
        combo.AddString(name);
    }
    EXPECT_EQ(combo.GetCurSel(), -1);
    const struct {
        const wchar_t* text;
        int exact;
        int found;
    } cases[] = {{L"dashed", 2, 2}, {L"dash", -1, 0}, {L"BYLAYER", 1, 1},
                 {L"x", -1, -1},    {L"", -1, -1},    {nullptr, -1, -1}};
    for (const auto& each : cases) {
        EXPECT_EQ(combo.FindStringExact(-1, each.text), each.exact);
        EXPECT_EQ(combo.FindString(-1, each.text), each.found);
    }
    EXPECT_EQ(combo.FindString(0, L"d"), 2); // after the first
    EXPECT_EQ(combo.SelectString(-1, L"do"), 3);
    EXPECT_EQ(combo.SelectString(-1, L"x"), -1);
    EXPECT_EQ(combo.GetCurSel(), 3);
    CStdStr<wchar_t> text;
    EXPECT_EQ(combo.GetLBText(2, text), 6);
    EXPECT_STREQ(text, L"DASHED");
    EXPECT_EQ(combo.GetLBText(4, text), -1);
    EXPECT_EQ(combo.SetCurSel(9), -1);
    EXPECT_EQ(combo.GetCurSel(), -1);
    combo.SetCurSel(1);
    EXPECT_EQ(combo.DeleteString(1), 3);
    EXPECT_EQ(combo.GetCurSel(), -1);
    EXPECT_EQ(changed.count(), 0);
}

} // namespace
