#include "Scene.h"

#include "AppearanceCache.h"
#include "ChangeFeed.h"
#include "DatabaseCore.h"
#include "KdDbDatabase.h"
#include "LookMaker.h"
#include "PickIndex.h"
#include "pickDistance.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <unordered_set>

namespace orvex {

namespace {

constexpr std::size_t kCacheBytes = std::size_t{48} << 20;
constexpr std::uint32_t kNotPlaced = std::numeric_limits<std::uint32_t>::max();

// Two lines lie equally near when rounding alone could tell them apart: of the reach, and of the
// coordinates.
constexpr double kTieOfReach = 1e-9;
constexpr double kTieOfCoordinate = 1e-14;

} // namespace

struct Scene::State {
    explicit State(KdDbDatabase& database)
        : core(database.core()), feed(core), maker(core), cache(kCacheBytes) {}

    DatabaseCore& core;
    ChangeFeed feed;
    LookMaker maker;
    AppearanceCache cache;
    PickIndex index; // numbers are places in the drawing order of model space
    bool isIndexed = false;
    std::vector<std::uint32_t> placeOf; // by a stub's ordinal
    std::size_t placed = 0;             // entities of model space that have their place
    std::unordered_set<const KdDbStub*> hidden;
    std::vector<KdDbStub*> shownOrHidden; // since the last settlement
    std::function<double()> unitsPerPixel;

    [[nodiscard]] const std::vector<KdDbStub*>& entities() { return core.modelSpace().entities; }
    [[nodiscard]] bool isSeen(const KdDbStub& entity, const Appearance& look) const {
        return look.seen && !hidden.contains(&entity);
    }
    PlanBox boxOf(const KdDbStub& entity) {
        return hidden.contains(&entity) ? PlanBox{} : maker.box(entity);
    }

