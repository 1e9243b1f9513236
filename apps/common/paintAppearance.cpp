#include "paintAppearance.h"

#include "LineQueue.h"
#include "clipChain.h"
#include "dashCycle.h"
#include "geometry.h"
#include "labelBox.h"
#include "readableColor.h"

#include <algorithm>
#include <cmath>

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <QPolygonF>

namespace orvex {

namespace {

constexpr double kLeastPeriod = 3.0;     // pixels; finer dashes look grey
constexpr double kLeastTextHeight = 1.0; // pixels; smaller text is a smudge
constexpr double kFontPixels = 100.0;    // labels are drawn at this size and scaled

QPolygonF polygonOf(const std::vector<PlanPoint>& points) {
    QPolygonF polygon;
    polygon.reserve(static_cast<int>(points.size()));
    for (const PlanPoint& point : points) {
        polygon << QPointF(point.x, point.y);
    }
    return polygon;
}

std::vector<PlanPoint> toPixels(const std::vector<PlanPoint>& points, const PlanView& view) {
    std::vector<PlanPoint> pixels(points.size());
    std::transform(points.begin(), points.end(), pixels.begin(),
                   [&](const PlanPoint& point) { return view.toPixels(point); });
    return pixels;
}

class Painting {
public:
    Painting(QPainter& painter, const PlanView& view, const PaintSettings& settings,
             LineQueue* lines)
        : m_painter(painter), m_view(view), m_settings(settings), m_lines(lines) {
        // Somewhat more than what is seen, so that no line's end shows at the edge.
        const double margin = 16.0 + 2.0 * settings.lineWidth;
        m_frame = {{-margin, -margin}, {view.width() + margin, view.height() + margin}};
    }

    void fill(const Fill& fill) {
        settleLines();
        QPainterPath path;
        // Bounded to what painters can count with; far outside nobody sees the difference.
        constexpr double kFar = 1e6;
        std::vector<PlanPoint> pixels = toPixels(fill.outline, m_view);
        for (PlanPoint& point : pixels) {
            point = {std::clamp(point.x, -kFar, kFar), std::clamp(point.y, -kFar, kFar)};
        }
        path.addPolygon(polygonOf(pixels));
        path.closeSubpath();
        path.setFillRule(Qt::WindingFill);
        m_painter.fillPath(path, color(fill.rgb));
    }

