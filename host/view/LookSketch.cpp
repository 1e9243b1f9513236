#include "LookSketch.h"

#include <algorithm>
#include <bit>
#include <cmath>

namespace orvex {

namespace {

constexpr double kSteps = 65535.0; // of a side of the box
constexpr std::size_t kMostPoints = 255;
constexpr std::size_t kChunkWords = std::size_t{1} << 18;
constexpr std::uint32_t kColorBits = 0xFFFFFF;

std::uint32_t stepOf(double value, double low, double high) {
    const double side = high - low;
    const double part = side > 0.0 ? (value - low) / side : 0.0;
    return static_cast<std::uint32_t>(std::lround(std::clamp(part, 0.0, 1.0) * kSteps));
}

std::uint32_t pointWord(PlanPoint point, const PlanBox& box) {
    return stepOf(point.x, box.low.x, box.high.x) | stepOf(point.y, box.low.y, box.high.y) << 16U;
}

std::uint32_t firstRgb(const Appearance& look) {
    const std::uint32_t rgb = !look.strokes.empty()  ? look.strokes.front().rgb
                              : !look.fills.empty()  ? look.fills.front().rgb
                              : !look.labels.empty() ? look.labels.front().rgb
                                                     : 0U;
    return rgb & kColorBits;
}

float periodOf(const Stroke& stroke, const Appearance& look) {
    double period = 0.0;
    if (stroke.dashes > 0 && stroke.dashes <= look.dashPatterns.size()) {
        for (const double dash : look.dashPatterns[stroke.dashes - 1]) {
            period += std::abs(dash);
        }
    }
    return static_cast<float>(period);
}

// A longer chain comes in parts that share a point.
void addStroke(const Stroke& stroke, const Appearance& look, const PlanBox& box,
               std::vector<std::uint32_t>& words) {
    const std::size_t count = stroke.points.size();
    for (std::size_t first = 0; first < count; first += kMostPoints - 1) {
        const std::size_t points = std::min(kMostPoints, count - first);
        if (points == 1 && first > 0) {
            break;
        }
        words.push_back((stroke.rgb & kColorBits) | static_cast<std::uint32_t>(points) << 24U);
        words.push_back(std::bit_cast<std::uint32_t>(periodOf(stroke, look)));
        for (std::size_t i = first; i < first + points; ++i) {
            words.push_back(pointWord(stroke.points[i], box));
        }
    }
}

} // namespace

float LookSketch::labelHeight() const {
    return std::bit_cast<float>(m_words[1]);
}

bool LookSketch::next(Line& line) {
    if (m_at >= m_words.size()) {
        return false;
    }
    const std::size_t count = m_words[m_at] >> 24U;
    line = {m_words[m_at] & kColorBits, std::bit_cast<float>(m_words[m_at + 1]),
            m_words.subspan(m_at + 2, count)};
    m_at += 2 + count;
    return true;
}

PlanPoint LookSketch::place(std::uint32_t point, const PlanBox& box) {
    return {box.low.x + (box.high.x - box.low.x) * ((point & 0xFFFFU) / kSteps),
            box.low.y + (box.high.y - box.low.y) * ((point >> 16U) / kSteps)};
}

std::span<const std::uint32_t> LookSketches::find(std::uint32_t number) const {
    return number < m_sketches.size() ? m_sketches[number] : std::span<const std::uint32_t>{};
}

std::span<const std::uint32_t> LookSketches::keep(std::uint32_t number, const Appearance& look,
                                                  const PlanBox& box) {
    std::vector<std::uint32_t>& words = m_latest;
    words.clear();
    double labelHeight = 0.0;
    for (const Label& label : look.labels) {
        labelHeight = std::max(labelHeight, label.height);
    }
    words.push_back(firstRgb(look) | (look.fills.empty() ? 0U : 1U << 24U));
    words.push_back(std::bit_cast<std::uint32_t>(static_cast<float>(labelHeight)));
    for (const Stroke& stroke : look.strokes) {
        addStroke(stroke, look, box, words);
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
    m_sketches.resize(std::max(m_sketches.size(), std::size_t{number} + 1));
    m_sketches[number] = {target, words.size()};
    return m_sketches[number];
}

void LookSketches::drop(std::uint32_t number) {
    if (number < m_sketches.size()) {
        m_sketches[number] = {};
    }
}

void LookSketches::clear() {
    *this = {};
}

} // namespace orvex
