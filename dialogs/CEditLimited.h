#pragma once

#include "CEdit.h"

// The name field of the new and rename dialogs. It knows a limit and doesn't enforce it: names of
// styles may be longer than it says.
class CEditLimited : public CEdit {
public:
    // 0 and less leave the limit.
    void SetMaxWords(int limit) { m_maxWords = limit > 0 ? limit : m_maxWords; }

    // Takes no notification while the field notifies, which it always does.
    bool OnChildNotify(unsigned message, unsigned long wParam, long lParam, long* result) override {
        return CEdit::OnChildNotify(message, wParam, lParam, result) && !m_notifies;
    }

private:
    int m_maxWords = 8;
    bool m_notifies = true;
};
