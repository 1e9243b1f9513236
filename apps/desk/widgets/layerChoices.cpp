#include "layerChoices.h"

#include "KdDbDatabase.h"
#include "KdDbLayerTable.h"
#include "Opened.h"
#include "qtWide.h"
#include "variableText.h"

#include <algorithm>

namespace orvex {

namespace {

LayerChoice choiceOf(const KdDbLayerTableRecord& layer) {
    return {toQt(layer.name()), layer.color().rgb(), layer.isLocked(),
            layer.isOff() || layer.isFrozen()};
}

} // namespace

std::vector<LayerChoice> layerChoices(KdDbDatabase& database) {
    std::vector<LayerChoice> choices;
    const Opened<KdDbLayerTable> table(database.layerTableId(), kForRead);
    if (!table) {
        return choices;
    }
    for (const KdDbObjectId id : table->records()) {
        if (const Opened<KdDbLayerTableRecord> layer(id, kForRead); layer) {
            choices.push_back(choiceOf(*layer));
        }
    }
    std::ranges::sort(choices, [](const LayerChoice& a, const LayerChoice& b) {
        return QString::localeAwareCompare(a.name, b.name) < 0;
    });
    return choices;
}

LayerChoice currentLayer(KdDbDatabase& database) {
    if (const Opened<KdDbLayerTableRecord> layer(database.clayer(), kForRead); layer) {
        return choiceOf(*layer);
    }
    return {.name = toQt(variableText(L"CLAYER").value_or(L""))};
}

} // namespace orvex
