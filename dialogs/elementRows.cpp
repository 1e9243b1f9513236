#include "elementRows.h"

#include "CStdStr.h"
#include "KdDbLinetypeTable.h"
#include "KdDbMlineStyle.h"
#include "colorTexts.h"
#include "fieldNumbers.h"
#include "kddbObjects.h"
#include "styleAccessors.h"
#include "unitText.h"
#include "wideNumbers.h"

#include <array>

namespace mledit {

namespace {

constexpr int kByLayer = 0;
constexpr int kByBlock = 1;
constexpr int kContinuous = 3;

struct ReservedName {
    int number;
    const wchar_t* name; // as drawings have it
};
constexpr ReservedName kReservedNames[] = {
    {kByLayer, L"ByLayer"},
    {kByBlock, L"ByBlock"},
    {kContinuous, L"Continuous"},
};

std::wstring local(int number) {
    return kddbGetReservedString(number, true);
}

bool isSame(const std::wstring& a, const std::wstring& b) {
    return StrCmpI(a.c_str(), b.c_str()) == 0;
}

// The local form of a reserved name, one of the first `count`; any other name stays.
std::wstring localized(const std::wstring& name, int count) {
    for (const ReservedName& reserved : kReservedNames) {
        if (count-- > 0 && isSame(name, reserved.name)) {
            return local(reserved.number);
        }
    }
    return name;
}

std::wstring linetypeName(KdDbObjectId id) {
    KdDbLinetypeTableRecord* record = nullptr;
    kddbOpenObject(record, id, kForRead);
    if (record == nullptr) {
        return {};
    }
    std::wstring name = record->name();
    record->close();
    return name;
}

std::wstring offsetText(double offset) {
    constexpr int kDecimal = 2;
    std::array<wchar_t, 512> text{};
    kddbRToS(offset, kDecimal, 1, text.data());
    return text.data();
}

// The names as the record's functions take them: one pointer each, null for an empty one.
std::vector<wchar_t*> pointersTo(std::vector<std::wstring>& names) {
    std::vector<wchar_t*> pointers;
    pointers.reserve(names.size());
    for (std::wstring& name : names) {
        pointers.push_back(name.empty() ? nullptr : name.data());
    }
    return pointers;
}

std::wstring storedLinetype(const std::wstring& shown) {
    if (isSame(shown, local(kByLayer))) {
        return L"ByLayer";
    }
    if (isSame(shown, local(kByBlock))) {
        return L"ByBlock";
    }
    return isSame(shown, local(kContinuous)) ? shown : L"Continuous";
}

} // namespace

std::wstring localByLayer() {
    return local(kByLayer);
}

std::wstring shownColor(const KdCmColor& color) {
    return localized(color.colorNameForDisplay(), 2);
}

std::vector<ElementRow> elementRows(const KdDbMlineStyle& style) {
    const ZeroRule dropZeros(8);
    std::vector<ElementRow> rows;
    for (int i = 0; i < style.numElements(); ++i) {
        double offset = 0.0;
        KdDbObjectId linetype;
        ElementRow row;
        style.getElementAt(i, offset, row.color, linetype);
        row.offset = offsetText(offset);
        row.linetype = localized(linetypeName(linetype), 3);
        rows.push_back(std::move(row));
    }
    return rows;
}

void setElementRows(KdDbMlineStyle& style, const std::vector<ElementRow>& rows,
                    KdDbDatabase* database) {
    std::vector<double> offsets;
    std::vector<int> indices;
    std::vector<unsigned> values;
    std::vector<std::wstring> linetypes;
    std::vector<std::wstring> keys;
    for (const ElementRow& row : rows) {
        offsets.push_back(_wtof(row.offset.c_str()));
        linetypes.push_back(storedLinetype(row.linetype));
        indices.push_back(row.color.colorIndex());
        values.push_back(row.color.color());
        keys.push_back(bookKey(row.color));
    }
    const int count = static_cast<int>(rows.size());
    SetNumElements(&style, count);
    SetElemLtype(&style, pointersTo(linetypes).data(), count, database);
    SetElemOffset(&style, offsets.data(), count);
    SetElemColor(&style, indices.data(), count);
    SetElemRgb(&style, values.data(), count);
    SetElemName(&style, pointersTo(keys).data(), count);
}

} // namespace mledit
