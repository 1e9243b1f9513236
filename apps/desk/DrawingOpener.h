#pragma once

#include "DrawingFile.h"

#include <QString>
#include <QWidget>

namespace orvex {

// Opens drawings under a window that stays alive: a large one shows how far it is and can be
// cancelled. Meanwhile the window takes nothing else.
class DrawingOpener {
public:
    explicit DrawingOpener(QWidget& window) : m_window(window) {}

    Result<std::unique_ptr<DrawingFile>> open(const QString& path);

    [[nodiscard]] bool isOpening() const { return m_isOpening; }
    // The opening ends as cancelled, soon.
    void cancel() { m_isCancelled = true; }

private:
    QWidget& m_window;
    bool m_isOpening = false;
    bool m_isCancelled = false;
};

} // namespace orvex
