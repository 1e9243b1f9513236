#pragma once

#include "CHeaderCtrl.h"

struct tagDRAWITEMSTRUCT;

// The headings of a CSortListCtrl, one of which can carry an arrow.
class CSortHeaderCtrl : public CHeaderCtrl {
public:
    CSortHeaderCtrl() = default;
    ~CSortHeaderCtrl() override;

    // Nothing of the columns is kept.
    void Serialize(CArchive& archive) override;

    // For lists whose headings sort; the one in use sorts by itself and shows none.
    void SetSortArrow(int column, bool ascending);

    // The table paints its own headings.
    void DrawItem(tagDRAWITEMSTRUCT* item);

private:
    int m_sortColumn = -1;
    bool m_ascending = true;
};
