#include "CompactAppearance.h"

#include "KdCmColor.h"

#include <algorithm>
#include <bit>
#include <cmath>

namespace orvex {

namespace {

constexpr double kSteps = 65535.0; // of a side of the box
constexpr std::size_t kChunkWords = std::size_t{1} << 18;
constexpr std::uint32_t kFillBit = 1U << 24U;

std::uint32_t stepOf(double value, double low, double high) {
    const double side = high - low;
    const double part = side > 0.0 ? (value - low) / side : 0.0;
    return static_cast<std::uint32_t>(std::lround(std::clamp(part, 0.0, 1.0) * kSteps));
}

std::uint32_t pointWord(PlanPoint point, const PlanBox& box) {
    return stepOf(point.x, box.low.x, box.high.x) | stepOf(point.y, box.low.y, box.high.y) << 16U;
}

std::uint32_t firstRgb(const Appearance& appearance) {
    const std::uint32_t rgb = !appearance.strokes.empty()  ? appearance.strokes.front().rgb
                              : !appearance.fills.empty()  ? appearance.fills.front().rgb
                              : !appearance.labels.empty() ? appearance.labels.front().rgb
                                                           : 0U;
    return rgb & kRgbBits;
}

float periodOf(const Stroke& stroke, const Appearance& appearance) {
    double period = 0.0;
    if (stroke.dashes > 0 && stroke.dashes <= appearance.dashPatterns.size()) {
        for (const double dash : appearance.dashPatterns[stroke.dashes - 1]) {
            period += std::abs(dash);
        }
    }
    return static_cast<float>(period);
}

void addPoints(std::uint32_t head, float period, const std::vector<PlanPoint>& points,
               const PlanBox& box, std::vector<std::uint32_t>& words) {
    words.push_back(head);
    words.push_back(std::bit_cast<std::uint32_t>(period));
    words.push_back(static_cast<std::uint32_t>(points.size()));
    for (const PlanPoint& point : points) {
        words.push_back(pointWord(point, box));
    }
}

} // namespace

float CompactAppearance::labelHeight() const {
    return std::bit_cast<float>(m_words[1]);
}

bool CompactAppearance::next(Line& line) {
    if (m_at >= m_words.size()) {
        return false;
    }
    const std::uint32_t head = m_words[m_at];
    const std::size_t count = m_words[m_at + 2];
    line = {(head & kFillBit) != 0, head & kRgbBits, std::bit_cast<float>(m_words[m_at + 1]),
            m_words.subspan(m_at + 3, count)};
    m_at += 3 + count;
    return true;
}

PlanPoint CompactAppearance::decoded(std::uint32_t point, const PlanBox& box) {
    return {box.low.x + (box.high.x - box.low.x) * ((point & 0xFFFFU) / kSteps),
            box.low.y + (box.high.y - box.low.y) * ((point >> 16U) / kSteps)};
}

std::span<const std::uint32_t> CompactAppearances::find(std::uint32_t number) const {
    return number < m_appearances.size() ? m_appearances[number] : std::span<const std::uint32_t>{};
}

std::span<const std::uint32_t>
CompactAppearances::keep(std::uint32_t number, const Appearance& appearance, const PlanBox& box) {
    std::vector<std::uint32_t>& words = m_latest;
    words.clear();
    double labelHeight = 0.0;
    for (const Label& label : appearance.labels) {
        labelHeight = std::max(labelHeight, label.height);
    }
    words.push_back(firstRgb(appearance) | (appearance.fills.empty() ? 0U : kFillBit));
    words.push_back(std::bit_cast<std::uint32_t>(static_cast<float>(labelHeight)));
    for (const Fill& fill : appearance.fills) {
        addPoints((fill.rgb & kRgbBits) | kFillBit, 0.0F, fill.outline, box, words);
    }
    for (const Stroke& stroke : appearance.strokes) {
        addPoints(stroke.rgb & kRgbBits, periodOf(stroke, appearance), stroke.points, box, words);
    }
    if (m_kept + words.size() > kMostWords) {
        return words; // made again whenever it is asked for
    }
    if (m_chunks.empty() || m_chunks.back().size - m_chunks.back().used < words.size()) {
        const std::size_t size = std::max(kChunkWords, words.size());
        m_chunks.push_back({std::make_unique_for_overwrite<std::uint32_t[]>(size), size, 0});
    }
    Chunk& chunk = m_chunks.back();
    std::uint32_t* const target = chunk.words.get() + chunk.used;
    std::copy(words.begin(), words.end(), target);
    chunk.used += words.size();
    m_kept += words.size();
    m_appearances.resize(std::max(m_appearances.size(), std::size_t{number} + 1));
    m_appearances[number] = {target, words.size()};
    return m_appearances[number];
}

void CompactAppearances::drop(std::uint32_t number) {
    if (number < m_appearances.size()) {
        m_appearances[number] = {};
    }
}

void CompactAppearances::clear() {
    *this = {};
}

} // namespace orvex
