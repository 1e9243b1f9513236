#include "ShortenedLabel.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QTextDocument>
#include <QToolTip>

namespace orvex {

ShortenedLabel::ShortenedLabel(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
}

QSize ShortenedLabel::minimumSizeHint() const {
    return {0, QLabel::minimumSizeHint().height()};
}

QString ShortenedLabel::shownText() const {
    return fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
}

void ShortenedLabel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    style()->drawItemText(&painter, contentsRect(), Qt::AlignLeft | Qt::AlignVCenter, palette(),
                          isEnabled(), shownText(), foregroundRole());
}

bool ShortenedLabel::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) {
        return QLabel::event(event);
    }
    const bool isWhole = shownText() == text();
    QToolTip::showText(static_cast<const QHelpEvent*>(event)->globalPos(),
                       isWhole ? QString() : Qt::convertFromPlainText(text()), this);
    return true;
}

} // namespace orvex
