#include "CEditLimited.h"

void CEditLimited::SetMaxWords(int limit) {
    if (limit > 0) {
        m_maxWords = limit;
    }
}

bool CEditLimited::OnChildNotify(unsigned message, unsigned long wParam, long lParam,
                                 long* result) {
    return CEdit::OnChildNotify(message, wParam, lParam, result) && !m_notifies;
}
