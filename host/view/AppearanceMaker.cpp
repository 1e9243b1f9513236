#include "AppearanceMaker.h"

#include "BlockList.h"
#include "DatabaseCore.h"

#include <algorithm>

namespace orvex {

namespace {

// Of all inserts of a walk, about in points. A file can name a block that comes to millions of
// entities any number of times; the later ones then show their beginnings only.
constexpr std::int64_t kMostWalkWork = 200'000'000;

} // namespace

bool AppearanceMaker::draw(const KdDbStub& entity, DrawSink& sink) {
    const auto reading = readEntity(entity);
    bool isPartial = false;
    const bool seen = reading && draw(*reading, sink, isPartial);
    if (isPartial) {
        m_partlyDrawn.insert(entity.handle);
    } else if (!m_partlyDrawn.empty()) {
        m_partlyDrawn.erase(entity.handle);
    }
    return seen;
}

bool AppearanceMaker::draw(const EntityReading& reading, DrawSink& sink, bool& isPartial) {
    constexpr std::int64_t kPointsOfRepeated = 20;
    DrawLimit limit;
    limit.onlyBeginning = m_walkWork > kMostWalkWork;
    limit.repeatedEntities =
        std::min(m_mostInInsert, std::max<std::int64_t>(m_mostInWalk - m_walkRepeated, 0));
    limit.repeatedPoints = limit.repeatedEntities * kPointsOfRepeated;
    EntityDrawer drawer(m_table, m_blocks, sink, limit);
    const bool seen = drawer.draw(reading);
    m_walkRepeated += drawer.repeatedEntities();
    m_walkWork += drawer.insertWork();
    isPartial = drawer.isPartial();
    return seen;
}

Appearance AppearanceMaker::appearance(const KdDbStub& entity) {
    Appearance appearance;
    AppearanceSink sink(appearance);
    appearance.seen = draw(entity, sink);
    return appearance;
}

Appearance AppearanceMaker::appearance(const KdDbEntity& entity) {
    Appearance appearance;
    AppearanceSink sink(appearance);
    bool isPartial = false;
    appearance.seen = draw(readEntity(entity), sink, isPartial);
    return appearance;
}

AppearanceMaker::Extent AppearanceMaker::extent(const KdDbStub& entity) {
    BoxSink sink;
    draw(entity, sink);
    return {sink.box(), sink.hasFill()};
}

bool AppearanceMaker::isShared(const KdDbStub& changed) const {
    const BlockEntities* block = m_core.blocks().blockOf(changed);
    return m_table.covers(changed) || (block != nullptr && m_blocks.covers(*block));
}

void AppearanceMaker::forgetShared() {
    m_table.forget();
    m_blocks.forget();
}

} // namespace orvex
