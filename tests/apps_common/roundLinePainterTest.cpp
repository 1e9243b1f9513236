// Lines painted quickly, compared with what QPainter makes of them.

#include "LineQueue.h"

#include <QImage>
#include <QPainter>
#include <QPen>

#include <cmath>
#include <gtest/gtest.h>
#include <random>

namespace orvex::testing {
namespace {

constexpr double kTurn = 6.283185307179586;

class RandomLines {
public:
    // Some lie on the raster or along an axis, where rounding has ties.
    void next(QPointF& from, QPointF& to) {
        const double angle = kTurn * m_part(m_numbers);
        const double length = m_kind % 3 == 0   ? std::pow(10.0, -6.0 * m_part(m_numbers))
                              : m_kind % 3 == 1 ? 5.0 * m_part(m_numbers)
                                                : 150.0 * m_part(m_numbers);
        from = {200.0 * m_part(m_numbers), 150.0 * m_part(m_numbers)};
        to = from + length * QPointF(std::cos(angle), std::sin(angle));
        if (m_kind % 4 == 1) {
            to.setY(from.y());
        } else if (m_kind % 4 == 2) {
            to.setX(from.x());
        }
        if (m_kind % 5 == 0) {
            from = halves(from);
            to = halves(to);
        }
        ++m_kind;
    }

private:
    static QPointF halves(QPointF point) {
        return {std::round(2.0 * point.x()) / 2.0, std::round(2.0 * point.y()) / 2.0};
    }
    std::mt19937 m_numbers{20};
    std::uniform_real_distribution<> m_part{0.0, 1.0};
    int m_kind = 0;
};

TEST(RoundLinePainter, paintsWhatQPainterDoes) {
    int painted = 0;
    RandomLines lines;
    for (const auto& [format, threads] :
         {std::pair{QImage::Format_RGB32, 1}, {QImage::Format_ARGB32_Premultiplied, 2}}) {
        for (const double width : {1.000001, 1.2, 2.0, 3.6, 4.0, 7.0}) {
            QImage expected(200, 150, format);
            expected.fill(0xFFE0E0E0U);
            QImage image = expected.copy();
            LineQueue painter(image, threads);
            QPainter reference(&expected);
            reference.setRenderHint(QPainter::Antialiasing);
            for (unsigned i = 0; i < 5000; ++i) {
                QPointF from;
                QPointF to;
                lines.next(from, to);
                const std::uint32_t rgb = i * 2654435761U & 0xFFFFFFU;
                if (painter.take(from, to, width, rgb)) {
                    ++painted;
                    reference.setPen(QPen(QColor::fromRgb(rgb), width, Qt::SolidLine, Qt::RoundCap,
                                          Qt::RoundJoin));
                    const QPointF points[] = {from, to};
                    reference.drawPolyline(points, 2);
                }
            }
            painter.settle();
            EXPECT_EQ(image, expected) << width;
        }
    }
    EXPECT_GT(painted, 30'000);
}

TEST(RoundLinePainter, leavesTheRestAlone) {
    QImage image(100, 80, QImage::Format_RGB32);
    image.fill(Qt::white);
    const QImage before = image.copy();
    LineQueue painter(image, 1);
    const double nothing = std::nan("");
    EXPECT_FALSE(painter.take({10, 10}, {20, 10}, 1.0, 0));  // thin
    EXPECT_FALSE(painter.take({10, 10}, {10, 10}, 2.0, 0));  // a dot
    EXPECT_FALSE(painter.take({0.9, 10}, {20, 10}, 2.0, 0)); // over an edge
    EXPECT_FALSE(painter.take({10, 10}, {10, 79.5}, 2.0, 0));
    EXPECT_FALSE(painter.take({10, -1e300}, {10, 1e300}, 2.0, 0));
    EXPECT_FALSE(painter.take({10, 10}, {nothing, 10}, 2.0, 0));
    EXPECT_FALSE(painter.take({10, 10}, {20, 10}, nothing, 0));
    EXPECT_EQ(image, before);
}

} // namespace
} // namespace orvex::testing
