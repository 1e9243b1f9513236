#include "CListCtrl.h"

#include "SilentScope.h"
#include "qtText.h"

#include <QHeaderView>
#include <QItemSelectionModel>
#include <QTableWidget>

#include <algorithm>
#include <list>
#include <utility>
#include <vector>

using orvex::SilentScope;

namespace {

constexpr unsigned kTextMask = 1;
constexpr unsigned kFocusedOrSelected = 3;
constexpr unsigned kNextSelected = 2;
constexpr unsigned kFullRowSelect = 32;
constexpr int kDataRole = Qt::UserRole;

QTableWidget* tableOf(const CWnd& window) {
    return qobject_cast<QTableWidget*>(window.GetSafeHwnd());
}

bool isRow(const QTableWidget* table, int row) {
    return table != nullptr && row >= 0 && row < table->rowCount();
}

bool isCell(const QTableWidget* table, int row, int column) {
    return isRow(table, row) && column >= 0 && column < table->columnCount();
}

bool isSelected(const QTableWidget& table, int row) {
    return table.selectionModel()->rowIntersectsSelection(row, {});
}

void setCellText(QTableWidget& table, int row, int column, const wchar_t* text) {
    QTableWidgetItem* cell = table.item(row, column);
    if (cell == nullptr) {
        cell = new QTableWidgetItem;
        cell->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled);
        table.setItem(row, column, cell);
    }
    cell->setText(orvex::toQt(text));
}

void selectRow(QTableWidget& table, int row, QItemSelectionModel::SelectionFlags how) {
    table.selectionModel()->select(table.model()->index(row, 0), how | QItemSelectionModel::Rows);
}

// A row out of its table, for as long as rows change places.
struct TakenRow {
    QTableWidgetItem* heading = nullptr; // carries the row's data
    std::vector<QTableWidgetItem*> cells;
    bool selected = false;
};

TakenRow takeRow(QTableWidget& table, int row) {
    TakenRow taken;
    taken.selected = isSelected(table, row);
    taken.heading = table.takeVerticalHeaderItem(row);
    for (int column = 0; column < table.columnCount(); ++column) {
        taken.cells.push_back(table.takeItem(row, column));
    }
    return taken;
}

void putRow(QTableWidget& table, int row, const TakenRow& taken) {
    table.setVerticalHeaderItem(row, taken.heading);
    for (int column = 0; column < table.columnCount(); ++column) {
        table.setItem(row, column, taken.cells[column]);
    }
    if (taken.selected) {
        selectRow(table, row, QItemSelectionModel::Select);
    }
}

// Row i of the result is row order[i] of before.
void reorder(QTableWidget& table, const std::vector<int>& order) {
    const int currentRow = table.currentRow();
    const int currentColumn = std::max(table.currentColumn(), 0);
    std::vector<TakenRow> rows;
    rows.reserve(static_cast<std::size_t>(table.rowCount()));
    for (int row = 0; row < table.rowCount(); ++row) {
        rows.push_back(takeRow(table, row));
    }
    table.clearSelection();
    for (int row = 0; row < table.rowCount(); ++row) {
        putRow(table, row, rows[order[row]]);
        if (order[row] == currentRow) {
            table.selectionModel()->setCurrentIndex(table.model()->index(row, currentColumn),
                                                    QItemSelectionModel::NoUpdate);
        }
    }
}

} // namespace

CListCtrl::CListCtrl() = default;
CListCtrl::~CListCtrl() = default;

int CListCtrl::InsertColumn(int column, const wchar_t* heading, int /*format*/, int width,
                            int /*subItem*/) {
    QTableWidget* const table = tableOf(*this);
    if (table == nullptr || column < 0) {
        return -1;
    }
    const SilentScope silent(table);
    const int index = std::min(column, table->columnCount());
    table->insertColumn(index);
    auto item = std::make_unique<QTableWidgetItem>(orvex::toQt(heading));
    item->setTextAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    table->setHorizontalHeaderItem(index, item.release());
    if (width >= 0) {
        table->setColumnWidth(index, width);
    }
    return index;
}

int CListCtrl::GetColumnCount() const {
    const QTableWidget* const table = tableOf(*this);
    return table != nullptr ? table->columnCount() : 0;
}

int CListCtrl::GetColumnWidth(int column) const {
    const QTableWidget* const table = tableOf(*this);
    return table != nullptr ? table->columnWidth(column) : 0;
}

int CListCtrl::InsertItem(int row, const wchar_t* text) {
    QTableWidget* const table = tableOf(*this);
    if (table == nullptr || row < 0) {
        return -1;
    }
    const SilentScope silent(table);
    const int index = std::min(row, table->rowCount());
    table->insertRow(index);
    // The row's data lie at its heading, which is there even without a column.
    table->setVerticalHeaderItem(index, std::make_unique<QTableWidgetItem>().release());
    if (table->columnCount() > 0) {
        setCellText(*table, index, 0, text);
    }
    return index;
}

