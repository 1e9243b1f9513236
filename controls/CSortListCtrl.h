#pragma once

#include "CListCtrl.h"
#include "CSortHeaderCtrl.h"

#include <initializer_list>
#include <span>
#include <string>
#include <vector>

// A click on a heading.
struct tagNMHEADERW {
    tagNMHDR hdr;
    int iItem = 0; // the column
    int iButton = 0;
};

// What a row of a CSortListCtrl remembers.
struct ItemData {
    std::vector<std::wstring> texts; // one per column, as shown
    unsigned long userValue = 0;     // not owned
};

// Section of the application's profile in which the columns of a list would be kept.
extern const wchar_t* const g_pszSection;

// A list that can be sorted by the numbers in a column and carries a value of its user's on each
// row. It keeps copies of the rows' texts to sort by, so every change of a text goes through here,
// and hangs them on the rows as the list's own item data.
class CSortListCtrl : public CListCtrl {
public:
    CSortListCtrl() = default;
    ~CSortListCtrl() override;

    void PreSubclassWindow() override;

    // Appends columns from "name,width;name,width" in pixels. What comes after the last comma's
    // column is ignored; false when a column can't be made.
    bool SetHeadings(const CStdStr<wchar_t>& text);
    bool SetHeadings(unsigned number); // of a text in the current resource library

    // Appends a row of one wide text per column, in order, and gives its index, -1 when there is no
    // list. Columns without a text are empty, texts without a column are dropped.
    template <class... Texts>
    int AddItem(const wchar_t* first, const Texts&... further) {
        const std::initializer_list<const wchar_t*> texts{first,
                                                          static_cast<const wchar_t*>(further)...};
        return addRow({texts.begin(), texts.size()});
    }
    bool DeleteItem(int row);
    bool DeleteAllItems();

    // Rows of equal numbers keep their order.
    void Sort(int column, bool ascending);

    bool SetItemText(int row, int column, const wchar_t* text);
    // The user's value: false and 0 for a row that isn't there.
    bool SetItemData(int row, unsigned long value);
    [[nodiscard]] unsigned long GetItemData(int row) const;

    // The state of the columns in the profile, under the control's number. It is empty as long as
    // the header keeps nothing.
    void LoadColumnInfo();
    void SaveColumnInfo();

    // What a click on a heading (`header` begins a tagNMHEADERW) and the end of the window would
    // come to. Nothing is connected to them: the list stays in the order its dialog gave it.
    void OnColumnClick(tagNMHDR* header, long* result);
    void OnDestroy();

    // Of two rows' ItemData, for SortItems; `list` is the CSortListCtrl.
    static int CompareFunction(long a, long b, long list);

private:
    int addRow(std::span<const wchar_t* const> texts);
    [[nodiscard]] ItemData* dataOf(int row) const;
    void FreeItemMemory(int row);
    void freeAllItemMemory();
    [[nodiscard]] CStdStr<wchar_t> profileKey() const;

    CSortHeaderCtrl m_header;
    int m_columnCount = 0;
    int m_sortColumn = -1;
    bool m_ascending = true;
    // Owned here and not by the rows, for Qt may take the table away first.
    std::vector<std::unique_ptr<ItemData>> m_rows;
};
