#include "LinePainter.h"

#include <algorithm>
#include <cmath>

namespace orvex {

namespace {

constexpr double kStraight = 1.0 / 64; // pixels that a line along an axis may stray from it
constexpr std::uint32_t kOpaque = 0xFF000000U;

bool isUsable(PlanPoint point) {
    constexpr double kFarthest = 1e15;
    return std::abs(point.x) <= kFarthest && std::abs(point.y) <= kFarthest; // false for NaN
}

// Of a coordinate, within bounds that integers can count.
int wholePixel(double value, int low, int high) {
    return static_cast<int>(std::floor(std::clamp(value, low - 2.0, high + 2.0)));
}

std::uint32_t mixed(std::uint32_t ground, std::uint32_t color, unsigned part) {
    const std::uint32_t rest = 256 - part;
    const std::uint32_t outer =
        ((ground & 0xFF00FFU) * rest + (color & 0xFF00FFU) * part) >> 8U & 0xFF00FFU;
    const std::uint32_t green =
        ((ground & 0x00FF00U) * rest + (color & 0x00FF00U) * part) >> 8U & 0x00FF00U;
    return kOpaque | outer | green;
}

// How much of the pixel from `pixel` to `pixel` + 1 a stretch covers.
double covered(int pixel, double low, double high) {
    return std::min(pixel + 1.0, high) - std::max(static_cast<double>(pixel), low);
}

} // namespace

LinePainter::LinePainter(QImage& image, const QRect& clip, int lineWidth,
                         std::optional<std::uint32_t> ground)
    : m_pixels(reinterpret_cast<std::uint32_t*>(image.bits())), m_stride(image.bytesPerLine() / 4),
      m_left(clip.left()), m_top(clip.top()), m_right(clip.right() + 1),
      m_bottom(clip.bottom() + 1), m_width(std::max(lineWidth, 1)) {
    if (ground) {
        m_colors.emplace(*ground);
    }
}

void LinePainter::chain(std::span<const PlanPoint> points, std::uint32_t rgb) {
    rgb = painted(rgb);
    if (points.size() == 1) {
        paintDot(points.front(), rgb);
    }
    for (std::size_t i = 0; i + 1 < points.size(); ++i) {
        line(points[i], points[i + 1], rgb, true);
    }
}

void LinePainter::dashedChain(std::span<const PlanPoint> points, std::uint32_t rgb,
                              const DashCycle& cycle) {
    rgb = painted(rgb);
    const double period = cycle.period();
    double before = cycle.offset;
    for (std::size_t i = 0; i + 1 < points.size(); ++i) {
        const PlanPoint& from = points[i];
        const PlanPoint& to = points[i + 1];
        if (canMeet(from, to)) {
            dashes(from, to, before, rgb, cycle, period);
        }
        before += std::hypot(to.x - from.x, to.y - from.y);
    }
}

// The dashes of one piece which lie near the clip. Where each begins is counted from the chain's
// start, whatever the clip is.
void LinePainter::dashes(PlanPoint from, PlanPoint to, double before, std::uint32_t rgb,
                         const DashCycle& cycle, double period) {
    const PlanPoint direction{to.x - from.x, to.y - from.y};
    const double length = std::hypot(direction.x, direction.y);
    if (!(length > 0.0)) {
        return;
    }
    // From where to where along the piece the clip can be met at all.
    const PlanPoint middle{(m_left + m_right) / 2.0, (m_top + m_bottom) / 2.0};
    const double reach = m_right - m_left + m_bottom - m_top + 2.0 * period + m_width;
    const double nearest =
        ((middle.x - from.x) * direction.x + (middle.y - from.y) * direction.y) / length;
    const double first = std::clamp(nearest - reach, 0.0, length);
    const double last = std::clamp(nearest + reach, 0.0, length);
    const auto at = [&](double along) {
        return PlanPoint{from.x + direction.x * (along / length),
                         from.y + direction.y * (along / length)};
    };
    for (double turn = std::floor((before + first) / period); turn * period - before <= last;
         turn += 1.0) {
        double begin = turn * period - before;
        for (std::size_t part = 0; part < cycle.lengths.size(); part += 2) {
            const double low = std::max(begin, 0.0);
            const double high = std::min(begin + cycle.lengths[part], length);
            if (low < high) {
                line(at(low), at(high), rgb, false);
            }
            begin += cycle.lengths[part] +
                     (part + 1 < cycle.lengths.size() ? cycle.lengths[part + 1] : 0.0);
        }
    }
}

void LinePainter::dot(PlanPoint point, std::uint32_t rgb) {
    paintDot(point, painted(rgb));
}

void LinePainter::paintDot(PlanPoint point, std::uint32_t rgb) {
    if (!isUsable(point)) {
        return;
    }
    const int low = (m_width - 1) / 2;
    const int x = wholePixel(point.x - low, m_left - m_width, m_right);
    const int y = wholePixel(point.y - low, m_top - m_width, m_bottom);
    fill(x, y, x + m_width, y + m_width, rgb);
}

void LinePainter::area(std::span<const PlanPoint> outline, std::uint32_t rgb) {
    if (!std::all_of(outline.begin(), outline.end(), isUsable) || outline.size() < 3) {
        return;
    }
    rgb = painted(rgb);
    const auto [top, bottom] =
        std::minmax_element(outline.begin(), outline.end(),
                            [](const PlanPoint& a, const PlanPoint& b) { return a.y < b.y; });
    const int first = std::max(wholePixel(top->y, m_top, m_bottom), m_top);
    const int last = std::min(wholePixel(bottom->y, m_top, m_bottom), m_bottom - 1);
    for (int row = first; row <= last; ++row) {
        const double middle = row + 0.5;
        m_crossings.clear();
        for (std::size_t i = 0; i < outline.size(); ++i) {
            const PlanPoint& from = outline[i];
            const PlanPoint& to = outline[i + 1 < outline.size() ? i + 1 : 0];
            if ((from.y <= middle) != (to.y <= middle)) {
                const double part = (middle - from.y) / (to.y - from.y);
                m_crossings.push_back({from.x + (to.x - from.x) * part, to.y > from.y ? 1 : -1});
            }
        }
        std::sort(m_crossings.begin(), m_crossings.end(),
                  [](const Crossing& a, const Crossing& b) { return a.x < b.x; });
        int turns = 0;
        for (std::size_t i = 0; i + 1 < m_crossings.size(); ++i) {
            turns += m_crossings[i].turn;
            if (turns != 0) {
                fill(wholePixel(m_crossings[i].x + 0.5, m_left, m_right), row,
                     wholePixel(m_crossings[i + 1].x + 0.5, m_left, m_right), row + 1, rgb);
            }
        }
    }
}

bool LinePainter::canMeet(PlanPoint from, PlanPoint to) const {
    const double margin = m_width + 1.0;
    return isUsable(from) && isUsable(to) && std::max(from.x, to.x) >= m_left - margin &&
           std::min(from.x, to.x) <= m_right + margin && std::max(from.y, to.y) >= m_top - margin &&
           std::min(from.y, to.y) <= m_bottom + margin;
}

void LinePainter::line(PlanPoint from, PlanPoint to, std::uint32_t rgb, bool squareEnds) {
    if (!canMeet(from, to)) {
        return;
    }
    const double dx = std::abs(to.x - from.x);
    const double dy = std::abs(to.y - from.y);
    if (dy <= kStraight && dx >= dy) {
        alongAxis(std::min(from.x, to.x), std::max(from.x, to.x), (from.y + to.y) / 2, false, rgb,
                  squareEnds);
    } else if (dx <= kStraight) {
        alongAxis(std::min(from.y, to.y), std::max(from.y, to.y), (from.x + to.x) / 2, true, rgb,
                  squareEnds);
    } else {
        slanted(from, to, rgb, squareEnds);
    }
}

void LinePainter::alongAxis(double from, double to, double across, bool upright, std::uint32_t rgb,
                            bool squareEnds) {
    const int low = upright ? m_top : m_left;
    const int high = upright ? m_bottom : m_right;
    int begin = wholePixel(squareEnds ? from : from + 0.5, low, high);
    int end = squareEnds ? wholePixel(to, low, high) + 1 : wholePixel(to + 0.5, low, high);
    end = std::max(end, begin + 1);
    begin = std::max(begin, low);
    end = std::min(end, high);
    const int acrossLow = upright ? m_left : m_top;
    const int acrossHigh = upright ? m_right : m_bottom;
    const int before = (m_width - 1) / 2;
    const int side = wholePixel(across - before, acrossLow - m_width, acrossHigh);
    if (upright) {
        fill(side, begin, side + m_width, end, rgb);
    } else {
        fill(begin, side, end, side + m_width, rgb);
    }
}

// Goes along the axis that the line follows more closely. In each column of pixels, the line covers
// a stretch as high as its width, divided by the cosine of its slope.
void LinePainter::slanted(PlanPoint from, PlanPoint to, std::uint32_t rgb, bool squareEnds) {
    const bool steep = std::abs(to.y - from.y) > std::abs(to.x - from.x);
    if (steep) {
        std::swap(from.x, from.y);
        std::swap(to.x, to.y);
    }
    if (from.x > to.x) {
        std::swap(from, to);
    }
    const double slope = (to.y - from.y) / (to.x - from.x);
    const double half = m_width / 2.0 * std::sqrt(1.0 + slope * slope);
    const double ends = squareEnds ? m_width / 2.0 : 0.0;
    const double begin = from.x - ends;
    const double end = to.x + ends;
    const int low = steep ? m_top : m_left;
    const int high = steep ? m_bottom : m_right;
    const int acrossLow = steep ? m_left : m_top;
    const int acrossHigh = steep ? m_right : m_bottom;
    const int first = std::max(wholePixel(begin, low, high), low);
    const int last = std::min(wholePixel(end, low, high), high - 1);
    for (int column = first; column <= last; ++column) {
        const double part = std::min(covered(column, begin, end), 1.0);
        const double middle = from.y + (column + 0.5 - from.x) * slope;
        const int top = std::max(wholePixel(middle - half, acrossLow, acrossHigh), acrossLow);
        const int bottom =
            std::min(wholePixel(middle + half, acrossLow, acrossHigh), acrossHigh - 1);
        for (int row = top; row <= bottom; ++row) {
            const double cover = part * covered(row, middle - half, middle + half);
            steep ? shade(row, column, rgb, cover) : shade(column, row, rgb, cover);
        }
    }
}

void LinePainter::fill(int left, int top, int right, int bottom, std::uint32_t rgb) {
    left = std::max(left, m_left);
    top = std::max(top, m_top);
    right = std::min(right, m_right);
    bottom = std::min(bottom, m_bottom);
    for (int y = top; y < bottom && left < right; ++y) {
        std::uint32_t* const row = m_pixels + static_cast<std::ptrdiff_t>(y) * m_stride;
        std::fill(row + left, row + right, kOpaque | rgb);
    }
}

void LinePainter::shade(int x, int y, std::uint32_t rgb, double cover) {
    const auto part = static_cast<int>(std::lround(cover * 256.0));
    if (part > 0) {
        std::uint32_t& pixel = m_pixels[static_cast<std::ptrdiff_t>(y) * m_stride + x];
        pixel = mixed(pixel, rgb, static_cast<unsigned>(std::min(part, 256)));
    }
}

} // namespace orvex
