#include "PickIndex.h"

#include <algorithm>
#include <utility>

#include <boost/geometry.hpp>
#include <boost/geometry/index/rtree.hpp>
#include <boost/iterator/function_output_iterator.hpp>

namespace orvex {

namespace {

namespace bg = boost::geometry;
namespace bgi = boost::geometry::index;

using TreePoint = bg::model::point<double, 2, bg::cs::cartesian>;
using TreeBox = bg::model::box<TreePoint>;
using TreeEntry = std::pair<TreeBox, std::uint32_t>;

TreeBox treeBox(const PlanBox& box) {
    return {TreePoint(box.low.x, box.low.y), TreePoint(box.high.x, box.high.y)};
}

bool isSame(const PlanBox& a, const PlanBox& b) {
    return (a.isEmpty() && b.isEmpty()) || (a.low == b.low && a.high == b.high);
}

} // namespace

struct PickIndex::Tree {
    static constexpr std::size_t kEntriesOfNode = 16;
    bgi::rtree<TreeEntry, bgi::quadratic<kEntriesOfNode>> entries;
};

PickIndex::PickIndex() : m_tree(std::make_unique<Tree>()) {}

PickIndex::~PickIndex() = default;
PickIndex::PickIndex(PickIndex&&) noexcept = default;
PickIndex& PickIndex::operator=(PickIndex&&) noexcept = default;

void PickIndex::build(std::vector<PlanBox> boxes) {
    m_boxes = std::move(boxes);
    std::vector<TreeEntry> entries;
    entries.reserve(m_boxes.size());
    for (std::uint32_t number = 0; number < m_boxes.size(); ++number) {
        if (!m_boxes[number].isEmpty()) {
            entries.emplace_back(treeBox(m_boxes[number]), number);
        }
    }
    auto packed = std::make_unique<Tree>();
    packed->entries = decltype(packed->entries)(entries);
    m_tree = std::move(packed);
}

void PickIndex::set(std::uint32_t number, const PlanBox& box) {
    if (number >= m_boxes.size()) {
        m_boxes.resize(number + std::size_t{1});
    }
    PlanBox& known = m_boxes[number];
    if (isSame(known, box)) {
        return;
    }
    if (!known.isEmpty()) {
        m_tree->entries.remove(TreeEntry(treeBox(known), number));
    }
    if (!box.isEmpty()) {
        m_tree->entries.insert(TreeEntry(treeBox(box), number));
    }
    known = box;
}

std::vector<std::uint32_t> PickIndex::query(const PlanBox& area) const {
    std::vector<std::uint32_t> numbers;
    if (area.isEmpty()) {
        return numbers;
    }
    const auto note = [&numbers](const TreeEntry& entry) { numbers.push_back(entry.second); };
    m_tree->entries.query(bgi::intersects(treeBox(area)),
                          boost::make_function_output_iterator(note));
    std::sort(numbers.begin(), numbers.end());
    return numbers;
}

std::vector<std::uint32_t> PickIndex::nearest(const PlanBox& area, const PlanPoint& place,
                                              std::size_t most) const {
    std::vector<std::uint32_t> numbers;
    if (area.isEmpty() || most == 0) {
        return numbers;
    }
    const auto note = [&numbers](const TreeEntry& entry) { numbers.push_back(entry.second); };
    m_tree->entries.query(
        bgi::intersects(treeBox(area)) &&
            bgi::nearest(TreePoint(place.x, place.y), static_cast<unsigned>(most)),
        boost::make_function_output_iterator(note));
    std::sort(numbers.begin(), numbers.end());
    return numbers;
}

const PlanBox& PickIndex::box(std::uint32_t number) const {
    static const PlanBox kEmpty;
    return number < m_boxes.size() ? m_boxes[number] : kEmpty;
}

PlanBox PickIndex::bounds() const {
    if (m_tree->entries.empty()) {
        return {};
    }
    const TreeBox box = m_tree->entries.bounds();
    return {{box.min_corner().get<0>(), box.min_corner().get<1>()},
            {box.max_corner().get<0>(), box.max_corner().get<1>()}};
}

} // namespace orvex
