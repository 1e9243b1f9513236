#include "AppearanceCache.h"

#include <utility>

namespace orvex {

namespace {

// Roughly, with what the heap and the map need for each.
std::size_t bytesOf(const Appearance& appearance) {
    constexpr std::size_t kBlock = 32;
    std::size_t bytes = sizeof(Appearance) + 2 * kBlock;
    for (const Stroke& stroke : appearance.strokes) {
        bytes += sizeof(Stroke) + kBlock + stroke.points.size() * sizeof(PlanPoint) +
                 stroke.arcs.size() * sizeof(ArcSpan);
    }
    for (const std::vector<PlanPoint>& chain : appearance.chains) {
        bytes += sizeof(std::vector<PlanPoint>) + kBlock + chain.size() * sizeof(PlanPoint);
    }
    for (const Fill& fill : appearance.fills) {
        bytes += sizeof(Fill) + kBlock + fill.outline.size() * sizeof(PlanPoint);
    }
    for (const Label& label : appearance.labels) {
        bytes += sizeof(Label) + kBlock + label.text.size() * sizeof(wchar_t);
    }
    return bytes;
}

} // namespace

const Appearance* AppearanceCache::find(const KdDbStub& entity) {
    if (const auto young = m_young.find(&entity); young != m_young.end()) {
        return &young->second;
    }
    auto node = m_old.extract(&entity);
    if (node.empty()) {
        return nullptr;
    }
    makeRoom();
    m_youngBytes += bytesOf(node.mapped());
    return &m_young.insert(std::move(node)).position->second;
}

const Appearance& AppearanceCache::keep(const KdDbStub& entity, Appearance&& appearance) {
    drop(entity);
    makeRoom();
    freeSome();
    m_youngBytes += bytesOf(appearance);
    return m_young.emplace(&entity, std::move(appearance)).first->second;
}

void AppearanceCache::drop(const KdDbStub& entity) {
    if (const auto young = m_young.find(&entity); young != m_young.end()) {
        m_youngBytes -= bytesOf(young->second);
        m_young.erase(young);
    }
    m_old.erase(&entity);
}

void AppearanceCache::clear() {
    discard(std::exchange(m_young, {}));
    discard(std::exchange(m_old, {}));
    m_youngBytes = 0;
}

void AppearanceCache::makeRoom() {
    if (m_youngBytes > m_youngLimit) {
        discard(std::exchange(m_old, std::exchange(m_young, {})));
        m_youngBytes = 0;
    }
}

void AppearanceCache::discard(Generation&& generation) {
    if (!generation.empty()) {
        m_discarded.push_back(std::move(generation));
    }
}

// More than come in, so that there is never much more than a generation of them.
void AppearanceCache::freeSome() {
    constexpr int kSome = 4;
    for (int i = 0; i < kSome && !m_discarded.empty(); ++i) {
        Generation& last = m_discarded.back();
        last.erase(last.begin());
        if (last.empty()) {
            m_discarded.pop_back();
        }
    }
}

} // namespace orvex
