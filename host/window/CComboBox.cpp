#include "CComboBox.h"

#include "SilentScope.h"
#include "findText.h"
#include "qtText.h"

#include <QComboBox>

using orvex::SilentScope;

namespace {

QComboBox* comboOf(const CWnd& window) {
    return qobject_cast<QComboBox*>(window.GetSafeHwnd());
}

bool isEntry(const QComboBox* combo, int index) {
    return combo != nullptr && index >= 0 && index < combo->count();
}

auto textsOf(const QComboBox* combo) {
    return [combo](int index) { return orvex::fromQt(combo->itemText(index)); };
}

} // namespace

int CComboBox::AddString(const wchar_t* text) {
    QComboBox* const combo = comboOf(*this);
    if (combo == nullptr) {
        return -1;
    }
    const SilentScope silent(combo);
    const int before = combo->currentIndex();
    combo->addItem(orvex::toQt(text));
    // Qt selects the first entry of all by itself.
    combo->setCurrentIndex(before);
    return combo->count() - 1;
}

int CComboBox::DeleteString(int index) {
    QComboBox* const combo = comboOf(*this);
    if (!isEntry(combo, index)) {
        return -1;
    }
    const SilentScope silent(combo);
    if (combo->currentIndex() == index) {
        combo->setCurrentIndex(-1);
    }
    combo->removeItem(index);
    return combo->count();
}

void CComboBox::ResetContent() {
    if (QComboBox* const combo = comboOf(*this)) {
        const SilentScope silent(combo);
        combo->clear();
    }
}

int CComboBox::GetCount() const {
    const QComboBox* const combo = comboOf(*this);
    return combo != nullptr ? combo->count() : 0;
}

int CComboBox::GetCurSel() const {
    const QComboBox* const combo = comboOf(*this);
    return combo != nullptr ? combo->currentIndex() : -1;
}

int CComboBox::SetCurSel(int index) {
    QComboBox* const combo = comboOf(*this);
    if (combo == nullptr) {
        return -1;
    }
    const SilentScope silent(combo);
    combo->setCurrentIndex(isEntry(combo, index) ? index : -1);
    return combo->currentIndex();
}

int CComboBox::GetLBText(int index, CStdStr<wchar_t>& text) const {
    const QComboBox* const combo = comboOf(*this);
    text.Empty();
    if (!isEntry(combo, index)) {
        return -1;
    }
    text = orvex::fromQt(combo->itemText(index));
    return text.GetLength();
}

int CComboBox::FindStringExact(int after, const wchar_t* text) const {
    return orvex::findText(GetCount(), after, textsOf(comboOf(*this)), orvex::WholeText(text));
}

int CComboBox::FindString(int after, const wchar_t* text) const {
    const int whole = FindStringExact(after, text);
    return whole >= 0 ? whole
                      : orvex::findText(GetCount(), after, textsOf(comboOf(*this)),
                                        orvex::Beginning(text));
}

int CComboBox::SelectString(int after, const wchar_t* text) {
    const int index = FindString(after, text);
    return index >= 0 ? SetCurSel(index) : -1;
}
