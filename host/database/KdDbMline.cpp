#include "KdDbMline.h"

#include "DatabaseCore.h"
#include "KdDbDatabase.h"
#include "KdDbMlineImp.h"
#include "KdDbSystemInternals.h"
#include "MlineContent.h"
#include "ObjectTable.h"

KdDbMline::KdDbMline() : m_imp(std::make_unique<KdDbMlineImp>(this)) {}

KdDbMline::~KdDbMline() = default;

KdRxClass* KdDbMline::desc() {
    static KdRxClass description(L"KdDbMline", KdDbEntity::desc());
    return &description;
}

KdRxClass* KdDbMline::isA() const {
    return desc();
}

KdDbMlineImp* KdDbSystemInternals::getImpObject(const KdDbMline* mline) {
    return mline != nullptr ? mline->m_imp.get() : nullptr;
}

namespace {

bool isIndex(const orvex::MlineContent& content, int vertex) {
    return vertex >= 0 && static_cast<std::size_t>(vertex) < content.vertices.size();
}

orvex::ChainVertex vertexOrZeros(const orvex::MlineContent& content, int vertex) {
    return isIndex(content, vertex) ? content.vertices[static_cast<std::size_t>(vertex)]
                                    : orvex::ChainVertex();
}

} // namespace

int KdDbMline::numVertices() const {
    return static_cast<int>(m_imp->content().vertices.size());
}

KdGePoint3d KdDbMline::vertexAt(int vertex) const {
    return vertexOrZeros(m_imp->content(), vertex).position;
}

KdGeVector3d KdDbMline::axisAt(int vertex) const {
    return vertexOrZeros(m_imp->content(), vertex).axis;
}

KdGeVector3d KdDbMline::miterAt(int vertex) const {
    return vertexOrZeros(m_imp->content(), vertex).miter;
}

Status KdDbMline::getParametersAt(int vertex, KdArray<void*>& parameters) const {
    parameters.removeAll();
    const orvex::MlineContent& content = m_imp->content();
    if (!isIndex(content, vertex)) {
        return Status::invalidInput;
    }
    content.lists.readNested(static_cast<unsigned>(vertex), m_imp->m_lent);
    parameters.append(&m_imp->m_lent);
    return Status::done;
}

Status KdDbMline::setParametersAt(int vertex, const KdArray<void*>& parameters) {
    if (parameters.length() != 1 || parameters[0] == nullptr ||
        !isIndex(m_imp->content(), vertex)) {
        return Status::invalidInput;
    }
    const VoVector<KdMLSegment> record(*static_cast<const VoVector<KdMLSegment>*>(parameters[0]));
    m_imp->changeContent().lists.setNested(static_cast<unsigned>(vertex), record);
    return Status::done;
}

Status KdDbMline::appendSeg(const KdGePoint3d& position) {
    orvex::MlineContent& content = m_imp->changeContent();
    content.vertices.push_back({position, {}, {}});
    content.lists.appendVertex();
    return Status::done;
}

Status KdDbMline::removeLastSeg(KdGePoint3d& removed) {
    removed = {};
    if (m_imp->content().vertices.empty()) {
        return Status::invalidInput;
    }
    orvex::MlineContent& content = m_imp->changeContent();
    removed = content.vertices.back().position;
    content.vertices.pop_back();
    content.lists.dropLastVertex();
    return Status::done;
}

bool KdDbMline::closedMline() const {
    return m_imp->content().closed;
}

void KdDbMline::setClosedMline(bool closed) {
    m_imp->changeContent().closed = closed;
}

bool KdDbMline::supressStartCaps() const {
    return m_imp->content().startCapsSuppressed;
}

void KdDbMline::setSupressStartCaps(bool supressed) {
    m_imp->changeContent().startCapsSuppressed = supressed;
}

bool KdDbMline::supressEndCaps() const {
    return m_imp->content().endCapsSuppressed;
}

void KdDbMline::setSupressEndCaps(bool supressed) {
    m_imp->changeContent().endCapsSuppressed = supressed;
}

KdDbObjectId KdDbMline::style() const {
    return m_imp->content().style;
}

KdDbObjectId KdDbMline::styleOf(KdDbObjectId mline) {
    KdDbStub* const stub = mline.stub();
    if (stub == nullptr || stub->erased || stub->kind != orvex::ObjectKind::mline) {
        return {};
    }
    const orvex::ObjectSource* const source = stub->database->objects().source();
    // As long as nothing has changed the record tells, and it is at hand without touching the
    // object.
    if (!stub->changed && source != nullptr && stub->record != orvex::kNoRecord) {
        if (const auto style = source->styleOf(*stub)) {
            return *style;
        }
    }
    const auto* const object = static_cast<const KdDbMline*>(stub->database->load(*stub));
    return object != nullptr ? object->style() : KdDbObjectId();
}

Status KdDbMline::setStyle(KdDbObjectId style) {
    m_imp->changeContent().style = style;
    return Status::done;
}

KdGeVector3d KdDbMline::normal() const {
    return m_imp->content().normal;
}

Status KdDbMline::setNormal(const KdGeVector3d& normal) {
    m_imp->changeContent().normal = normal;
    return Status::done;
}

double KdDbMline::scale() const {
    return m_imp->content().scale;
}

Status KdDbMline::setScale(double scale) {
    m_imp->changeContent().scale = scale;
    return Status::done;
}

int KdDbMline::justification() const {
    return m_imp->content().justification;
}

Status KdDbMline::setJustification(int justification) {
    m_imp->changeContent().justification = justification;
    return Status::done;
}

void KdDbMline::setDatabaseDefaults(const KdDbDatabase* database) {
    if (database == nullptr) {
        return;
    }
    KdDbEntity::setDatabaseDefaults(database);
    const orvex::HeaderVariables& variables = database->core().variables();
    orvex::MlineContent& content = m_imp->changeContent();
    content.style = database->cmlstyle();
    content.scale = variables.real("CMLSCALE");
    content.justification = variables.integerWithin("CMLJUST", 0, 2, 0);
}

void KdDbMline::storeTraits(std::shared_ptr<const orvex::EntityTraits> traits) {
    m_imp->changeContent().traits = traits;
    KdDbEntity::storeTraits(std::move(traits));
}

std::shared_ptr<const orvex::ObjectContent> KdDbMline::content() const {
    return m_imp->m_content;
}

Status KdDbMline::setContent(const std::shared_ptr<const orvex::ObjectContent>& content) {
    const auto typed = std::dynamic_pointer_cast<const orvex::MlineContent>(content);
    if (typed == nullptr) {
        return Status::wrongClass;
    }
    aboutToChange();
    // Contents are made as plain values and never written while somebody else holds them too.
    m_imp->m_content = std::const_pointer_cast<orvex::MlineContent>(typed);
    if (typed->traits != nullptr) {
        KdDbEntity::storeTraits(typed->traits);
    } else {
        m_imp->changeContent().traits = sharedTraits();
    }
    if (typed->lists.vertexCount() != typed->vertices.size()) {
        orvex::MlineContent& own = m_imp->changeContent();
        while (own.lists.vertexCount() < own.vertices.size()) {
            own.lists.appendVertex();
        }
        while (own.lists.vertexCount() > own.vertices.size()) {
            own.lists.dropLastVertex();
        }
    }
    return Status::done;
}
