#include "CListCtrl.h"
#include "DialogPair.h"

#include <QHeaderView>
#include <QTableWidget>
#include <QTest>

#include <gtest/gtest.h>

using orvex::testing::Logic;

namespace {

constexpr unsigned kSelected = 2;

class ListCtrl : public ::testing::Test {
protected:
    ListCtrl() : widget(logic.add<QTableWidget>(1046)) {
        widget.resize(280, 180);
        widget.setSelectionBehavior(QAbstractItemView::SelectRows);
        list.SubclassDlgItem(1046, &logic);
        list.InsertColumn(0, L"Offset", 0, 90, -1);
        list.InsertColumn(1, L"Linetype", 0, 80, -1);
        QObject::connect(&widget, &QTableWidget::itemClicked, [this](QTableWidgetItem*) {
            told.push_back(list.GetNextItem(-1, kSelected));
        });
    }

    void addRow(const wchar_t* text, unsigned long data) {
        const int row = list.InsertItem(list.GetItemCount(), text);
        list.SetItem(row, 1, 1, L"ByLayer", 0, 0, 0, 0);
        list.SetItemData(row, data);
    }
    [[nodiscard]] std::vector<unsigned long> data() const {
        std::vector<unsigned long> all;
        for (int row = 0; row < list.GetItemCount(); ++row) {
            all.push_back(list.GetItemData(row));
        }
        return all;
    }
    [[nodiscard]] QPoint middleOf(int row) const {
        return widget.visualItemRect(widget.item(row, 0)).center();
    }

    Logic logic;
    QTableWidget& widget;
    CListCtrl list;
    std::vector<int> told;
};

int byTens(long a, long b, long direction) {
    const long difference = a / 10 - b / 10;
    return static_cast<int>(difference * direction);
}

TEST_F(ListCtrl, sortsStablyAndTakesSelectionAndCurrentRowAlong) {
    for (const unsigned long each : {21, 11, 31, 12, 22}) {
        addRow(std::to_wstring(each).c_str(), each);
    }
    list.SetItemState(3, 1, 1); // 12
    EXPECT_TRUE(list.SortItems(byTens, 1));
    EXPECT_EQ(data(), (std::vector<unsigned long>{11, 12, 21, 22, 31}));
    EXPECT_STREQ(list.GetItemText(1, 0), L"12");
    EXPECT_STREQ(list.GetItemText(1, 1), L"ByLayer");
    EXPECT_EQ(list.GetNextItem(-1, kSelected), 1);
    EXPECT_EQ(list.GetSelectedCount(), 1);
    EXPECT_EQ(widget.currentRow(), 1);
    EXPECT_TRUE(list.SortItems(byTens, -1));
    EXPECT_EQ(data(), (std::vector<unsigned long>{31, 21, 22, 11, 12}));
    EXPECT_EQ(list.GetNextItem(-1, kSelected), 4);
    EXPECT_TRUE(told.empty());
    EXPECT_FALSE(list.SortItems(nullptr, 0));
    widget.selectAll();
    list.SetItemState(4, 1, 1); // the current and only selected row
    EXPECT_EQ(list.GetSelectedCount(), 1);
}

TEST_F(ListCtrl, neitherCellsNorHeadingsAreTheUsers) {
    addRow(L"2", 2);
    addRow(L"1", 1);
    logic.runWith([this] {
        QTest::mouseDClick(widget.viewport(), Qt::LeftButton, {}, middleOf(0));
        QTest::keyClick(&widget, Qt::Key_F2);
        QTest::keyClicks(&widget, "9");
        EXPECT_EQ(widget.findChild<QWidget*>("qt_editing_widget"), nullptr);
        told.clear();
        QHeaderView& headings = *widget.horizontalHeader();
        QTest::mouseClick(headings.viewport(), Qt::LeftButton, {}, QPoint(10, 5));
        EXPECT_TRUE(told.empty());
        logic.OnCancel();
    });
    EXPECT_EQ(data(), (std::vector<unsigned long>{2, 1}));
    EXPECT_STREQ(list.GetItemText(0, 0), L"2");
}

TEST_F(ListCtrl, headingsAreCutToTheRoomThereIs) {
    CHeaderCtrl* const header = list.GetHeaderCtrl();
    ASSERT_NE(header, nullptr);
    wchar_t text[5] = L"";
    _HD_ITEMW item;
    item.mask = 1 | 2 | 4;
    item.pszText = text;
    item.cchTextMax = 5;
    EXPECT_TRUE(header->GetItem(1, &item));
    EXPECT_STREQ(text, L"Line");
    EXPECT_EQ(item.cxy, 80);
    item.fmt = 0x8000;
    EXPECT_TRUE(header->SetItem(1, &item));
    item.fmt = 0;
    EXPECT_TRUE(header->GetItem(1, &item));
    EXPECT_EQ(item.fmt, 0x8000);
    EXPECT_FALSE(header->GetItem(2, &item));
}

} // namespace
