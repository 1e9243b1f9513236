#include "LookMaker.h"

#include "DatabaseCore.h"
#include "EntityDrawer.h"

namespace orvex {

namespace {

// Of all inserts of a walk, about in points. A file can name a block that comes to millions of
// entities any number of times; the later ones then show their beginnings only.
constexpr std::int64_t kMostWalkWork = 1'000'000'000;
constexpr int kFewEntities = 100;

} // namespace

bool LookMaker::draw(const KdDbStub& entity, Ink& ink) {
    const auto reading = readEntity(entity);
    return reading && draw(*reading, ink);
}

bool LookMaker::draw(const EntityReading& reading, Ink& ink) {
    const bool isTired = m_walkWork > kMostWalkWork;
    EntityDrawer drawer(m_table, m_blocks, ink,
                        isTired ? kFewEntities : EntityDrawer::kMostEntities);
    const bool seen = drawer.draw(reading);
    m_walkWork += drawer.insertWork();
    return seen;
}

Appearance LookMaker::appearance(const KdDbStub& entity) {
    Appearance look;
    AppearanceInk ink(look);
    look.seen = draw(entity, ink);
    return look;
}

Appearance LookMaker::appearance(const KdDbEntity& entity) {
    Appearance look;
    AppearanceInk ink(look);
    look.seen = draw(readEntity(entity), ink);
    return look;
}

PlanBox LookMaker::box(const KdDbStub& entity) {
    BoxInk ink;
    draw(entity, ink);
    return ink.box();
}

bool LookMaker::isShared(const KdDbStub& changed) const {
    const BlockEntities* block = m_core.blockOf(changed);
    return m_table.covers(changed) || (block != nullptr && m_blocks.covers(*block));
}

void LookMaker::forgetShared() {
    m_table.forget();
    m_blocks.forget();
}

} // namespace orvex
