#include "segmentPairs.h"

#include "meeting.h"

#include <algorithm>
#include <limits>
#include <numeric>

#include <boost/geometry/geometries/box.hpp>
#include <boost/geometry/geometries/point_xy.hpp>
#include <boost/geometry/index/rtree.hpp>

namespace orvex {

namespace {

namespace bg = boost::geometry;

using BoxPoint = bg::model::d2::point_xy<double>;
using Box = bg::model::box<BoxPoint>;
using Entry = std::pair<Box, unsigned>; // a piece and its segment

constexpr double kPieces = 64.0;

class Extent {
public:
    void add(PlanVector point, double around) {
        m_low = {std::min(m_low.x, point.x - around), std::min(m_low.y, point.y - around)};
        m_high = {std::max(m_high.x, point.x + around), std::max(m_high.y, point.y + around)};
    }
    [[nodiscard]] Box box() const { return {{m_low.x, m_low.y}, {m_high.x, m_high.y}}; }

private:
    PlanVector m_low{std::numeric_limits<double>::max(), std::numeric_limits<double>::max()};
    PlanVector m_high{std::numeric_limits<double>::lowest(), std::numeric_limits<double>::lowest()};
};

// A few units in the last place of the coordinates, so that none is lost to rounding.
double rounding(PlanVector point) {
    return 8.0 * std::numeric_limits<double>::epsilon() * (std::abs(point.x) + std::abs(point.y));
}

void addPieces(const PlanSegment& segment, unsigned index, std::optional<double> tolerance,
               std::vector<Entry>& entries) {
    const PlanVector way = segment.middle.direction * (segment.to - segment.from);
    const double slant = std::min(std::abs(way.x), std::abs(way.y));
    const double wanted = slant / std::max(8.0 * segment.half, slant / kPieces);
    const int pieces = slant > 0.0 ? static_cast<int>(std::clamp(wanted, 1.0, kPieces)) : 1;
    const double reach = endReach(segment, tolerance);
    for (int i = 0; i < pieces; ++i) {
        Extent extent;
        for (const int edge : {i, i + 1}) {
            const PlanVector at =
                segment.middle.at(segment.from + (segment.to - segment.from) * edge / pieces);
            const bool openEnd = (edge == 0 && segment.atFrom != WallEnd::none) ||
                                 (edge == pieces && segment.atTo != WallEnd::none);
            extent.add(at, segment.half + rounding(at) + (openEnd ? reach : 0.0));
        }
        // Miters may reach farther.
        for (std::size_t corner = 0; corner < segment.corners.size(); ++corner) {
            const bool ofStart = corner == 0 || corner == 3;
            if (ofStart ? i == 0 : i + 1 == pieces) {
                extent.add(segment.corners[corner], rounding(segment.corners[corner]));
            }
        }
        entries.emplace_back(extent.box(), index);
    }
}

} // namespace

double pairTolerance(const PlanSegment& a, const PlanSegment& b, std::optional<double> tolerance) {
    return tolerance.value_or(std::min(a.half, b.half));
}

std::vector<SegmentPair> segmentPairs(std::span<const PlanSegment> segments,
                                      std::optional<double> tolerance) {
    std::vector<Entry> entries;
    entries.reserve(segments.size());
    for (unsigned i = 0; i < segments.size(); ++i) {
        addPieces(segments[i], i, tolerance, entries);
    }
    const bg::index::rtree<Entry, bg::index::linear<16>> tree(entries);

    std::vector<SegmentPair> pairs;
    for (const auto& [box, index] : entries) {
        const auto later = [mine = index](const Entry& other) { return other.second > mine; };
        for (auto it = tree.qbegin(bg::index::intersects(box) && bg::index::satisfies(later));
             it != tree.qend(); ++it) {
            pairs.emplace_back(index, it->second);
        }
    }
    std::sort(pairs.begin(), pairs.end());
    pairs.erase(std::unique(pairs.begin(), pairs.end()), pairs.end());
    return pairs;
}

} // namespace orvex
