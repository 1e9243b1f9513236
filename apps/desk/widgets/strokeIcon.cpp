#include "strokeIcon.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

#include <sstream>
#include <string>

namespace orvex {

namespace {

constexpr int kGrid = 24; // the pictures are drawn on a square of so many units

QPainterPath pathOf(const char* strokes) {
    QPainterPath path;
    std::istringstream text(strokes);
    for (std::string kind; text >> kind;) {
        double x = 0.0;
        double y = 0.0;
        text >> x >> y;
        if (kind == "M") {
            path.moveTo(x, y);
        } else if (kind == "L") {
            path.lineTo(x, y);
        } else {
            double radius = 0.0;
            text >> radius;
            path.addEllipse(QPointF(x, y), radius, radius);
        }
    }
    return path;
}

QPixmap drawn(const QPainterPath& path, int size, const QColor& color) {
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size / double{kGrid}, size / double{kGrid});
    painter.setPen(QPen(color, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(path);
    return pixmap;
}

} // namespace

QIcon strokeIcon(const char* strokes, const QPalette& palette) {
    QIcon icon;
    const QPainterPath path = pathOf(strokes);
    for (const int size : {kGrid, 2 * kGrid}) {
        icon.addPixmap(drawn(path, size, palette.color(QPalette::Active, QPalette::WindowText)));
        icon.addPixmap(drawn(path, size, palette.color(QPalette::Disabled, QPalette::WindowText)),
                       QIcon::Disabled);
    }
    return icon;
}

} // namespace orvex