    const Appearance& look(const KdDbStub& entity);
    std::vector<KdDbStub*> takeChanges();
    void settle();
    void placeNewEntities();
    void updateIndex(const std::vector<KdDbStub*>& changed);
    void buildIndex();
    void prepare();
};

const Appearance& Scene::State::look(const KdDbStub& entity) {
    if (const Appearance* known = cache.find(entity)) {
        return *known;
    }
    return cache.keep(entity, maker.appearance(entity));
}

std::vector<KdDbStub*> Scene::State::takeChanges() {
    std::vector<KdDbStub*> changed = feed.isEmpty() ? std::vector<KdDbStub*>{} : feed.take();
    changed.insert(changed.end(), shownOrHidden.begin(), shownOrHidden.end());
    shownOrHidden.clear();
    return changed;
}

// Brings everything that was derived up to date with what changed since the last time.
void Scene::State::settle() {
    maker.startWalk();
    const std::vector<KdDbStub*> changed = takeChanges();
    const auto isShared = [this](const KdDbStub* stub) { return maker.isShared(*stub); };
    if (maker.isScaleStale() || std::any_of(changed.begin(), changed.end(), isShared)) {
        // A layer, a style or a block: whatever uses it looks different now.
        maker.forgetShared();
        cache.clear();
        isIndexed = false;
        return;
    }
    for (const KdDbStub* stub : changed) {
        cache.drop(*stub);
    }
    // Entities never leave their list, or places would have to be given anew.
    isIndexed = isIndexed && placed <= entities().size();
    if (isIndexed) {
        updateIndex(changed);
    }
}

void Scene::State::placeNewEntities() {
    const auto& all = entities();
    placeOf.resize(core.stubs().size(), kNotPlaced);
    for (; placed < all.size(); ++placed) {
        placeOf[all[placed]->ordinal] = static_cast<std::uint32_t>(placed);
    }
}

void Scene::State::updateIndex(const std::vector<KdDbStub*>& changed) {
    const std::size_t before = placed;
    placeNewEntities();
    for (std::size_t place = before; place < placed; ++place) {
        index.set(static_cast<std::uint32_t>(place), boxOf(*entities()[place]));
    }
    for (const KdDbStub* stub : changed) {
        const std::uint32_t place = placeOf[stub->ordinal];
        if (place != kNotPlaced) {
            index.set(place, boxOf(*stub));
        }
    }
}

void Scene::State::buildIndex() {
    placed = 0;
    placeOf.assign(core.stubs().size(), kNotPlaced);
    placeNewEntities();
    std::vector<PlanBox> boxes;
    boxes.reserve(entities().size());
    for (const KdDbStub* stub : entities()) {
        boxes.push_back(boxOf(*stub));
    }
    index.build(std::move(boxes));
    isIndexed = true;
    maker.startWalk();
}

void Scene::State::prepare() {
    settle();
    if (!isIndexed) {
        buildIndex();
    }
}

Scene::Scene(KdDbDatabase& database) : m_state(std::make_unique<State>(database)) {}

Scene::~Scene() = default;

PlanBox Scene::extents() {
    m_state->prepare();
    return m_state->index.bounds();
}

const Appearance& Scene::appearance(KdDbStub& entity) {
    m_state->settle();
    return m_state->look(entity);
}

void Scene::visit(const PlanBox& area,
                  const std::function<void(KdDbStub&, const Appearance&)>& visitor) {
    m_state->prepare();
    for (const std::uint32_t place : m_state->index.query(area)) {
        KdDbStub& entity = *m_state->entities()[place];
        visitor(entity, m_state->look(entity));
    }
}

void Scene::visitAll(const std::function<void(KdDbStub&, const Appearance&)>& visitor) {
    m_state->settle();
    for (KdDbStub* entity : m_state->entities()) {
        // Looks that are made for this walk alone aren't kept: the next one needs all of them
        // again.
        const Appearance* known = m_state->cache.find(*entity);
        const Appearance made =
            known != nullptr ? Appearance{} : m_state->maker.appearance(*entity);
        const Appearance& look = known != nullptr ? *known : made;
        if (m_state->isSeen(*entity, look)) {
            visitor(*entity, look);
        }
    }
}

KdDbStub* Scene::pick(PlanPoint point, double reach) {
    if (!std::isfinite(point.x) || !std::isfinite(point.y) || !std::isfinite(reach) ||
        reach < 0.0) {
        return nullptr;
    }
    m_state->prepare();
    const PlanBox square{{point.x - reach, point.y - reach}, {point.x + reach, point.y + reach}};
    struct Hit {
        KdDbStub* entity;
        double distance;
    };
    std::vector<Hit> hits; // in drawing order
    double nearest = std::numeric_limits<double>::infinity();
    for (const std::uint32_t place : m_state->index.query(square)) {
        KdDbStub& entity = *m_state->entities()[place];
        if (const auto distance = pickDistance(m_state->look(entity), point, reach)) {
            hits.push_back({&entity, *distance});
            nearest = std::min(nearest, *distance);
        }
    }
    const double tie =
        kTieOfReach * reach + kTieOfCoordinate * std::max(std::abs(point.x), std::abs(point.y));
    const auto last = std::find_if(hits.rbegin(), hits.rend(),
                                   [&](const Hit& hit) { return hit.distance <= nearest + tie; });
    return last != hits.rend() ? last->entity : nullptr;
}

KdDbStub* Scene::entityAt(const KdGePoint3d& worldPoint, int pickBoxPixels) {
    const double unitsPerPixel = m_state->unitsPerPixel ? m_state->unitsPerPixel() : 1.0;
    return pick({worldPoint.x, worldPoint.y}, pickBoxPixels * unitsPerPixel);
}

void Scene::setUnitsPerPixel(std::function<double()> unitsPerPixel) {
    m_state->unitsPerPixel = std::move(unitsPerPixel);
}

void Scene::hide(KdDbStub& entity) {
    if (m_state->hidden.insert(&entity).second) {
        m_state->shownOrHidden.push_back(&entity);
    }
}

void Scene::show(KdDbStub& entity) {
    if (m_state->hidden.erase(&entity) > 0) {
        m_state->shownOrHidden.push_back(&entity);
    }
}

} // namespace orvex
