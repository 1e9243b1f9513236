#pragma once

#include <QObject>

class QWidget;

namespace orvex {

class DrawingOpener;

// A file that is dragged onto the window.
class FileDrop final : public QObject {
    Q_OBJECT

public:
    // Both live as long as the window does. While a drawing is opened nothing can be dropped.
    FileDrop(QWidget& window, const DrawingOpener& opener);

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    void dropped(const QString& path); // from the event loop

private:
    const DrawingOpener& m_opener;
};

} // namespace orvex
