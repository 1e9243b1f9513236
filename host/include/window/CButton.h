#pragma once

#include "CWnd.h"

// A push button or a check box.
class CButton : public CWnd {
public:
    void SetCheck(int check);           // 0 or not
    [[nodiscard]] int GetCheck() const; // 0 or 1
};
