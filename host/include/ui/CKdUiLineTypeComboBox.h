#pragma once

#include "CComboBox.h"

// A combo box of line types with drawn samples: the local ByLayer, ByBlock and Continuous, then
// every other line type of the open drawing. Fills its widget when it is bound.
class CKdUiLineTypeComboBox : public CComboBox {
public:
    void PreSubclassWindow() override;
};
