#pragma once

#include "Appearance.h"
#include "BlockContents.h"
#include "EntityDrawer.h"
#include "SharedTraits.h"

#include <cstdint>
#include <limits>
#include <set>
#include <string>
#include <vector>

struct KdDbStub;

namespace orvex {

// Makes the appearances of entities as they are now. Remembers what entities share.
class AppearanceMaker {
public:
    explicit AppearanceMaker(DatabaseCore& core) : m_core(core), m_table(core), m_blocks(core) {}

    [[nodiscard]] Appearance appearance(const KdDbStub& entity);
    // Of an entity that may stand outside of any drawing; one without a model of its own shows
    // nothing then.
    [[nodiscard]] Appearance appearance(const KdDbEntity& entity);
    // The box alone, for far less; empty for an entity that isn't seen.
    struct Extent {
        PlanBox box;
        bool hasFill = false;
    };
    [[nodiscard]] Extent extent(const KdDbStub& entity);

    // Before many appearances or boxes are made: what their inserts may cost together begins anew.
    void startWalk() {
        m_walkWork = 0;
        m_walkRepeated = 0;
    }
    // How many entities blocks inside of inserts may repeat in one of them, and in a walk.
    void limitRepetitions(std::int64_t inInsert, std::int64_t inWalk) {
        m_mostInInsert = inInsert;
        m_mostInWalk = inWalk;
    }
    // Nothing else is seen from now on; all is when there are none.
    void showOnlyLayers(const std::vector<std::wstring>& names) { m_table.showOnly(names); }

    // True when the change of an object may change the appearance of entities other than itself.
    [[nodiscard]] bool isShared(const KdDbStub& changed) const;
    // Entities whose last drawing left something out, because their blocks repeat each other
    // beyond what is drawn. By handle.
    [[nodiscard]] const std::set<std::uint64_t>& partlyDrawn() const { return m_partlyDrawn; }
    [[nodiscard]] bool isScaleStale() const { return m_table.isScaleStale(); }
    void forgetShared();

private:
    bool draw(const KdDbStub& entity, DrawSink& sink);
    bool draw(const EntityReading& reading, DrawSink& sink, bool& isPartial);

    DatabaseCore& m_core;
    std::int64_t m_walkWork = 0;
    std::int64_t m_walkRepeated = 0; // entities
    std::int64_t m_mostInInsert = DrawLimit().repeatedEntities;
    std::int64_t m_mostInWalk = std::numeric_limits<std::int64_t>::max();
    SharedTraits m_table;
    BlockContents m_blocks;
    std::set<std::uint64_t> m_partlyDrawn;
};

} // namespace orvex
