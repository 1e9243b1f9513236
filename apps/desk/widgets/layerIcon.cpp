#include "layerIcon.h"

#include "layerChoices.h"

#include <QPainter>
#include <QPixmap>

namespace orvex {

QIcon layerIcon(const LayerChoice& layer, const QPalette& palette, double devicePixelRatio) {
    QPixmap pixmap((QSizeF(kLayerIcon) * devicePixelRatio).toSize());
    pixmap.setDevicePixelRatio(devicePixelRatio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor& ink =
        palette.color(layer.isHidden ? QPalette::Disabled : QPalette::Active, QPalette::WindowText);
    painter.setPen(QPen(ink, 1.0));
    painter.setBrush(QColor::fromRgb(layer.rgb));
    painter.drawRect(QRectF(2.5, 2.5, 11.0, 11.0));
    if (layer.isLocked) {
        painter.setBrush(ink);
        painter.drawRect(QRectF(19.5, 7.5, 9.0, 6.0));
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(ink, 1.6));
        painter.drawArc(QRectF(21.0, 2.5, 6.0, 9.0), 0, 180 * 16);
    }
    return QIcon(pixmap);
}

} // namespace orvex
