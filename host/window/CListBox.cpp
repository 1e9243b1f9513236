#include "CListBox.h"

#include "SilentScope.h"
#include "findText.h"
#include "qtText.h"

#include <QItemSelectionModel>
#include <QListWidget>

using orvex::SilentScope;

namespace {

QListWidget* listOf(const CWnd& window) {
    return qobject_cast<QListWidget*>(window.GetSafeHwnd());
}

bool isRow(const QListWidget* list, int row) {
    return list != nullptr && row >= 0 && row < list->count();
}

} // namespace

int CListBox::AddString(const wchar_t* text) {
    QListWidget* const list = listOf(*this);
    if (list == nullptr) {
        return -1;
    }
    const SilentScope silent(list);
    list->addItem(orvex::toQt(text));
    return list->count() - 1;
}

int CListBox::DeleteString(int index) {
    QListWidget* const list = listOf(*this);
    if (!isRow(list, index)) {
        return -1;
    }
    const SilentScope silent(list);
    // Qt would select a neighbour in the place of a current row that goes.
    list->item(index)->setSelected(false);
    if (list->currentRow() == index) {
        list->selectionModel()->setCurrentIndex({}, QItemSelectionModel::NoUpdate);
    }
    delete list->takeItem(index);
    return list->count();
}

void CListBox::ResetContent() {
    if (QListWidget* const list = listOf(*this)) {
        const SilentScope silent(list);
        list->clear();
    }
}

int CListBox::GetCount() const {
    const QListWidget* const list = listOf(*this);
    return list != nullptr ? list->count() : 0;
}

int CListBox::GetCurSel() const {
    const QListWidget* const list = listOf(*this);
    if (list == nullptr) {
        return -1;
    }
    const auto selected = list->selectedItems();
    return selected.isEmpty() ? -1 : list->row(selected.front());
}

int CListBox::SetCurSel(int index) {
    QListWidget* const list = listOf(*this);
    if (list == nullptr) {
        return -1;
    }
    const SilentScope silent(list);
    if (!isRow(list, index)) {
        list->clearSelection();
        return -1;
    }
    list->setCurrentRow(index, QItemSelectionModel::ClearAndSelect);
    return index;
}

int CListBox::GetSelCount() const {
    return GetCurSel() >= 0 ? 1 : 0;
}

int CListBox::GetText(int index, CStdStr<wchar_t>& text) const {
    const QListWidget* const list = listOf(*this);
    text.Empty();
    if (!isRow(list, index)) {
        return -1;
    }
    text = orvex::fromQt(list->item(index)->text());
    return text.GetLength();
}

int CListBox::FindStringExact(int after, const wchar_t* text) const {
    const QListWidget* const list = listOf(*this);
    return orvex::findText(
        GetCount(), after, [list](int row) { return orvex::fromQt(list->item(row)->text()); },
        orvex::WholeText(text));
}

int CListBox::SelectString(int after, const wchar_t* text) {
    return SetCurSel(FindStringExact(after, text));
}
