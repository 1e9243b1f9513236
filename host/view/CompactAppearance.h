#pragma once

#include "Appearance.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

namespace orvex {

// An appearance with its lines in a tenth of the memory, good enough where it covers few pixels:
// points are counted in 65,535ths of the box's sides. Words:
//   0  bits 0 to 23 the colour of what comes first in it, bit 24 set when it has fills
//   1  the height of the tallest label as a float, 0 without labels
// and for each fill, then each stroke
//   the colour in bits 0 to 23, set bit 24 for a fill
//   the length of the dashes' pattern as a float, 0 for a continuous line and for a fill
//   the number of points
//   the points, x in the lower half
class CompactAppearance {
public:
    struct Line {
        bool isFill = false; // of what the points go around
        std::uint32_t rgb = 0;
        float period = 0.0F; // drawing units
        std::span<const std::uint32_t> points;
    };

    explicit CompactAppearance(std::span<const std::uint32_t> words) : m_words(words) {}

    [[nodiscard]] std::uint32_t rgb() const { return m_words[0] & 0xFFFFFFU; }
    [[nodiscard]] bool hasFills() const { return (m_words[0] >> 24U & 1U) != 0; }
    [[nodiscard]] float labelHeight() const; // drawing units
    // The fills, then the lines, one after the other; false when there are no more.
    bool next(Line& line);

    // Where a point lies in the box.
    static PlanPoint decoded(std::uint32_t point, const PlanBox& box);

private:
    std::span<const std::uint32_t> m_words;
    std::size_t m_at = 2;
};

// Compact appearances by number, in large pieces of memory. What is dropped leaves its words behind
// until all are dropped.
class CompactAppearances {
public:
    static constexpr std::size_t kMostWords = std::size_t{16} << 20; // 64 MB

    // Without words when there is none.
    [[nodiscard]] std::span<const std::uint32_t> find(std::uint32_t number) const;
    // Valid until the next call, at least.
    std::span<const std::uint32_t> keep(std::uint32_t number, const Appearance& appearance,
                                        const PlanBox& box);
    void drop(std::uint32_t number);
    void clear();

private:
    struct Chunk {
        std::unique_ptr<std::uint32_t[]> words;
        std::size_t size = 0;
        std::size_t used = 0;
    };
    std::vector<Chunk> m_chunks;
    std::vector<std::span<const std::uint32_t>> m_appearances; // by number
    std::vector<std::uint32_t> m_latest;
    std::size_t m_kept = 0; // words
};

} // namespace orvex
