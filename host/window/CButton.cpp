#include "CButton.h"

#include "widgetText.h"

void CButton::SetCheck(int check) {
    orvex::setChecked(GetSafeHwnd(), check != 0);
}

int CButton::GetCheck() const {
    return orvex::isChecked(GetSafeHwnd()) ? 1 : 0;
}
