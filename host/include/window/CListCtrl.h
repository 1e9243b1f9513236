#pragma once

#include "CHeaderCtrl.h"
#include "CWnd.h"

// A table of texts (QTableWidget), a 64-bit word of the user's on each row. Rows and columns from
// 0. A bad row or column gives false, -1, 0 or an empty text and changes nothing. Cells can't be
// edited in place, clicks on the headings do nothing.
class CListCtrl : public CWnd {
public:
    CListCtrl();
    ~CListCtrl() override;

    // Width in pixels; below 0 the table's own. The index of the new column, or -1. An index beyond
    // the last one appends.
    int InsertColumn(int column, const wchar_t* heading, int format = 0, int width = -1,
                     int subItem = -1);
    [[nodiscard]] int GetColumnCount() const;
    [[nodiscard]] int GetColumnWidth(int column) const;

    // The index of the new row, or -1; an index beyond the last one appends.
    int InsertItem(int row, const wchar_t* text);
    // Only `mask` 1, the text, has an effect.
    bool SetItem(int row, int column, unsigned mask, const wchar_t* text, int image, unsigned state,
                 unsigned stateMask, long param);
    bool SetItemText(int row, int column, const wchar_t* text);
    [[nodiscard]] CStdStr<wchar_t> GetItemText(int row, int column) const;
    bool SetItemData(int row, unsigned long data);
    [[nodiscard]] unsigned long GetItemData(int row) const;
    // The row's selection goes with it; no other row takes its place.
    bool DeleteItem(int row);
    bool DeleteAllItems(); // columns stay
    [[nodiscard]] int GetItemCount() const;

    // `mask` 1 or 2: set makes the row the current and only selected one, not set takes it out of
    // the selection.
    bool SetItemState(int row, unsigned state, unsigned mask);
    [[nodiscard]] int GetSelectedCount() const;
    // The first row following `after` (-1: of all); with `flags` 2 the first selected one. -1 for
    // none.
    [[nodiscard]] int GetNextItem(int after, unsigned flags) const;

    [[nodiscard]] unsigned GetExtendedStyle() const;
    unsigned SetExtendedStyle(unsigned style); // 32: whole rows are selected; gives the old one

    // Sorts by a function of two rows' data and the parameter, below 0, 0 or above 0. Stable; safe
    // with any function. Selection and current row go with their rows.
    bool SortItems(int (*compare)(long, long, long), long parameter);

    [[nodiscard]] CHeaderCtrl* GetHeaderCtrl(); // owned here

private:
    std::unique_ptr<CHeaderCtrl> m_header;
    unsigned m_extendedStyle = 0;
};
