#include "CRect.h"
#include "CWnd.h"

#include <QAbstractScrollArea>
#include <QGuiApplication>
#include <QScreen>

#include <algorithm>
#include <cstdint>

namespace {

// What has to be on a screen of a window's upper edge, so that its frame can be grabbed; pixels.
constexpr std::int64_t kGrabWidth = 40;
constexpr std::int64_t kGrabHeight = 20;

constexpr std::int64_t kMost = QWIDGETSIZE_MAX;

// A stored rectangle may hold anything, so its sizes are taken in 64 bits.
std::int64_t width(const tagRECT& rect) {
    return std::int64_t{rect.right} - rect.left;
}
std::int64_t height(const tagRECT& rect) {
    return std::int64_t{rect.bottom} - rect.top;
}

bool canBeGrabbed(const tagRECT& rect, const QRect& screen) {
    const std::int64_t left = std::max(rect.left, screen.left());
    const std::int64_t right = std::min(std::int64_t{rect.right}, std::int64_t{screen.right()} + 1);
    const std::int64_t bottom = std::int64_t{screen.bottom()} + 1;
    return right - left >= std::min(kGrabWidth, width(rect)) && rect.top >= screen.top() &&
           bottom - rect.top >= std::min(kGrabHeight, height(rect));
}

bool isUsable(const tagRECT& rect) {
    const bool hasSize =
        width(rect) > 0 && height(rect) > 0 && width(rect) <= kMost && height(rect) <= kMost;
    const auto screens = QGuiApplication::screens();
    return hasSize && std::any_of(screens.begin(), screens.end(), [&rect](const QScreen* screen) {
               return canBeGrabbed(rect, screen->availableGeometry());
           });
}

QRect limited(const tagRECT& rect) {
    const auto place = [](int value) {
        return static_cast<int>(std::clamp(std::int64_t{value}, -kMost, kMost));
    };
    const auto size = [](std::int64_t value) {
        return static_cast<int>(std::clamp(value, std::int64_t{0}, kMost));
    };
    return {place(rect.left), place(rect.top), size(width(rect)), size(height(rect))};
}

int shifted(int value, int by) {
    return static_cast<int>(
        std::clamp(std::int64_t{value} - by, std::int64_t{INT32_MIN}, std::int64_t{INT32_MAX}));
}

tagRECT toRect(QPoint place, QSize size) {
    return {place.x(), place.y(), place.x() + size.width(), place.y() + size.height()};
}

} // namespace

void CWnd::GetWindowRect(tagRECT* rect) const {
    if (rect == nullptr) {
        return;
    }
    const QWidget* const widget = GetSafeHwnd();
    // Of a window the area inside its frame, here and in MoveWindow: the frame isn't known before
    // a window is shown, and a position would drift by it each time it is stored and restored.
    *rect =
        widget != nullptr ? toRect(widget->mapToGlobal(QPoint(0, 0)), widget->size()) : tagRECT();
}

void CWnd::MoveWindow(const tagRECT& rect, bool repaint) {
    QWidget* const widget = GetSafeHwnd();
    if (widget == nullptr) {
        return;
    }
    if (!widget->isWindow() || isUsable(rect)) {
        widget->setGeometry(limited(rect));
    }
    if (repaint) {
        Invalidate();
    }
}

void CWnd::GetClientRect(tagRECT* rect) const {
    if (rect == nullptr) {
        return;
    }
    const QWidget* widget = GetSafeHwnd();
    if (const auto* area = qobject_cast<const QAbstractScrollArea*>(widget)) {
        widget = area->viewport();
    }
    *rect = widget != nullptr ? toRect(QPoint(0, 0), widget->size()) : tagRECT();
}

void CWnd::ScreenToClient(tagRECT* rect) const {
    const QWidget* const widget = GetSafeHwnd();
    if (rect == nullptr || widget == nullptr) {
        return;
    }
    const QPoint origin = widget->mapToGlobal(QPoint(0, 0));
    *rect = {shifted(rect->left, origin.x()), shifted(rect->top, origin.y()),
             shifted(rect->right, origin.x()), shifted(rect->bottom, origin.y())};
}
