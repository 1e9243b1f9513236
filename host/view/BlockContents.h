#pragma once

#include "EntityReader.h"
#include "KdGePoint3d.h"

#include <string>
#include <unordered_map>
#include <vector>

namespace orvex {

class DatabaseCore;
struct BlockEntities;

// The entities of a block definition, read once however often the block is inserted.
struct BlockContent {
    const BlockEntities* block = nullptr; // null when the drawing has no such block
    KdGePoint3d basePoint;
    std::vector<EntityReading> entities;
};

class BlockContents {
public:
    explicit BlockContents(DatabaseCore& core) : m_core(core) {}

    // By name. Model and paper space are no definitions: they read as empty.
    const BlockContent& block(const std::wstring& name);

    [[nodiscard]] bool covers(const BlockEntities& block) const;
    void forget() { m_blocks.clear(); }

private:
    DatabaseCore& m_core;
    std::unordered_map<std::wstring, BlockContent> m_blocks;
};

} // namespace orvex
