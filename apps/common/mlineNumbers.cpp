#include "mlineNumbers.h"

#include "geometry.h"
#include "labelBox.h"

#include <algorithm>
#include <cmath>

namespace orvex {

namespace {

struct Line {
    PlanPoint begin;
    PlanPoint end;

    [[nodiscard]] double length() const { return std::hypot(end.x - begin.x, end.y - begin.y); }
    [[nodiscard]] PlanPoint middle() const {
        return {begin.x + (end.x - begin.x) / 2, begin.y + (end.y - begin.y) / 2};
    }
};

// Of the longest lines, which run beside each other, the one that lies farthest up.
std::optional<Line> upperLine(const Appearance& appearance) {
    constexpr double kAsLong = 0.95;
    std::vector<Line> lines;
    double longest = 0.0;
    for (const Stroke& stroke : appearance.strokes) {
        for (std::size_t i = 1; stroke.role == StrokeRole::line && i < stroke.points.size(); ++i) {
            lines.push_back({stroke.points[i - 1], stroke.points[i]});
            longest = std::max(longest, lines.back().length());
        }
    }
    std::optional<Line> upper;
    for (const Line& line : lines) {
        const PlanPoint middle = line.middle();
        const bool isHigher = !upper || middle.y > upper->middle().y;
        if (line.length() >= kAsLong * longest && isHigher) {
            upper = line;
        }
    }
    return upper;
}

// So that it is read from below or from the right.
double uprightAngle(const Line& line) {
    const double angle = std::atan2(line.end.y - line.begin.y, line.end.x - line.begin.x);
    constexpr double kSlightly = 1e-9;
    if (angle > kPi / 2 + kSlightly) {
        return angle - kPi;
    }
    return angle <= -kPi / 2 + kSlightly ? angle + kPi : angle;
}

bool overlap(const PlanBox& a, const PlanBox& b) {
    return a.low.x < b.high.x && b.low.x < a.high.x && a.low.y < b.high.y && b.low.y < a.high.y;
}

} // namespace

std::vector<MlineNumbers::Cell> MlineNumbers::cellsOf(const PlanBox& box) const {
    // A label of some digits covers few cells, wherever it lies.
    const double size = 4.0 * m_height;
    const auto cell = [size](double place) {
        return static_cast<std::int64_t>(std::clamp(std::floor(place / size), -1e15, 1e15));
    };
    std::vector<Cell> cells;
    for (std::int64_t x = cell(box.low.x); x <= cell(box.high.x); ++x) {
        for (std::int64_t y = cell(box.low.y); y <= cell(box.high.y); ++y) {
            cells.emplace_back(x, y);
        }
    }
    return cells;
}

bool MlineNumbers::isFree(const PlanBox& box) const {
    const std::vector<Cell> cells = cellsOf(box);
    return std::none_of(cells.begin(), cells.end(), [&](const Cell& cell) {
        const auto found = m_taken.find(cell);
        return found != m_taken.end() &&
               std::any_of(found->second.begin(), found->second.end(),
                           [&](const PlanBox& taken) { return overlap(box, taken); });
    });
}

std::optional<Label> MlineNumbers::place(const Appearance& appearance, const std::wstring& text,
                                         std::uint32_t rgb) {
    constexpr int kMostTries = 40;    // then it lies over another one
    constexpr double kGap = 0.4;      // of the height, between line and label
    constexpr double kNextLine = 1.4; // of the height
    const std::optional<Line> line = upperLine(appearance);
    if (!line) {
        return std::nullopt;
    }
    Label label;
    label.height = m_height;
    label.angle = uprightAngle(*line);
    label.horizontal = 1;
    label.text = text;
    label.rgb = rgb;
    PlanBox box;
    for (int i = 0; i < kMostTries; ++i) {
        const double away = m_height * (kGap + i * kNextLine);
        const PlanPoint middle = line->middle();
        label.anchor = {middle.x - away * std::sin(label.angle),
                        middle.y + away * std::cos(label.angle)};
        box = labelBox(label);
        if (isFree(box)) {
            break;
        }
    }
    for (const Cell& cell : cellsOf(box)) {
        m_taken[cell].push_back(box);
    }
    return label;
}

} // namespace orvex
