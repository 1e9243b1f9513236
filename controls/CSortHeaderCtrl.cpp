#include "CSortHeaderCtrl.h"

namespace {

constexpr unsigned kFormat = 4;         // mask
constexpr int kPaintedByOwner = 0x8000; // format

} // namespace

CSortHeaderCtrl::~CSortHeaderCtrl() = default;

void CSortHeaderCtrl::Serialize(CArchive& /*archive*/) {}

void CSortHeaderCtrl::SetSortArrow(int column, bool ascending) {
    m_sortColumn = column;
    m_ascending = ascending;
    _HD_ITEMW item;
    item.mask = kFormat;
    GetItem(column, &item);
    item.fmt |= kPaintedByOwner;
    SetItem(column, &item);
    Invalidate();
}

void CSortHeaderCtrl::DrawItem(tagDRAWITEMSTRUCT* /*item*/) {}
