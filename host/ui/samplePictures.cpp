#include "samplePictures.h"

#include <QPainter>
#include <QPixmap>

#include <algorithm>
#include <cmath>

namespace orvex {

namespace {

// The pen-down parts of a row of pixels.
struct Stroke {
    double from;
    double to;
};

std::vector<Stroke> strokes(const std::vector<double>& dashes, double width) {
    double length = 0;
    for (const double dash : dashes) {
        length += std::abs(dash);
    }
    if (!std::isfinite(length) || length <= 0) {
        return {{0, width}};
    }
    constexpr double kDashRoom = 8; // pixels for each part of the pattern, if there is room
    constexpr double kDot = 1.5;
    const double period = std::min(width / 2, kDashRoom * static_cast<double>(dashes.size()));
    std::vector<Stroke> found;
    const int repeats = static_cast<int>(std::ceil(width / period));
    for (int i = 0; i < repeats; ++i) {
        double at = i * period;
        for (const double dash : dashes) {
            const double size = std::abs(dash) / length * period;
            if (dash >= 0) {
                found.push_back({at, at + std::max(size, kDot)});
            }
            at += size;
        }
    }
    return found;
}

} // namespace

QIcon colorSwatch(std::uint32_t rgb, const QColor& frame) {
    QPixmap picture(kSwatchSize);
    picture.fill(QColor(rgb));
    QPainter painter(&picture);
    painter.setPen(frame);
    painter.drawRect(0, 0, kSwatchSize.width() - 1, kSwatchSize.height() - 1);
    painter.end();
    return QIcon(picture);
}

QIcon lineSample(const std::vector<double>& dashes, const QColor& ink) {
    QPixmap picture(kLineSampleSize);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    constexpr double kThickness = 2; // pixels
    const double top = (kLineSampleSize.height() - kThickness) / 2;
    for (const Stroke& stroke : strokes(dashes, kLineSampleSize.width())) {
        painter.fillRect(QRectF(stroke.from, top, stroke.to - stroke.from, kThickness), ink);
    }
    painter.end();
    return QIcon(picture);
}

} // namespace orvex
