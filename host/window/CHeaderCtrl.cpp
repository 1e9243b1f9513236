#include "CHeaderCtrl.h"

#include "SilentScope.h"
#include "boundedCopy.h"
#include "qtText.h"

#include <QAbstractItemModel>
#include <QHeaderView>

namespace {

constexpr unsigned kWidth = 1;
constexpr unsigned kText = 2;
constexpr unsigned kFormat = 4;
constexpr unsigned kParameter = 8;

QHeaderView* headerOf(const CWnd& window) {
    return qobject_cast<QHeaderView*>(window.GetSafeHwnd());
}

bool isSection(const QHeaderView* header, int index) {
    return header != nullptr && index >= 0 && index < header->count();
}

} // namespace

void CHeaderCtrl::Serialize(CArchive& /*archive*/) {}

int CHeaderCtrl::GetItemCount() const {
    const QHeaderView* const header = headerOf(*this);
    return header != nullptr ? header->count() : 0;
}

bool CHeaderCtrl::GetItem(int index, _HD_ITEMW* item) const {
    const QHeaderView* const header = headerOf(*this);
    if (item == nullptr || !isSection(header, index)) {
        return false;
    }
    const auto found = m_extras.find(index);
    const Extra extra = found != m_extras.end() ? found->second : Extra();
    if ((item->mask & kWidth) != 0) {
        item->cxy = header->sectionSize(index);
    }
    if ((item->mask & kText) != 0 && item->pszText != nullptr && item->cchTextMax > 0) {
        const auto text =
            orvex::fromQt(header->model()->headerData(index, header->orientation()).toString());
        wcscpy_s(item->pszText, item->cchTextMax, text);
    }
    if ((item->mask & kFormat) != 0) {
        item->fmt = extra.format;
    }
    if ((item->mask & kParameter) != 0) {
        item->lParam = extra.parameter;
    }
    return true;
}

bool CHeaderCtrl::SetItem(int index, const _HD_ITEMW* item) {
    QHeaderView* const header = headerOf(*this);
    if (item == nullptr || !isSection(header, index)) {
        return false;
    }
    const orvex::SilentScope silent(header);
    if ((item->mask & kWidth) != 0 && item->cxy >= 0) {
        header->resizeSection(index, item->cxy);
    }
    if ((item->mask & kText) != 0) {
        header->model()->setHeaderData(index, header->orientation(), orvex::toQt(item->pszText));
    }
    if ((item->mask & kFormat) != 0) {
        m_extras[index].format = item->fmt;
    }
    if ((item->mask & kParameter) != 0) {
        m_extras[index].parameter = item->lParam;
    }
    return true;
}
