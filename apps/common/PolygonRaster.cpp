#include "PolygonRaster.h"

#include <algorithm>
#include <cmath>

#include <QImage>

namespace orvex {

namespace {

constexpr int kBits = 8;
constexpr int kPixel = 1 << kBits; // 256ths
constexpr int kWithin = kPixel - 1;
constexpr unsigned kFull = 255;
constexpr int kMostCells = 16'384;
constexpr std::uint32_t kOpaque = 0xFF000000U;

int floorOfQuotient(int number, int divisor) {
    return number / divisor - (number % divisor < 0 ? 1 : 0);
}

// A positive coordinate in 256ths, rounded to 64ths; what the cast cuts off costs less than a call.
int rounded(double pixels) {
    constexpr int kSteps = 64;
    constexpr double kHalf = 0.5;
    return static_cast<int>(pixels * kSteps + kHalf) * (kPixel / kSteps);
}

// Each of the four bytes times part / 255, rounded.
std::uint32_t partOf(std::uint32_t color, unsigned part) {
    constexpr std::uint32_t kOdd = 0xFF00FFU;
    constexpr std::uint32_t kHalves = 0x800080U;
    std::uint32_t low = (color & kOdd) * part;
    low = ((low + ((low >> 8U) & kOdd) + kHalves) >> 8U) & kOdd;
    std::uint32_t high = ((color >> 8U) & kOdd) * part;
    high = (high + ((high >> 8U) & kOdd) + kHalves) & ~kOdd;
    return low | high;
}

} // namespace

PolygonRaster::PolygonRaster(QImage& image)
    : m_pixels(reinterpret_cast<std::uint32_t*>(image.bits())), m_stride(image.bytesPerLine() / 4),
      m_width(image.width()), m_height(image.height()) {
    m_cells.reserve(kMostCells);
}

bool PolygonRaster::canFill(const PixelArea& area) const {
    const bool isWithin =
        area.left >= 0.0 && area.top >= 0.0 && area.right < m_width && area.bottom < m_height;
    if (!isWithin) { // which nothing with a NaN is
        return false;
    }
    const int columns = static_cast<int>(area.right) - static_cast<int>(area.left) + 1;
    const int rows = static_cast<int>(area.bottom) - static_cast<int>(area.top) + 1;
    return columns <= kMostCells / rows;
}

void PolygonRaster::begin(const PixelArea& area) {
    m_left = static_cast<int>(area.left);
    m_top = static_cast<int>(area.top);
    m_columns = static_cast<int>(area.right) - m_left + 1;
    m_rows = static_cast<int>(area.bottom) - m_top + 1;
}

void PolygonRaster::fill(std::span<const QPointF> outline, std::uint32_t rgb) {
    m_cells.assign(static_cast<std::size_t>(m_columns) * static_cast<std::size_t>(m_rows), {});
    int lastX = rounded(outline.back().x());
    int lastY = rounded(outline.back().y());
    for (const QPointF& point : outline) {
        const int x = rounded(point.x());
        const int y = rounded(point.y());
        addEdge(lastX, lastY, x, y);
        lastX = x;
        lastY = y;
    }
    std::uint32_t* pixels = m_pixels + m_top * m_stride + m_left;
    const Cell* row = m_cells.data();
    for (int i = 0; i < m_rows; ++i, pixels += m_stride, row += m_columns) {
        blendRow(pixels, row, rgb | kOpaque);
    }
}

void PolygonRaster::blendRow(std::uint32_t* pixels, const Cell* row, std::uint32_t color) const {
    constexpr unsigned kAreaBits = kBits + 1;
    int cover = 0;
    for (int i = 0; i < m_columns; ++i) {
        cover += row[i].cover;
        const int area = (cover * 2 * kPixel - row[i].area) >> kAreaBits;
        const unsigned part = std::min(static_cast<unsigned>(std::abs(area)), kFull);
        if (part == kFull) {
            pixels[i] = color;
        } else if (part > 0) {
            pixels[i] = partOf(color, part) + partOf(pixels[i], kFull - part);
        }
    }
}

// Row by row; where it passes from one to the next is counted from its start.
void PolygonRaster::addEdge(int x1, int y1, int x2, int y2) {
    int row = y1 >> kBits;
    const int lastRow = y2 >> kBits;
    const auto cells = [this](int ofRow) {
        return m_cells.data() + static_cast<std::ptrdiff_t>(ofRow - m_top) * m_columns;
    };
    int fromY = y1 & kWithin;
    if (row == lastRow) {
        addWithinRow(cells(row), x1, fromY, x2, y2 & kWithin);
        return;
    }
    const int step = y2 > y1 ? 1 : -1;
    const int leave = y2 > y1 ? kPixel : 0;
    const int height = std::abs(y2 - y1);
    int passed = std::abs(leave - fromY) * (x2 - x1);
    int fromX = x1;
    for (; row != lastRow; row += step, passed += kPixel * (x2 - x1)) {
        const int x = x1 + floorOfQuotient(passed, height);
        addWithinRow(cells(row), fromX, fromY, x, leave);
        fromX = x;
        fromY = kPixel - leave;
    }
    addWithinRow(cells(row), fromX, fromY, x2, y2 & kWithin);
}

// The same, pixel by pixel. The ys are counted from the row's top.
void PolygonRaster::addWithinRow(Cell* row, int x1, int y1, int x2, int y2) {
    if (y1 == y2) {
        return;
    }
    Cell* cell = row + ((x1 >> kBits) - m_left);
    const Cell* const last = row + ((x2 >> kBits) - m_left);
    const auto add = [&cell](int sides, int cover) {
        cell->cover += cover;
        cell->area += sides * cover;
    };
    int fromX = x1 & kWithin;
    int fromY = y1;
    if (cell != last) {
        const int step = x2 > x1 ? 1 : -1;
        const int leave = x2 > x1 ? kPixel : 0;
        const int width = std::abs(x2 - x1);
        int passed = std::abs(leave - fromX) * (y2 - y1);
        for (; cell != last; cell += step, passed += kPixel * (y2 - y1)) {
            const int y = y1 + floorOfQuotient(passed, width);
            add(fromX + leave, y - fromY);
            fromX = kPixel - leave;
            fromY = y;
        }
    }
    add(fromX + (x2 & kWithin), y2 - fromY);
}

} // namespace orvex
