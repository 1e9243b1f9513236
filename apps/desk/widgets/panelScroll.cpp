#include "panelScroll.h"

#include <QEvent>
#include <QScrollArea>
#include <QScrollBar>

#include <algorithm>

namespace orvex {

namespace {

constexpr int kLeastWidth = 160; // pixels

// As wide as the panel where the window has room for it, so that it scrolls up and down only.
class PanelScroll final : public QScrollArea {
public:
    explicit PanelScroll(QWidget* panel) {
        setFrameShape(QFrame::NoFrame);
        setWidgetResizable(true);
        setFocusPolicy(Qt::NoFocus);
        setWidget(panel);
    }

    QSize minimumSizeHint() const override {
        return {std::min(wholeWidth(), kLeastWidth), QScrollArea::minimumSizeHint().height()};
    }
    QSize sizeHint() const override { return widget()->sizeHint().expandedTo({wholeWidth(), 0}); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched == widget() && event->type() == QEvent::LayoutRequest) {
            updateGeometry();
        }
        return QScrollArea::eventFilter(watched, event);
    }

private:
    [[nodiscard]] int wholeWidth() const {
        return widget()->minimumSizeHint().width() + verticalScrollBar()->sizeHint().width();
    }
};

} // namespace

QWidget* panelScroll(QWidget* panel) {
    return new PanelScroll(panel);
}

} // namespace orvex
