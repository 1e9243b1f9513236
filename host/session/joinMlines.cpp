#include "joinMlines.h"

#include "BlockList.h"
#include "DatabaseCore.h"
#include "EntityTraits.h"
#include "KdDbMline.h"
#include "WellKnownObjects.h"
#include "lockedLayers.h"
#include "textCodec.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>

namespace orvex {

namespace {

// Tells whether an entity may be joined, and asks the drawing once for each layer.
class JoinableEntities {
public:
    explicit JoinableEntities(DatabaseCore& core) : m_core(core) {}

    [[nodiscard]] bool allowsLayer(const std::wstring& name) {
        const auto [place, isNew] = m_layers.try_emplace(name, true);
        if (isNew) {
            place->second = isLayerEditable(m_core, name);
        }
        return place->second;
    }

    // Null for what is no multiline, not seen, or on a layer that doesn't allow it.
    [[nodiscard]] const KdDbMline* mlineAt(KdDbStub& stub) {
        if (stub.erased || stub.kind != ObjectKind::mline) {
            return nullptr;
        }
        const auto* const mline = dynamic_cast<const KdDbMline*>(m_core.load(stub));
        if (mline == nullptr) {
            return nullptr;
        }
        const EntityTraits& traits = mline->traits();
        return traits.visible && !traits.inPaperSpace && allowsLayer(traits.layer) ? mline
                                                                                   : nullptr;
    }

private:
    DatabaseCore& m_core;
    std::unordered_map<std::wstring, bool> m_layers;
};

} // namespace

JoinMlines mlinesToJoin(DatabaseCore& core, const std::vector<std::wstring>& layers) {
    JoinMlines found;
    JoinableEntities joinable(core);
    std::unordered_set<std::wstring> named;
    for (const std::wstring& layer : layers) {
        if (!named.insert(foldCase(layer)).second) {
            continue;
        }
        if (core.wellKnown().findLayer(layer) == nullptr) {
            found.unknownLayers.push_back(layer);
        } else if (!joinable.allowsLayer(layer)) {
            found.withheldLayers.push_back(layer);
        }
    }
    for (KdDbStub* const stub : core.blocks().modelSpace().entities) {
        const KdDbMline* const mline = joinable.mlineAt(*stub);
        if (mline != nullptr && (named.empty() || named.contains(foldCase(mline->layer())))) {
            found.mlines.push_back(stub);
        }
    }
    return found;
}

JoinMlines mlinesToJoin(DatabaseCore& core, const std::vector<KdDbStub*>& selection) {
    JoinMlines found;
    JoinableEntities joinable(core);
    const std::unordered_set<const KdDbStub*> chosen(selection.begin(), selection.end());
    for (KdDbStub* const stub : core.blocks().modelSpace().entities) {
        if (chosen.contains(stub) && joinable.mlineAt(*stub) != nullptr) {
            found.mlines.push_back(stub);
        }
    }
    return found;
}

} // namespace orvex
