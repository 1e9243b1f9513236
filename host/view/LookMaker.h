#pragma once

#include "Appearance.h"
#include "BlockContents.h"
#include "LookTable.h"

struct KdDbStub;

namespace orvex {

// Makes the looks of entities as they are now. Remembers what entities share.
class LookMaker {
public:
    explicit LookMaker(DatabaseCore& core) : m_core(core), m_table(core), m_blocks(core) {}

    [[nodiscard]] Appearance appearance(const KdDbStub& entity);
    // The box alone, for far less; empty for an entity that isn't seen.
    [[nodiscard]] PlanBox box(const KdDbStub& entity);

    // True when the change of an object may change the looks of entities other than itself.
    [[nodiscard]] bool isShared(const KdDbStub& changed) const;
    [[nodiscard]] bool isScaleStale() const { return m_table.isScaleStale(); }
    void forgetShared();

private:
    DatabaseCore& m_core;
    LookTable m_table;
    BlockContents m_blocks;
};

} // namespace orvex
