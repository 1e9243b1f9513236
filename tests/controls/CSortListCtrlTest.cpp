#include "CSortListCtrl.h"

#include "CDialog.h"

#include <QDialog>
#include <QTableWidget>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Texts = std::vector<std::wstring>;

// A dialog with nothing but the list.
class SortListCtrl : public ::testing::Test {
protected:
    SortListCtrl() {
        logic.SetHandle(&view);
        logic.SetDlgItem(1046, &table);
        list.SubclassDlgItem(1046, &logic);
    }

    [[nodiscard]] Texts column(int index) const {
        Texts all;
        for (int row = 0; row < list.GetItemCount(); ++row) {
            all.push_back(list.GetItemText(row, index).text());
        }
        return all;
    }

    QDialog view;
    QTableWidget table{&view};
    CDialog logic{105};
    CSortListCtrl list;
};

TEST_F(SortListCtrl, headingsComeFromNamesAndWidths) {
    const std::pair<const wchar_t*, std::wstring> cases[] = {
        {L"", L""},
        {L"Offset", L""},
        {L"A,110;B,120", L"A 110|B 120|"},
        {L"A,110;B,120;", L"A 110|B 120|"},
        {L"A,110;rest", L"A 110|"},
        {L"A;B,120,C", L"A;B 120|"}, // a name ends at its comma, whatever is in it
    };
    for (const auto& [text, columns] : cases) {
        QTableWidget fresh(&view);
        CSortListCtrl made;
        made.SubclassWindow(&fresh);
        EXPECT_TRUE(made.SetHeadings(CStdStr<wchar_t>(text))) << text;
        std::wstring all;
        for (int index = 0; index < made.GetColumnCount(); ++index) {
            all += fresh.horizontalHeaderItem(index)->text().toStdWString() + L' ' +
                   std::to_wstring(made.GetColumnWidth(index)) + L'|';
        }
        EXPECT_EQ(all, columns) << text;
    }
    CSortListCtrl unbound;
    EXPECT_FALSE(unbound.SetHeadings(CStdStr<wchar_t>(L"A,10")));
    EXPECT_EQ(unbound.AddItem(L"1"), -1);
}

TEST_F(SortListCtrl, sortsEachColumnByItsNumbersAndKeepsTheOrderOfEqualOnes) {
    list.SetHeadings(CStdStr<wchar_t>(L"A,50;B,50;C,50"));
    for (const wchar_t* number : {L"-0.5", L"0.5", L"0", L"text", L"1e2", L"-"}) {
        const int row = list.AddItem(number, L"line", number);
        EXPECT_TRUE(list.SetItemData(row, 100 + row));
    }
    list.Sort(0, false);
    EXPECT_EQ(column(0), (Texts{L"1e2", L"0.5", L"0", L"text", L"-", L"-0.5"}));
    EXPECT_EQ(list.GetItemData(0), 104UL);
    EXPECT_EQ(list.GetItemData(5), 100UL);
    EXPECT_TRUE(list.SetItemText(0, 0, L"0.25"));
    list.Sort(0, true);
    EXPECT_EQ(column(0), (Texts{L"-0.5", L"0", L"text", L"-", L"0.25", L"0.5"}));
    list.Sort(2, true);
    EXPECT_EQ(column(0).back(), L"0.25"); // its third column still says 1e2
    list.Sort(9, true);
    EXPECT_EQ(column(0).back(), L"0.25");
}

} // namespace
