#include "CanvasGrips.h"

#include "canvasMarks.h"

#include <QColor>
#include <QPainter>
#include <QPen>

#include <algorithm>
#include <cmath>
#include <utility>

namespace orvex {

namespace {

constexpr double kReach = 8.0; // pixels, and the least distance between two
constexpr double kHalfSize = 4.0;
const QColor kGripColor(0x5A, 0xA8, 0xF0);
const QColor kUnderCursorColor(0xFF, 0x8A, 0x3C);

QPointF pixelOf(const PlanView& view, PlanPoint place) {
    const PlanPoint pixel = view.toPixels(place);
    return {pixel.x, pixel.y};
}

double distance(const QPointF& a, const QPointF& b) {
    return std::hypot(a.x() - b.x(), a.y() - b.y());
}

} // namespace

void CanvasGrips::setPlaces(std::vector<PlanPoint> places) {
    m_places = std::move(places);
    m_isSifted = false;
}

// Few, so that each is compared with each.
void CanvasGrips::sift(const PlanView& view) {
    if (m_isSifted && stateOf(view) == m_siftedFor) {
        return;
    }
    m_isSifted = true;
    m_siftedFor = stateOf(view);
    std::vector<QPointF> pixels;
    pixels.reserve(m_places.size());
    for (const PlanPoint& place : m_places) {
        pixels.push_back(pixelOf(view, place));
    }
    m_shown.clear();
    for (std::size_t i = 0; i < pixels.size(); ++i) {
        bool isAlone = true;
        for (std::size_t other = 0; other < pixels.size() && isAlone; ++other) {
            isAlone = other == i || distance(pixels[i], pixels[other]) >= kReach;
        }
        if (isAlone) {
            m_shown.push_back(i);
        }
    }
}

std::optional<std::size_t> CanvasGrips::at(const PlanView& view, const QPointF& pixel) {
    sift(view);
    std::optional<std::size_t> nearest;
    double least = kReach;
    for (const std::size_t index : m_shown) {
        const double away = distance(pixelOf(view, m_places[index]), pixel);
        if (away <= least) {
            least = away;
            nearest = index;
        }
    }
    return nearest;
}

void CanvasGrips::paint(QPainter& painter, const PlanView& view,
                        const std::optional<QPointF>& cursor) {
    sift(view);
    const auto hovered = cursor ? at(view, *cursor) : std::nullopt;
    for (const std::size_t index : m_shown) {
        const QPointF middle = pixelOf(view, m_places[index]);
        const bool isHovered = hovered == index;
        const QColor color = onGround(painter, isHovered ? kUnderCursorColor : kGripColor);
        painter.setPen(QPen(color, 1.5));
        painter.setBrush(isHovered ? color : painter.background().color());
        painter.drawRect(
            QRectF(middle - QPointF(kHalfSize, kHalfSize), middle + QPointF(kHalfSize, kHalfSize)));
    }
    painter.setBrush(Qt::NoBrush);
}

} // namespace orvex
