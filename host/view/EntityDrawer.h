#pragma once

#include "BlockContents.h"
#include "EntityReader.h"
#include "PlacedSink.h"
#include "SharedTraits.h"

#include <cstdint>
#include <vector>

namespace orvex {

// Draws one entity of model space, with all that it inserts. Cycles of blocks, and blocks that
// multiply without end, stop at limits that no real drawing comes near.
class EntityDrawer {
public:
    static constexpr int kMostEntities = 50'000;

    EntityDrawer(SharedTraits& table, BlockContents& blocks, DrawSink& sink,
                 int mostEntities = kMostEntities)
        : m_table(table), m_blocks(blocks), m_sink(sink), m_mostEntities(mostEntities) {}

    // False, with nothing drawn, when the entity isn't seen for its layer or by itself.
    bool draw(const EntityReading& entity);

    // What inserts have cost so far, about in points.
    [[nodiscard]] std::int64_t insertWork() const;

private:
    // What its surroundings give an entity.
    struct Context {
        const LayerTraits* insertLayer = nullptr; // stands for layer 0 inside of a block
        Pen byBlock;
    };
    // What an entity is drawn with.
    struct Means {
        const LayerTraits& layer;
        Pen pen;
        double linetypeScale = 1.0;
    };

    bool draw(const EntityReading& entity, const Context& context, PlacedSink& sink);
    void drawMultiline(const MlineContent& mline, const Means& means, PlacedSink& sink);
    void drawInsert(const InsertShape& insert, const Means& means, const PlacedSink& sink);
    void drawBlock(const BlockContent& block, const Context& context, PlacedSink& sink);
    [[nodiscard]] bool isExhausted() const;

    SharedTraits& m_table;
    BlockContents& m_blocks;
    DrawSink& m_sink;
    std::vector<const BlockEntities*> m_open; // blocks that are being drawn, outermost first
    int m_mostEntities;
    int m_entitiesDrawn = 0; // by inserts
};

} // namespace orvex
