#include "deskIcons.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

#include <array>
#include <sstream>
#include <string>

namespace orvex {

namespace {

constexpr int kGrid = 24; // the pictures are drawn on a square of so many units

// Strokes as "M x y L x y ..."; C x y r is a circle.
struct IconRow {
    const char* name;
    const char* strokes;
};

constexpr std::array kIcons = std::to_array<IconRow>({
    {"new", "M 6 3 L 15 3 L 19 7 L 19 21 L 6 21 L 6 3 M 15 3 L 15 7 L 19 7"},
    {"open", "M 3 19 L 3 5 L 9 5 L 11 8 L 19 8 L 19 11 M 3 19 L 7 11 L 22 11 L 18 19 L 3 19"},
    {"save", "M 4 4 L 17 4 L 20 7 L 20 20 L 4 20 L 4 4 M 8 4 L 8 9 L 15 9 L 15 4 M 7 20 L 7 13 "
             "L 17 13 L 17 20"},
    {"undo", "M 8 4 L 3 9 L 8 14 M 3 9 L 15 9 L 19 11 L 21 14 L 20 18 L 16 20 L 10 20"},
    {"zoomExtents", "M 3 8 L 3 3 L 8 3 M 16 3 L 21 3 L 21 8 M 21 16 L 21 21 L 16 21 M 8 21 L 3 21 "
                    "L 3 16 M 8 8 L 16 8 L 16 16 L 8 16 L 8 8"},
    {"zoomWindow", "C 10 10 7 M 15 15 L 21 21 M 7 8 L 13 8 L 13 12 L 7 12 L 7 8"},
    {"zoomPrevious", "C 10 10 7 M 15 15 L 21 21 M 9 7 L 6 10 L 9 13 M 6 10 L 14 10"},
    {"zoomIn", "C 10 10 7 M 15 15 L 21 21 M 10 7 L 10 13 M 7 10 L 13 10"},
    {"zoomOut", "C 10 10 7 M 15 15 L 21 21 M 7 10 L 13 10"},
    {"mline", "M 2 17 L 9 8 L 15 14 L 22 5 M 2 21 L 9 12 L 15 18 L 22 9"},
    {"mledit", "M 9 2 L 9 9 L 2 9 M 15 2 L 15 9 L 22 9 M 9 22 L 9 15 L 2 15 M 15 22 L 15 15 L 22 "
               "15"},
});

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

QIcon deskIcon(const QString& name, const QPalette& palette) {
    QIcon icon;
    for (const IconRow& row : kIcons) {
        if (name == QLatin1String(row.name)) {
            for (const int size : {kGrid, 2 * kGrid}) {
                icon.addPixmap(drawn(pathOf(row.strokes), size,
                                     palette.color(QPalette::Active, QPalette::WindowText)));
                icon.addPixmap(drawn(pathOf(row.strokes), size,
                                     palette.color(QPalette::Disabled, QPalette::WindowText)),
                               QIcon::Disabled);
            }
        }
    }
    return icon;
}

} // namespace orvex