    void stroke(const Stroke& stroke, const Appearance& appearance) {
        const double width = paintedWidth(stroke, m_settings);
        if (isTaken(stroke, width)) {
            return;
        }
        settleLines();
        QPen pen(color(stroke.rgb), width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
        DashCycle cycle;
        if (stroke.dashes > 0 && stroke.dashes <= appearance.dashPatterns.size()) {
            cycle = dashCycle(appearance.dashPatterns[stroke.dashes - 1],
                              1.0 / m_view.unitsPerPixel(), width, kLeastPeriod);
        }
        if (!cycle.lengths.empty()) {
            pen.setCapStyle(Qt::FlatCap);
            pen.setDashPattern(inPenWidths(cycle, width));
        }
        for (const ChainPart& run : clipChain(toPixels(stroke.points, m_view), m_frame)) {
            if (!cycle.lengths.empty()) {
                const double offset = std::fmod(run.before + cycle.offset, cycle.period());
                pen.setDashOffset(offset / width);
            }
            m_painter.setPen(pen);
            m_painter.drawPolyline(polygonOf(run.points));
        }
    }

    void label(const Label& label) {
        const double height = label.height / m_view.unitsPerPixel();
        const PlanPoint anchor = m_view.toPixels(label.anchor);
        const PlanBox box = labelBox(label);
        const PlanPoint low = m_view.toPixels(box.low);
        const PlanPoint high = m_view.toPixels(box.high);
        const bool seen = low.x <= m_frame.high.x && high.x >= m_frame.low.x &&
                          low.y >= m_frame.low.y && high.y <= m_frame.high.y;
        const bool readable =
            height >= kLeastTextHeight && height <= 10.0 * (m_view.width() + m_view.height());
        if (!seen || !readable) {
            return;
        }
        QFont font(QStringLiteral("DejaVu Sans"));
        font.setPixelSize(static_cast<int>(kFontPixels));
        const QString text = QString::fromStdWString(label.text);
        const double width = QFontMetricsF(font).horizontalAdvance(text);
        const double scale = height / kCapitalOfFontSize / kFontPixels;
        settleLines();
        m_painter.save();
        m_painter.translate(anchor.x, anchor.y);
        m_painter.rotate(toDegrees(-label.angle));
        m_painter.translate(0.0, -baseLineRise(label) / m_view.unitsPerPixel());
        // What reached out of its box would be cut off where a part of a picture is painted anew.
        const double room = labelWidth(label) / m_view.unitsPerPixel();
        const double narrowing = width * scale > room ? room / (width * scale) : 1.0;
        m_painter.scale(scale * narrowing, scale);
        m_painter.setFont(font);
        m_painter.setPen(color(label.rgb));
        m_painter.drawText(QPointF(-width * label.horizontal / 2.0, 0.0), text);
        m_painter.restore();
    }

private:
    [[nodiscard]] QColor color(std::uint32_t rgb) const {
        return QColor::fromRgb(paintedRgb(rgb, m_settings));
    }
    [[nodiscard]] bool isTaken(const Stroke& stroke, double width) const {
        if (m_lines == nullptr || stroke.points.size() != 2 || stroke.dashes != 0) {
            return false;
        }
        const PlanPoint from = m_view.toPixels(stroke.points[0]);
        const PlanPoint to = m_view.toPixels(stroke.points[1]);
        return m_lines->take({from.x, from.y}, {to.x, to.y}, width,
                             paintedRgb(stroke.rgb, m_settings));
    }
    // Before the painter paints, so that what comes later lies over what came before.
    void settleLines() {
        if (m_lines != nullptr) {
            m_lines->settle();
        }
    }
    [[nodiscard]] static QVector<qreal> inPenWidths(const DashCycle& cycle, double width) {
        QVector<qreal> pattern;
        for (const double length : cycle.lengths) {
            pattern << length / width;
        }
        return pattern;
    }

    QPainter& m_painter;
    const PlanView& m_view;
    const PaintSettings& m_settings;
    LineQueue* m_lines;
    PlanBox m_frame; // pixels
};

} // namespace

double paintedWidth(const Stroke& stroke, const PaintSettings& settings) {
    constexpr double kThinnest = 0.5; // pixels
    constexpr double kWeightsPerMillimetre = 100.0;
    return settings.pixelsPerMillimetre > 0.0
               ? std::max(kThinnest,
                          stroke.weight / kWeightsPerMillimetre * settings.pixelsPerMillimetre)
               : settings.lineWidth;
}

std::uint32_t paintedRgb(std::uint32_t rgb, const PaintSettings& settings) {
    constexpr std::uint32_t kWhite = 0xFFFFFF;
    if (settings.ground) {
        return readableRgb(rgb, *settings.ground);
    }
    return settings.onPaper && (rgb & kWhite) == kWhite ? 0U : rgb & kWhite;
}

void paintAppearance(QPainter& painter, const Appearance& appearance, const PlanView& view,
                     const PaintSettings& settings, PaintParts parts, LineQueue* lines) {
    Painting painting(painter, view, settings, lines);
    if (parts != PaintParts::linesAndLabels) {
        for (const Fill& fill : appearance.fills) {
            painting.fill(fill);
        }
    }
    if (parts != PaintParts::fills) {
        for (const Stroke& stroke : appearance.strokes) {
            painting.stroke(stroke, appearance);
        }
        for (const Label& label : appearance.labels) {
            painting.label(label);
        }
    }
}

} // namespace orvex
