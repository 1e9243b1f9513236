#include "SharedTraits.h"

#include "DatabaseCore.h"
#include "EntityTraits.h"
#include "KdDbLayerTable.h"
#include "KdDbLinetypeTable.h"
#include "KdDbMlineStyle.h"
#include "WellKnownObjects.h"
#include "textCodec.h"

#include <algorithm>

namespace orvex {

namespace {

// The object of a stub; null when it can't be had as that class.
template <class T>
const T* readObject(DatabaseCore& core, KdDbStub* stub) {
    if (stub == nullptr || stub->erased) {
        return nullptr;
    }
    const KdDbObject* object = core.load(*stub);
    const bool fits = object != nullptr && object->isKindOf(T::desc());
    return fits ? static_cast<const T*>(object) : nullptr;
}

std::int16_t absoluteWeight(int lineweight) {
    constexpr int kHeaviest = 211;
    return lineweight >= 0 ? static_cast<std::int16_t>(std::min(lineweight, kHeaviest))
                           : kUsualWeight;
}

} // namespace

const LayerTraits& SharedTraits::layer(const std::wstring& name) {
    if (const auto known = m_layers.find(name); known != m_layers.end()) {
        return known->second;
    }
    LayerTraits appearance;
    KdDbStub* const stub = m_core.wellKnown().findLayer(name);
    if (const auto* record = readObject<KdDbLayerTableRecord>(m_core, stub)) {
        appearance.pen.rgb = record->color().rgb();
        appearance.pen.weight = absoluteWeight(record->lineweight());
        appearance.seen = !record->isOff() && !record->isFrozen();
        const Linetype& own = linetype(record->linetype());
        appearance.pen.dashes = own.dashes.empty() ? nullptr : &own.dashes;
    }
    appearance.listed = m_listed.empty() || m_listed.contains(foldCase(name));
    m_missedOne = m_missedOne || stub == nullptr;
    m_covered.insert(stub);
    return m_layers.emplace(name, appearance).first->second;
}

const MlineStyleContent* SharedTraits::style(KdDbObjectId id) {
    if (id.isNull()) {
        return nullptr;
    }
    m_covered.insert(id.stub());
    const auto* style = readObject<KdDbMlineStyle>(m_core, id.stub());
    return style != nullptr ? &style->values() : nullptr;
}

const SharedTraits::Linetype& SharedTraits::linetype(const std::wstring& name) {
    if (const auto known = m_linetypes.find(name); known != m_linetypes.end()) {
        return known->second;
    }
    Linetype found;
    const std::wstring folded = foldCase(name);
    if (folded.empty() || folded == L"BYLAYER") {
        found.meaning = Linetype::Meaning::byLayer;
    } else if (folded == L"BYBLOCK") {
        found.meaning = Linetype::Meaning::byBlock;
    } else {
        KdDbStub* const stub = m_core.wellKnown().findLinetype(name);
        if (const auto* record = readObject<KdDbLinetypeTableRecord>(m_core, stub)) {
            found.dashes = record->dashes();
        }
        m_missedOne = m_missedOne || stub == nullptr;
        m_covered.insert(stub);
    }
    return m_linetypes.emplace(name, std::move(found)).first->second;
}

Pen SharedTraits::pen(const KdCmColor& color, const std::wstring& linetype, double scale,
                      const LayerTraits& layer, const Pen& byBlock) {
    Pen pen;
    switch (color.colorMethod()) {
    case KdCmColor::byLayer:
        pen.rgb = layer.pen.rgb;
        break;
    case KdCmColor::byBlock:
        pen.rgb = byBlock.rgb;
        break;
    default:
        pen.rgb = color.rgb();
    }
    const Linetype& found = this->linetype(linetype);
    switch (found.meaning) {
    case Linetype::Meaning::byLayer:
        pen.dashes = layer.pen.dashes;
        break;
    case Linetype::Meaning::byBlock:
        pen.dashes = byBlock.dashes;
        break;
    case Linetype::Meaning::own:
        pen.dashes = found.dashes.empty() ? nullptr : &found.dashes;
    }
    if (m_scale == 0.0) {
        m_scale = drawingScale();
    }
    pen.dashScale = m_scale * (scale > 0.0 ? scale : 1.0);
    return pen;
}

std::int16_t SharedTraits::weight(int lineweight, const LayerTraits& layer, const Pen& byBlock) {
    return lineweight == kLineweightByLayer   ? layer.pen.weight
           : lineweight == kLineweightByBlock ? byBlock.weight
                                              : absoluteWeight(lineweight);
}

void SharedTraits::showOnly(const std::vector<std::wstring>& layers) {
    forget();
    m_listed.clear();
    for (const std::wstring& name : layers) {
        m_listed.insert(foldCase(name));
    }
}

std::wstring SharedTraits::linetypeName(const StyleElement& element) {
    const auto* record = readObject<KdDbLinetypeTableRecord>(m_core, element.linetype.stub());
    return record != nullptr ? record->name() : element.linetypeName;
}

double SharedTraits::drawingScale() const {
    const double scale = m_core.variables().real("LTSCALE");
    return scale > 0.0 ? scale : 1.0;
}

bool SharedTraits::covers(const KdDbStub& changed) const {
    switch (changed.kind) {
    case ObjectKind::layer:
    case ObjectKind::linetype:
        return m_missedOne || m_covered.contains(&changed);
    case ObjectKind::mlineStyle:
        return m_covered.contains(&changed);
    default:
        return false;
    }
}

bool SharedTraits::isScaleStale() const {
    return m_scale != 0.0 && m_scale != drawingScale();
}

void SharedTraits::forget() {
    m_layers.clear();
    m_linetypes.clear();
    m_covered.clear();
    m_missedOne = false;
    m_scale = 0.0;
}

} // namespace orvex
