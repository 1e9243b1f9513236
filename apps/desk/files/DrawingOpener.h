#pragma once

#include "DrawingFile.h"

#include <QString>
#include <QWidget>

#include <functional>
#include <memory>

class QKeyEvent;
class QProgressDialog;

namespace orvex {

// Opens drawings under a window that stays alive: a large one shows how far it is and can be
// cancelled. Meanwhile the window takes nothing else but what is typed.
class DrawingOpener {
public:
    // Is given each key that is pressed while a drawing is opened, but Escape, which cancels.
    using KeyTaker = std::function<void(const QKeyEvent& key)>;

    explicit DrawingOpener(QWidget& window) : m_window(window) {}

    void setKeyTaker(KeyTaker taker) { m_takeKey = std::move(taker); }

    Result<std::unique_ptr<DrawingFile>> open(const QString& path);

    [[nodiscard]] bool isOpening() const { return m_isOpening; }
    // The opening ends as cancelled, soon.
    void cancel() { m_isCancelled = true; }

private:
    [[nodiscard]] std::unique_ptr<QProgressDialog> makeProgress(const QString& path) const;

    QWidget& m_window;
    KeyTaker m_takeKey;
    bool m_isOpening = false;
    bool m_isCancelled = false;
};

} // namespace orvex
