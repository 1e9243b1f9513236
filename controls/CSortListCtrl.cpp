#include "CSortListCtrl.h"

#include "CArchive.h"
#include "CMemFile.h"
#include "CWinApp.h"
#include "compareTexts.h"
#include "wideNumbers.h"

#include <algorithm>
#include <bit>

const wchar_t* const g_pszSection = L"ListCtrls";

namespace {

constexpr unsigned kTextMask = 1;
constexpr int kArchiveBuffer = 4096;

std::wstring copyOf(const wchar_t* text) {
    return text != nullptr ? text : L"";
}

// What a row shows in a column; null when it has no text there.
const wchar_t* textIn(const ItemData* data, int column) {
    const bool isThere =
        data != nullptr && column >= 0 && column < static_cast<int>(data->texts.size());
    return isThere ? data->texts[column].c_str() : nullptr;
}

} // namespace

CSortListCtrl::~CSortListCtrl() = default;

void CSortListCtrl::PreSubclassWindow() {
    CListCtrl::PreSubclassWindow();
}

bool CSortListCtrl::SetHeadings(const CStdStr<wchar_t>& text) {
    int from = 0;
    for (int comma = text.Find(L',', from); comma >= 0; comma = text.Find(L',', from)) {
        const int semicolon = text.Find(L';', comma);
        const int end = semicolon >= 0 ? semicolon : text.GetLength();
        const CStdStr<wchar_t> name = text.Mid(from, comma - from);
        const int width = _wtoi(text.Mid(comma + 1, end - comma - 1));
        from = end + 1;
        if (InsertColumn(m_columnCount++, name, 0, width, -1) < 0) {
            return false;
        }
    }
    if (CHeaderCtrl* const header = GetHeaderCtrl()) {
        m_header.SubclassWindow(header->GetSafeHwnd());
    }
    return true;
}

bool CSortListCtrl::SetHeadings(unsigned number) {
    CStdStr<wchar_t> text;
    text.LoadStringW(number);
    return SetHeadings(text);
}

int CSortListCtrl::addRow(std::span<const wchar_t* const> texts) {
    const int row = InsertItem(GetItemCount(), texts.front());
    if (row < 0) {
        return row;
    }
    auto data = std::make_unique<ItemData>();
    // One text at least: a list that has no column yet still knows how its rows begin.
    data->texts.resize(std::max(m_columnCount, 1));
    data->texts.front() = copyOf(texts.front());
    const int count = std::min(m_columnCount, static_cast<int>(texts.size()));
    for (int column = 1; column < count; ++column) {
        CListCtrl::SetItem(row, column, kTextMask, texts[column], 0, 0, 0, 0);
        data->texts[column] = copyOf(texts[column]);
    }
    CListCtrl::SetItemData(row, reinterpret_cast<unsigned long>(data.get()));
    m_rows.push_back(std::move(data));
    return row;
}

bool CSortListCtrl::DeleteItem(int row) {
    FreeItemMemory(row);
    return CListCtrl::DeleteItem(row);
}

bool CSortListCtrl::DeleteAllItems() {
    freeAllItemMemory();
    return CListCtrl::DeleteAllItems();
}

void CSortListCtrl::Sort(int column, bool ascending) {
    m_sortColumn = column;
    m_ascending = ascending;
    SortItems(CompareFunction, reinterpret_cast<long>(this));
}

bool CSortListCtrl::SetItemText(int row, int column, const wchar_t* text) {
    if (!CListCtrl::SetItemText(row, column, text)) {
        return false;
    }
    ItemData* const data = dataOf(row);
    if (textIn(data, column) != nullptr) {
        data->texts[column] = copyOf(text);
    }
    return true;
}

bool CSortListCtrl::SetItemData(int row, unsigned long value) {
    ItemData* const data = dataOf(row);
    if (data == nullptr) {
        return false;
    }
    data->userValue = value;
    return true;
}

unsigned long CSortListCtrl::GetItemData(int row) const {
    const ItemData* const data = dataOf(row);
    return data != nullptr ? data->userValue : 0;
}

ItemData* CSortListCtrl::dataOf(int row) const {
    return std::bit_cast<ItemData*>(CListCtrl::GetItemData(row));
}

void CSortListCtrl::FreeItemMemory(int row) {
    const ItemData* const data = dataOf(row);
    CListCtrl::SetItemData(row, 0);
    std::erase_if(m_rows, [data](const auto& owned) { return owned.get() == data; });
}

void CSortListCtrl::freeAllItemMemory() {
    for (int row = 0; row < GetItemCount(); ++row) {
        FreeItemMemory(row);
    }
}

CStdStr<wchar_t> CSortListCtrl::profileKey() const {
    CStdStr<wchar_t> key;
    key.Format(L"%d", GetDlgCtrlID());
    return key;
}

void CSortListCtrl::SaveColumnInfo() {
    CMemFile file;
    CArchive archive(&file, CArchive::store, kArchiveBuffer);
    m_header.Serialize(archive);
    archive.Close();
    const auto length = static_cast<unsigned>(file.GetLength());
    const std::unique_ptr<unsigned char[]> data(file.Detach());
    AfxGetApp()->WriteProfileBinary(g_pszSection, profileKey(), data.get(), length);
}

void CSortListCtrl::LoadColumnInfo() {
    unsigned char* stored = nullptr;
    unsigned size = 0;
    const bool found = AfxGetApp()->GetProfileBinary(g_pszSection, profileKey(), &stored, &size);
    const std::unique_ptr<unsigned char[]> data(stored);
    if (!found || size == 0) {
        return;
    }
    CMemFile file(data.get(), size);
    CArchive archive(&file, CArchive::load, kArchiveBuffer);
    m_header.Serialize(archive);
    archive.Close();
    m_header.Invalidate();
}

void CSortListCtrl::OnColumnClick(tagNMHDR* header, long* result) {
    if (header != nullptr) {
        const int column = reinterpret_cast<const tagNMHEADERW*>(header)->iItem;
        Sort(column, column != m_sortColumn || !m_ascending);
    }
    if (result != nullptr) {
        *result = 0;
    }
}

void CSortListCtrl::OnDestroy() {
    freeAllItemMemory();
}

int CSortListCtrl::CompareFunction(long a, long b, long list) {
    const auto* const sorted = std::bit_cast<const CSortListCtrl*>(list);
    const wchar_t* textA = textIn(std::bit_cast<const ItemData*>(a), sorted->m_sortColumn);
    const wchar_t* textB = textIn(std::bit_cast<const ItemData*>(b), sorted->m_sortColumn);
    if (textA == nullptr || textB == nullptr) {
        textA = textB = nullptr;
    }
    return sorted->m_ascending ? NumberCompare(textA, textB) : NumberCompare(textB, textA);
}
