#pragma once

#include "CWnd.h"

#include <map>

class CArchive;

// The headings of a table (QHeaderView).
class CHeaderCtrl : public CWnd {
public:
    // What a derived header wants to keep; nothing here.
    virtual void Serialize(CArchive& archive);

    [[nodiscard]] int GetItemCount() const;
    // The fields that `mask` names; false for a bad index. Format and lParam are kept for the
    // caller and have no effect.
    bool GetItem(int index, _HD_ITEMW* item) const;
    bool SetItem(int index, const _HD_ITEMW* item);

private:
    struct Extra {
        int format = 0;
        long parameter = 0;
    };
    std::map<int, Extra> m_extras;
};
