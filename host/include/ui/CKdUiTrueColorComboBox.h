#pragma once

#include "CComboBox.h"
#include "KdCmColor.h"

#include <memory>

namespace orvex {
class ColorList;
}

// A combo box of colours with swatches: by layer, by block, the colours 1 to 7, recent ones, and an
// entry that opens a colour chooser. Fills its widget when it is bound. By layer and by block stand
// under their local names, every other colour under its name for display.
class CKdUiTrueColorComboBox : public CComboBox {
public:
    CKdUiTrueColorComboBox();
    ~CKdUiTrueColorComboBox() override;

    void PreSubclassWindow() override;

    // Without a current colour the argument stays as it is.
    void GetCurrentItemColor(KdCmColor& color) const;
    [[nodiscard]] int FindItemByColor(const KdCmColor& color) const; // -1 for none
    // Puts it first among the recent colours, unless it is in the list already, and gives its
    // index; -1 when it isn't bound. Selects nothing. A limited number is kept.
    int AddColorToMRU(const KdCmColor& color);

private:
    bool choose(int index);

    std::shared_ptr<orvex::ColorList> m_colors;
};
