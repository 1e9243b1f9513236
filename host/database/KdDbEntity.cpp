#include "KdDbEntity.h"

#include "DatabaseCore.h"
#include "EntityTraits.h"
#include "KdDbDatabase.h"
#include "WellKnownObjects.h"

namespace {

std::wstring textOf(const wchar_t* text) {
    return text != nullptr ? text : L"";
}

constexpr int kByLayer = 256;

// Nothing may be drawn with a line type that the drawing doesn't have.
std::wstring currentLinetype(const orvex::DatabaseCore& core) {
    const std::wstring& name = core.variables().text("CELTYPE");
    return core.wellKnown().findLinetype(name) != nullptr ? name : L"ByLayer";
}

} // namespace

KdDbEntity::KdDbEntity() {
    static const auto standard = orvex::shareTraits({});
    m_traits = standard;
}

KdDbEntity::~KdDbEntity() = default;

KdRxClass* KdDbEntity::desc() {
    static KdRxClass description(L"KdDbEntity", KdDbObject::desc());
    return &description;
}

KdRxClass* KdDbEntity::isA() const {
    return desc();
}

const std::wstring& KdDbEntity::layer() const {
    return m_traits->layer;
}

const std::wstring& KdDbEntity::linetype() const {
    return m_traits->linetype;
}

double KdDbEntity::linetypeScale() const {
    return m_traits->linetypeScale;
}

const KdCmColor& KdDbEntity::color() const {
    return m_traits->color;
}

bool KdDbEntity::isVisible() const {
    return m_traits->visible;
}

const orvex::EntityTraits& KdDbEntity::traits() const {
    return *m_traits;
}

bool KdDbEntity::isOnlySeen() const {
    return !objectId().isNull() && isA() == desc();
}

Status KdDbEntity::setTraits(const orvex::EntityTraits& traits) {
    if (isOnlySeen()) {
        return Status::wrongClass;
    }
    aboutToChange();
    storeTraits(orvex::shareTraits(traits));
    return Status::done;
}

void KdDbEntity::storeTraits(std::shared_ptr<const orvex::EntityTraits> traits) {
    m_traits = std::move(traits);
}

Status KdDbEntity::setLayer(const wchar_t* name) {
    auto traits = *m_traits;
    traits.layer = textOf(name);
    return setTraits(traits);
}

Status KdDbEntity::setLinetype(const wchar_t* name) {
    auto traits = *m_traits;
    traits.linetype = textOf(name);
    return setTraits(traits);
}

Status KdDbEntity::setColor(const KdCmColor& color) {
    auto traits = *m_traits;
    traits.color = color;
    return setTraits(traits);
}

Status KdDbEntity::setColorIndex(std::uint16_t index, bool /*subEntities*/) {
    auto traits = *m_traits;
    traits.color.setColorIndex(index);
    return setTraits(traits);
}

void KdDbEntity::setDatabaseDefaults(const KdDbDatabase* database) {
    if (database == nullptr) {
        return;
    }
    const orvex::HeaderVariables& variables = database->core().variables();
    auto traits = *m_traits;
    // A current layer that was purged is still named in some files.
    const std::wstring layer = variables.text("CLAYER");
    traits.layer = database->core().wellKnown().findLayer(layer) != nullptr ? layer : L"0";
    traits.linetype = currentLinetype(database->core());
    traits.linetypeScale = variables.real("CELTSCALE");
    traits.color = KdCmColor();
    traits.color.setColorIndex(
        static_cast<std::uint16_t>(variables.integerWithin("CECOLOR", 0, kByLayer, kByLayer)));
    setTraits(traits);
}