bool CListCtrl::SetItem(int row, int column, unsigned mask, const wchar_t* text, int /*image*/,
                        unsigned /*state*/, unsigned /*stateMask*/, long /*param*/) {
    QTableWidget* const table = tableOf(*this);
    if (!isCell(table, row, column)) {
        return false;
    }
    if ((mask & kTextMask) != 0) {
        const SilentScope silent(table);
        setCellText(*table, row, column, text);
    }
    return true;
}

bool CListCtrl::SetItemText(int row, int column, const wchar_t* text) {
    return SetItem(row, column, kTextMask, text, 0, 0, 0, 0);
}

CStdStr<wchar_t> CListCtrl::GetItemText(int row, int column) const {
    const QTableWidget* const table = tableOf(*this);
    const QTableWidgetItem* const cell =
        isCell(table, row, column) ? table->item(row, column) : nullptr;
    return cell != nullptr ? orvex::fromQt(cell->text()) : CStdStr<wchar_t>();
}

bool CListCtrl::SetItemData(int row, unsigned long data) {
    QTableWidget* const table = tableOf(*this);
    QTableWidgetItem* const heading = isRow(table, row) ? table->verticalHeaderItem(row) : nullptr;
    if (heading == nullptr) {
        return false;
    }
    const SilentScope silent(table);
    heading->setData(kDataRole, QVariant::fromValue(qulonglong{data}));
    return true;
}

unsigned long CListCtrl::GetItemData(int row) const {
    const QTableWidget* const table = tableOf(*this);
    const QTableWidgetItem* const heading =
        isRow(table, row) ? table->verticalHeaderItem(row) : nullptr;
    return heading != nullptr ? heading->data(kDataRole).toULongLong() : 0;
}

bool CListCtrl::DeleteItem(int row) {
    QTableWidget* const table = tableOf(*this);
    if (!isRow(table, row)) {
        return false;
    }
    const SilentScope silent(table);
    if (table->currentRow() == row) {
        table->selectionModel()->setCurrentIndex({}, QItemSelectionModel::NoUpdate);
    }
    selectRow(*table, row, QItemSelectionModel::Deselect);
    table->removeRow(row);
    return true;
}

bool CListCtrl::DeleteAllItems() {
    QTableWidget* const table = tableOf(*this);
    if (table == nullptr) {
        return false;
    }
    const SilentScope silent(table);
    table->setRowCount(0);
    return true;
}

int CListCtrl::GetItemCount() const {
    const QTableWidget* const table = tableOf(*this);
    return table != nullptr ? table->rowCount() : 0;
}

bool CListCtrl::SetItemState(int row, unsigned state, unsigned mask) {
    QTableWidget* const table = tableOf(*this);
    if (!isCell(table, row, 0)) {
        return false;
    }
    const unsigned wanted = mask & kFocusedOrSelected;
    const SilentScope silent(table);
    if ((state & wanted) != 0) {
        table->selectionModel()->setCurrentIndex(table->model()->index(row, 0),
                                                 QItemSelectionModel::ClearAndSelect |
                                                     QItemSelectionModel::Rows);
    } else if (wanted != 0) {
        selectRow(*table, row, QItemSelectionModel::Deselect);
    }
    return true;
}

int CListCtrl::GetSelectedCount() const {
    int count = 0;
    for (int row = GetNextItem(-1, kNextSelected); row >= 0;
         row = GetNextItem(row, kNextSelected)) {
        ++count;
    }
    return count;
}

int CListCtrl::GetNextItem(int after, unsigned flags) const {
    const QTableWidget* const table = tableOf(*this);
    for (int row = std::max(after, -1) + 1; isRow(table, row); ++row) {
        if ((flags & kNextSelected) == 0 || isSelected(*table, row)) {
            return row;
        }
    }
    return -1;
}

unsigned CListCtrl::GetExtendedStyle() const {
    return m_extendedStyle;
}

unsigned CListCtrl::SetExtendedStyle(unsigned style) {
    QTableWidget* const table = tableOf(*this);
    if (table != nullptr && (style & kFullRowSelect) != 0) {
        table->setSelectionBehavior(QAbstractItemView::SelectRows);
    }
    return std::exchange(m_extendedStyle, style);
}

bool CListCtrl::SortItems(int (*compare)(long, long, long), long parameter) {
    QTableWidget* const table = tableOf(*this);
    if (table == nullptr || compare == nullptr) {
        return false;
    }
    std::vector<long> data;
    std::list<int> sorted;
    for (int row = 0; row < table->rowCount(); ++row) {
        data.push_back(static_cast<long>(GetItemData(row)));
        sorted.push_back(row);
    }
    // A list's sort only relinks, so even a function that contradicts itself harms nothing.
    sorted.sort([&](int a, int b) { return compare(data[a], data[b], parameter) < 0; });
    const SilentScope silent(table);
    reorder(*table, {sorted.begin(), sorted.end()});
    return true;
}

CHeaderCtrl* CListCtrl::GetHeaderCtrl() {
    if (!m_header) {
        m_header = std::make_unique<CHeaderCtrl>();
    }
    if (QTableWidget* const table = tableOf(*this)) {
        m_header->SubclassWindow(table->horizontalHeader());
    }
    return m_header.get();
}
