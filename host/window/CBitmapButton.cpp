#include "CBitmapButton.h"

#include "qtText.h"

#include <QImageReader>

#include <algorithm>
#include <array>

bool CBitmapButton::LoadBitmaps(const wchar_t* up, const wchar_t* down, const wchar_t* focus,
                                const wchar_t* disabled) {
    const std::array names{up, down, focus, disabled};
    return up != nullptr && std::all_of(names.begin(), names.end(), [](const wchar_t* name) {
               return name == nullptr || QImageReader(":/" + orvex::toQt(name)).canRead();
           });
}
