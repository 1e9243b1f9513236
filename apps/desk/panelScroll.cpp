#include "panelScroll.h"

#include <QEvent>
#include <QScrollArea>
#include <QScrollBar>

namespace orvex {

namespace {

// As wide as the panel, which scrolls up and down only.
class PanelScroll final : public QScrollArea {
public:
    explicit PanelScroll(QWidget* panel) {
        setFrameShape(QFrame::NoFrame);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setWidgetResizable(true);
        setFocusPolicy(Qt::NoFocus);
        setWidget(panel);
    }

    QSize minimumSizeHint() const override {
        return {widget()->minimumSizeHint().width() + verticalScrollBar()->sizeHint().width(),
                QScrollArea::minimumSizeHint().height()};
    }
    QSize sizeHint() const override { return widget()->sizeHint(); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched == widget() && event->type() == QEvent::LayoutRequest) {
            updateGeometry();
        }
        return QScrollArea::eventFilter(watched, event);
    }
};

} // namespace

QWidget* panelScroll(QWidget* panel) {
    return new PanelScroll(panel);
}

} // namespace orvex
