#include "LookMaker.h"

#include "DatabaseCore.h"
#include "EntityDrawer.h"

namespace orvex {

Appearance LookMaker::appearance(const KdDbStub& entity) {
    Appearance look;
    look.seen = false;
    if (const auto reading = readEntity(entity)) {
        AppearanceInk ink(look);
        look.seen = EntityDrawer(m_table, m_blocks, ink).draw(*reading);
    }
    return look;
}

PlanBox LookMaker::box(const KdDbStub& entity) {
    BoxInk ink;
    if (const auto reading = readEntity(entity)) {
        EntityDrawer(m_table, m_blocks, ink).draw(*reading);
    }
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
