#pragma once

#include "CButton.h"

// A button with pictures. The picture that is seen is the view's.
class CBitmapButton : public CButton {
public:
    // True when all that are named exist as pictures under ":/"; the first has to be named, the
    // others may be null. The widget doesn't change either way.
    bool LoadBitmaps(const wchar_t* up, const wchar_t* down = nullptr,
                     const wchar_t* focus = nullptr, const wchar_t* disabled = nullptr);
};
