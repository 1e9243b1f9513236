#include "AppearanceCache.h"

#include <utility>

namespace orvex {

namespace {

// Roughly, with what the heap and the map need for each.
std::size_t bytesOf(const Appearance& appearance) {
    constexpr std::size_t kBlock = 32;
    std::size_t bytes = sizeof(Appearance) + 2 * kBlock;
    for (const Stroke& stroke : appearance.strokes) {
        bytes += sizeof(Stroke) + kBlock + stroke.points.size() * sizeof(PlanPoint);
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
    m_young.clear();
    m_old.clear();
    m_youngBytes = 0;
}

void AppearanceCache::makeRoom() {
    if (m_youngBytes > m_youngLimit) {
        m_old = std::exchange(m_young, {});
        m_youngBytes = 0;
    }
}

} // namespace orvex
