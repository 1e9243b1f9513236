#include "RoundLinePainter.h"

#include <algorithm>
#include <cmath>

#include <QLineF>

namespace orvex {

namespace {

constexpr double kKappa = 0.5522847498; // a quarter circle's controls, as far as QPainter has them
constexpr double kFlatness = 0.25;      // pixels

QPointF middleOf(QPointF a, QPointF b) {
    return (a + b) * 0.5;
}

// Beside the line from `from` to `to`.
QLineF sideOf(QPointF from, QPointF to, double away) {
    QLineF side(from, to);
    QLineF normal = side.normalVector();
    normal.setLength(away);
    side.translate(normal.dx(), normal.dy());
    return side;
}

// Curves reach a little farther than the circles they stand for, and points are rounded.
double reachOf(double width) {
    return width / 2 * 1.001 + 1.0 / 64;
}

PixelArea areaOf(QPointF from, QPointF to, double width) {
    const double reach = reachOf(width);
    const auto [left, right] = std::minmax({from.x(), to.x()});
    const auto [top, bottom] = std::minmax({from.y(), to.y()});
    return {left - reach, top - reach, right + reach, bottom + reach};
}

} // namespace

bool RoundLinePainter::Curve::isFlat() const {
    const QPointF whole = end - start;
    const QPointF one = start - control1;
    const QPointF other = start - control2;
    const double length = std::abs(whole.x()) + std::abs(whole.y());
    if (length > 1.0) {
        return std::abs(whole.x() * one.y() - whole.y() * one.x()) +
                   std::abs(whole.x() * other.y() - whole.y() * other.x()) <
               kFlatness * length;
    }
    return std::abs(one.x()) + std::abs(one.y()) + std::abs(other.x()) + std::abs(other.y()) <
           kFlatness;
}

bool RoundLinePainter::canPaint(QPointF from, QPointF to, double width) const {
    return width > 1.0 && from != to && m_raster.canFill(areaOf(from, to, width));
}

void RoundLinePainter::paint(QPointF from, QPointF to, double width, std::uint32_t rgb) {
    m_half = width / 2;
    m_raster.begin(areaOf(from, to, width));
    m_count = 0;
    const QLineF there = sideOf(from, to, m_half);
    const QLineF back = sideOf(to, from, m_half);
    add(there.p1());
    add(there.p2());
    addCap(to, there, back.p1());
    // The cap ends beside where the way back begins, by what rounding makes of it.
    const QLineF wayBack(m_outline[m_count - 1], back.p2());
    add(back.p2());
    addCap(from, wayBack, there.p1());
    m_raster.fill({m_outline.data(), m_count}, rgb);
}

// Half a circle around `focus`, from where `side` ends to `next`.
void RoundLinePainter::addCap(QPointF focus, const QLineF& side, QPointF next) {
    QLineF ahead = side;
    ahead.translate(ahead.dx(), ahead.dy());
    ahead.setLength(m_half * kKappa);
    QLineF across(focus, side.p2());
    across.translate(-across.dy(), across.dx());
    across.setLength(kKappa * m_half);
    addCurve(ahead.p2(), across.p2(), across.p1());
    across = QLineF(across.x1(), across.y1(), across.x1() - across.dx(), across.y1() - across.dy());
    ahead.translate(next.x() - ahead.x1(), next.y() - ahead.y1());
    addCurve(across.p2(), ahead.p2(), ahead.p1());
}

// From the last point on, halved until each part is as good as straight.
void RoundLinePainter::addCurve(QPointF control1, QPointF control2, QPointF end) {
    std::size_t count = 1;
    m_waiting[0] = {m_outline[m_count - 1], control1, control2, end, kDeepest};
    while (count > 0) {
        Curve& curve = m_waiting[count - 1];
        if (curve.halvings == 0 || curve.isFlat()) {
            add(curve.end);
            --count;
            continue;
        }
        const QPointF first = middleOf(curve.start, curve.control1);
        const QPointF second = middleOf(curve.control1, curve.control2);
        const QPointF third = middleOf(curve.control2, curve.end);
        const QPointF before = middleOf(first, second);
        const QPointF after = middleOf(second, third);
        const QPointF middle = middleOf(before, after);
        const unsigned halvings = curve.halvings - 1;
        m_waiting[count++] = {curve.start, first, before, middle, halvings};
        curve = {middle, after, third, curve.end, halvings};
    }
}

} // namespace orvex
