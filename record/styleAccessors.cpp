#include "styleAccessors.h"

#include "KdCmColor.h"
#include "KdDbDatabase.h"
#include "KdDbLinetypeTable.h"
#include "KdDbMlineStyle.h"
#include "boundedCopy.h"
#include "kddbObjects.h"
#include "systemVariables.h"

#include <algorithm>
#include <cwchar>
#include <vector>

using namespace mledit;

const wchar_t* const str_colorbookNoName = L"$$NoName$$";
const wchar_t* const str_quotequote = L"";

namespace {

constexpr unsigned kGreatestRgb = 0xFFFFFFU;
constexpr unsigned kTrueColorMethod = 0xC2000000U;
constexpr int kByLayerIndex = 256;

// Reads element i, lets `change` alter it and writes it back.
template <class Change>
void changeElement(KdDbMlineStyle& style, int i, Change&& change) {
    double offset = 0.0;
    KdCmColor color;
    KdDbObjectId linetype;
    style.getElementAt(i, offset, color, linetype);
    change(offset, color, linetype);
    style.setElement(i, offset, color, linetype);
}

// Name as the host takes it: what is longer than its names can be is cut.
class LinetypeName {
public:
    explicit LinetypeName(const wchar_t* name) { wcscpy_s(m_text.data(), m_text.size(), name); }
    [[nodiscard]] const wchar_t* text() const { return m_text.data(); }

private:
    static constexpr std::size_t kSize = 2049;
    std::vector<wchar_t> m_text = std::vector<wchar_t>(kSize);
};

const wchar_t* definitionFile() {
    resbuf measurement;
    kdedGetVar(L"MEASUREMENT", &measurement);
    return measurement.resval.rint == 0 ? L"orvex.lin" : L"orvexiso.lin";
}

KdDbObjectId findLinetype(const wchar_t* name, KdDbDatabase* db) {
    KdDbObjectId id;
    KdDbObjectId fallback;
    KdDbLinetypeTable* table = nullptr;
    kddbOpenObject(table, db->linetypeTableId(), kForRead);
    if (table != nullptr) {
        table->getAt(name, id, false);
        table->getAt(L"Continuous", fallback, false);
        table->close();
    }
    if (id.isNull()) {
        kddbLoadLinetypeFromFile(definitionFile(), name, id, db, 1);
    }
    return id.isNull() ? fallback : id;
}

} // namespace

int SetNumElements(KdDbMlineStyle* style, int count) {
    if (style == nullptr) {
        return 0;
    }
    const int wanted = std::max(count, 0);
    while (style->numElements() > wanted) {
        style->removeElementAt(0);
    }
    KdCmColor color;
    color.setColor(KdCmColor::byLayer);
    while (style->numElements() < wanted) {
        int index = 0;
        style->addElement(index, 0.5, color, KdDbObjectId(), true);
    }
    return 1;
}

int SetElemLtype(KdDbMlineStyle* style, wchar_t** names, int /*count*/, KdDbDatabase* db) {
    if (style == nullptr) {
        return 0;
    }
    if (names == nullptr || db == nullptr) {
        return 1;
    }
    for (int i = 0; i < style->numElements(); ++i) {
        if (names[i] == nullptr) {
            continue;
        }
        const KdDbObjectId id = findLinetype(LinetypeName(names[i]).text(), db);
        if (!id.isNull()) {
            changeElement(*style, i,
                          [id](double&, KdCmColor&, KdDbObjectId& linetype) { linetype = id; });
        }
    }
    return 1;
}

int SetElemOffset(KdDbMlineStyle* style, const double* offsets, int count) {
    if (style == nullptr) {
        return 0;
    }
    for (int i = 0; offsets != nullptr && i < style->numElements(); ++i) {
        const double wanted = i < count ? offsets[i] : 0.0;
        changeElement(*style, i,
                      [wanted](double& offset, KdCmColor&, KdDbObjectId&) { offset = wanted; });
    }
    return 1;
}

int GetElemOffset(const KdDbMlineStyle* style, double* offsets, int count) {
    if (style == nullptr) {
        return 0;
    }
    for (int i = 0; offsets != nullptr && i < count; ++i) {
        KdCmColor color;
        KdDbObjectId linetype;
        offsets[i] = 0.0;
        style->getElementAt(i, offsets[i], color, linetype);
    }
    return 1;
}

int SetElemColor(KdDbMlineStyle* style, int* colors, int count) {
    if (style == nullptr) {
        return 0;
    }
    for (int i = 0; colors != nullptr && i < style->numElements(); ++i) {
        int index = kByLayerIndex;
        if (i < count) {
            if (colors[i] < 0 || colors[i] > kByLayerIndex) {
                colors[i] = kByLayerIndex;
            }
            index = colors[i];
        }
        changeElement(*style, i, [index](double&, KdCmColor& color, KdDbObjectId&) {
            color.setColorIndex(static_cast<std::uint16_t>(index));
        });
    }
    return 1;
}

int SetElemRgb(KdDbMlineStyle* style, const unsigned int* rgb, int count) {
    if (style == nullptr) {
        return 0;
    }
    for (int i = 0; rgb != nullptr && i < std::min(count, style->numElements()); ++i) {
        if (rgb[i] > kGreatestRgb) {
            continue;
        }
        changeElement(*style, i, [value = rgb[i]](double&, KdCmColor& color, KdDbObjectId&) {
            color.setColorMethod(KdCmColor::byColor);
            color.setColor(value | kTrueColorMethod);
        });
    }
    return 1;
}

int SetElemName(KdDbMlineStyle* style, wchar_t** names, int count) {
    if (style == nullptr) {
        return 0;
    }
    if (names == nullptr || count < 1 || names[0] == nullptr) {
        return 1;
    }
    for (int i = 0; i < std::min(count, style->numElements()); ++i) {
        const wchar_t* const key = IsColorBookNameValid(names[i]) ? names[i] : str_quotequote;
        changeElement(*style, i, [key](double&, KdCmColor& color, KdDbObjectId&) {
            color.setNamesFromDictionaryKey(key);
        });
    }
    return 1;
}

int SetFlag(KdDbMlineStyle* style, int flags) {
    if (style == nullptr) {
        return 0;
    }
    const auto has = [flags](int bit) { return (flags & bit) != 0; };
    style->setFilled(has(kStyleFilled));
    style->setShowMiters(has(kStyleShowMiters));
    style->setStartSquareCap(has(kStyleStartSquareCap));
    style->setStartInnerArcs(has(kStyleStartInnerArcs));
    style->setStartRoundCap(has(kStyleStartRoundCap));
    style->setEndSquareCap(has(kStyleEndSquareCap));
    style->setEndInnerArcs(has(kStyleEndInnerArcs));
    style->setEndRoundCap(has(kStyleEndRoundCap));
    return 1;
}

bool IsColorBookNameValid(const wchar_t* name) {
    if (name == nullptr || *name == L'\0' || *name == L'$') {
        return false;
    }
    const wchar_t* const mark = std::wcschr(name, L'$');
    return mark == nullptr || (mark[1] != L'\0' && std::wcschr(mark + 1, L'$') == nullptr);
}
