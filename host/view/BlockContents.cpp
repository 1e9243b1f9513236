#include "BlockContents.h"

#include "BlockList.h"
#include "DatabaseCore.h"
#include "textCodec.h"

#include <algorithm>

namespace orvex {

namespace {

bool isLayout(const std::wstring& name) {
    const std::wstring folded = foldCase(name);
    return folded.starts_with(L"*MODEL_SPACE") || folded.starts_with(L"*PAPER_SPACE");
}

} // namespace

const BlockContent& BlockContents::block(const std::wstring& name) {
    if (const auto known = m_blocks.find(name); known != m_blocks.end()) {
        return known->second;
    }
    BlockContent content;
    const BlockEntities* found = isLayout(name) ? nullptr : m_core.blocks().find(name);
    if (found != nullptr) {
        content.block = found;
        content.basePoint = found->basePoint;
        for (const KdDbStub* stub : found->entities) {
            if (auto reading = readEntity(*stub)) {
                content.entities.push_back(std::move(*reading));
            }
        }
    }
    return m_blocks.emplace(name, std::move(content)).first->second;
}

bool BlockContents::covers(const BlockEntities& block) const {
    return std::any_of(m_blocks.begin(), m_blocks.end(),
                       [&](const auto& entry) { return entry.second.block == &block; });
}

} // namespace orvex
