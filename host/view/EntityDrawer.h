#pragma once

#include "BlockContents.h"
#include "EntityReader.h"
#include "PlacedSink.h"
#include "SharedTraits.h"

#include <cstddef>
#include <cstdint>
#include <unordered_set>
#include <vector>

namespace orvex {

// How much one insert may draw.
struct DrawLimit {
    // Each block once, however large; of repetitions inside of it so many entities and points.
    std::int64_t repeatedEntities = 50'000;
    std::int64_t repeatedPoints = 1'000'000;
    bool onlyBeginning = false; // the first few entities of it all
};

// Draws one entity of model space, with all that it inserts. A block that is inserted once costs
// what the file holds of it. Blocks that insert each other many times could come to any number of
// entities: repetitions stop at a limit, and cycles at once.
class EntityDrawer {
public:
    EntityDrawer(SharedTraits& table, BlockContents& blocks, DrawSink& sink,
                 const DrawLimit& limit = {})
        : m_table(table), m_blocks(blocks), m_sink(sink), m_limit(limit) {}

    // False, with nothing drawn, when the entity isn't seen for its layer or by itself.
    bool draw(const EntityReading& entity);

    // What inserts have cost so far, about in points.
    [[nodiscard]] std::int64_t insertWork() const;
    // What blocks inside of inserts have repeated.
    [[nodiscard]] std::int64_t repeatedEntities() const { return m_entitiesRepeated; }
    // True when a limit left something out.
    [[nodiscard]] bool isPartial() const { return m_isPartial; }

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
    void drawRepeatable(const EntityReading& entity, const Context& context, PlacedSink& sink,
                        bool isRepeated);
    [[nodiscard]] bool isExhausted(bool isRepeated) const;

    SharedTraits& m_table;
    BlockContents& m_blocks;
    DrawSink& m_sink;
    std::vector<const BlockEntities*> m_open; // blocks that are being drawn, outermost first
    std::unordered_set<const BlockEntities*> m_drawnOnce;
    DrawLimit m_limit;
    bool m_isPartial = false;
    std::int64_t m_entitiesDrawn = 0; // by inserts
    std::int64_t m_entitiesRepeated = 0;
    std::int64_t m_pointsRepeated = 0;
};

} // namespace orvex
