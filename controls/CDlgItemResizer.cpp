#include "CDlgItemResizer.h"

#include "CWnd.h"

#include <memory>

namespace {

// An object for a number without a widget is no item.
bool isItem(const CWnd* item) {
    return item != nullptr && item->GetSafeHwnd() != nullptr;
}

bool isUnset(const CSize& size) {
    return size.cx == 0 || size.cy == 0;
}

CRect windowRect(const CWnd& window) {
    CRect rect;
    window.GetWindowRect(&rect);
    return rect;
}

template <class Record>
void freeRecords(CPtrArray& records) {
    for (int index = 0; index < records.GetSize(); ++index) {
        const std::unique_ptr<Record> owned(static_cast<Record*>(records.GetAt(index)));
    }
    records.RemoveAll();
}

// One direction of a drag. `low` and `high` are the edges that the user drags to.
struct Edges {
    int& low;
    int& high;
};

void holdAtLeast(Edges wanted, int currentLow, int currentHigh, int size, int minimum) {
    if (size >= minimum) {
        return;
    }
    if (wanted.high < currentHigh) {
        wanted.low = currentLow;
        wanted.high = currentLow + minimum;
    } else if (wanted.low > currentLow) {
        wanted.low = wanted.high - minimum;
    }
}

} // namespace

CDlgItemResizer::~CDlgItemResizer() {
    ClearData();
}

void CDlgItemResizer::Add(CWnd* parent, int number, unsigned flags) {
    if (parent != nullptr) {
        Add(parent->GetDlgItem(number), flags);
    }
}

void CDlgItemResizer::Add(CWnd* item, unsigned flags) {
    const CWnd* const parent = isItem(item) ? item->GetParent() : nullptr;
    if (parent == nullptr || flags == 0) {
        return;
    }
    auto record = std::make_unique<DLGITEMINFO>();
    record->flags = flags;
    record->window = item->GetSafeHwnd();
    record->rectangle = windowRect(*item);
    parent->ScreenToClient(&record->rectangle);
    if (isUnset(m_initialSize)) {
        CRect client;
        parent->GetClientRect(&client);
        m_initialSize = client.Size();
    }
    if (isUnset(m_minimumSize)) {
        m_minimumSize = windowRect(*parent).Size();
    }
    m_items.Add(record.release());
}

void CDlgItemResizer::SetGap(CWnd* first, CWnd* second, int gap, RESIZE_GAP_TYPEGAP type,
                             RESIZE_GAP_BEHAVIOR behaviour) {
    if (!isItem(first) || !isItem(second)) {
        return;
    }
    constexpr int kMeasured = -1;
    if (gap == kMeasured) {
        const CRect from = windowRect(*first);
        const CRect to = windowRect(*second);
        gap = type != RESIZE_GAP_HORIZONTAL ? to.top - from.bottom : to.left - from.right;
    }
    m_gaps.Add(std::make_unique<DLGITEMGAP>(
                   DLGITEMGAP{first->GetSafeHwnd(), second->GetSafeHwnd(), gap, type, behaviour})
                   .release());
}

void CDlgItemResizer::OnSizing(CWnd* parent, tagRECT* rectangle) {
    if (!isItem(parent) || rectangle == nullptr) {
        return;
    }
    const CRect current = windowRect(*parent);
    const CRect wanted = *rectangle;
    holdAtLeast({rectangle->left, rectangle->right}, current.left, current.right, wanted.Width(),
                m_minimumSize.cx);
    holdAtLeast({rectangle->top, rectangle->bottom}, current.top, current.bottom, wanted.Height(),
                m_minimumSize.cy);
}

void CDlgItemResizer::Resize(CWnd* /*parent*/) {}

void CDlgItemResizer::SetInitial(tagSIZE size) {
    m_initialSize = size;
}

void CDlgItemResizer::ClearData() {
    freeRecords<DLGITEMINFO>(m_items);
    freeRecords<DLGITEMGAP>(m_gaps);
}
