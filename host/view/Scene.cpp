#include "Scene.h"

#include "AppearanceCache.h"
#include "AppearanceMaker.h"
#include "BlockList.h"
#include "ChangeFeed.h"
#include "CompactAppearance.h"
#include "DatabaseCore.h"
#include "IndexBuild.h"
#include "KdDbDatabase.h"
#include "ObjectTable.h"
#include "PickIndex.h"
#include "boxSelection.h"
#include "pickDistance.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <unordered_set>

namespace orvex {

namespace {

constexpr std::size_t kCacheBytes = std::size_t{48} << 20;
constexpr std::uint32_t kNoIndex = std::numeric_limits<std::uint32_t>::max();
constexpr std::size_t kManyChanges = 1000;
constexpr std::size_t kMostAreas = 1024; // with more of them, everything may as well be different

// Two lines lie equally near when rounding alone could separate them: of the reach, and of the
// coordinates.
constexpr double kTieOfReach = 1e-9;
constexpr double kTieOfCoordinate = 1e-14;

} // namespace

struct Scene::State {
    explicit State(KdDbDatabase& database)
        : core(database.core()), feed(core), maker(core), cache(kCacheBytes) {}

    DatabaseCore& core;
    ChangeFeed feed;
    AppearanceMaker maker;
    AppearanceCache cache;
    PickIndex pickIndex; // numbers are indexes in the drawing order of model space
    bool isIndexed = false;
    IndexBuild build;                 // of the next index, while this one isn't right any more
    std::vector<KdDbStub*> unindexed; // changed since the index knew them; some may be there twice
    std::vector<std::uint32_t> indexOf;    // by a stub's ordinal
    std::size_t indexedCount = 0;          // entities of model space that have their index
    CompactAppearances compactAppearances; // by index
    std::vector<bool> hasFill;             // by index, as of when the box was made
    Difference difference;
    std::unordered_set<const KdDbStub*> hidden;
    std::vector<KdDbStub*> shownOrHidden; // since the last settlement
    std::function<double()> unitsPerPixel;

    [[nodiscard]] const std::vector<KdDbStub*>& entities() {
        return core.blocks().modelSpace().entities;
    }
    [[nodiscard]] bool isSeen(const KdDbStub& entity, const Appearance& appearance) const {
        return appearance.seen && !hidden.contains(&entity);
    }
    PlanBox boxOf(std::size_t index);

    const Appearance& appearance(const KdDbStub& entity);
    void visitUnkept(KdDbStub& entity,
                     const std::function<void(KdDbStub&, const Appearance&)>& visitor);
    std::vector<KdDbStub*> takeChanges();
    void settle();
    void rebuild();
    void addNewEntities();
    void updateBox(std::uint32_t index);
    bool updateIndex(Deadline deadline);
    bool buildIndex(Deadline deadline);
    bool prepare(Deadline deadline);
    void prepare() { prepare(Deadline::max()); }
    void noteDifference(const PlanBox& area);
};

const Appearance& Scene::State::appearance(const KdDbStub& entity) {
    if (const Appearance* known = cache.find(entity)) {
        return *known;
    }
    return cache.keep(entity, maker.appearance(entity));
}

// Appearances that are made for one walk alone aren't kept: the next one needs all of them again.
void Scene::State::visitUnkept(KdDbStub& entity,
                               const std::function<void(KdDbStub&, const Appearance&)>& visitor) {
    const Appearance* const known = cache.find(entity);
    const Appearance made = known != nullptr ? Appearance{} : maker.appearance(entity);
    const Appearance& appearance = known != nullptr ? *known : made;
    if (isSeen(entity, appearance)) {
        visitor(entity, appearance);
    }
}

std::vector<KdDbStub*> Scene::State::takeChanges() {
    std::vector<KdDbStub*> changed = feed.isEmpty() ? std::vector<KdDbStub*>{} : feed.take();
    changed.insert(changed.end(), shownOrHidden.begin(), shownOrHidden.end());
    shownOrHidden.clear();
    return changed;
}

// Drops what was derived from what changed since the last time.
void Scene::State::settle() {
    maker.startWalk();
    const std::vector<KdDbStub*> changed = takeChanges();
    const auto isShared = [this](const KdDbStub* stub) { return maker.isShared(*stub); };
    // Entities never leave their list, or indexes would have to be given anew.
    const bool isShorter = indexedCount > entities().size();
    if (isShorter || maker.isScaleStale() ||
        std::any_of(changed.begin(), changed.end(), isShared)) {
        // A layer, a style or a block: whatever uses it looks different now.
        maker.forgetShared();
        cache.clear();
        rebuild();
        return;
    }
    if (changed.size() > kManyChanges) {
        cache.clear(); // which takes no time
    } else {
        for (const KdDbStub* stub : changed) {
            cache.drop(*stub);
        }
    }
    unindexed.insert(unindexed.end(), changed.begin(), changed.end());
    if (isIndexed && unindexed.size() > kManyChanges && unindexed.size() > indexedCount / 3) {
        rebuild(); // sooner done than so many changes
    }
}

void Scene::State::rebuild() {
    build.restart();
    unindexed.clear();
    isIndexed = false;
    indexedCount = 0;
    indexOf.clear();
}

void Scene::State::addNewEntities() {
    const auto& all = entities();
    indexOf.resize(core.objects().stubs().size(), kNoIndex);
    for (; indexedCount < all.size(); ++indexedCount) {
        indexOf[all[indexedCount]->ordinal] = static_cast<std::uint32_t>(indexedCount);
        unindexed.push_back(all[indexedCount]);
    }
}

void Scene::State::noteDifference(const PlanBox& area) {
    if (!area.isEmpty() && !difference.everything) {
        difference.areas.push_back(area);
        if (difference.areas.size() > kMostAreas) {
            difference = {.everything = true, .areas = {}};
        }
    }
}

PlanBox Scene::State::boxOf(std::size_t index) {
    const KdDbStub& entity = *entities()[index];
    const auto extent = hidden.contains(&entity) ? AppearanceMaker::Extent{} : maker.extent(entity);
    hasFill.resize(std::max(hasFill.size(), index + 1));
    hasFill[index] = extent.hasFill;
    return extent.box;
}

void Scene::State::updateBox(std::uint32_t index) {
    const PlanBox box = boxOf(index);
    noteDifference(pickIndex.box(index));
    noteDifference(box);
    pickIndex.set(index, box);
    compactAppearances.drop(index);
}

// True when all is done.
bool Scene::State::updateIndex(Deadline deadline) {
    addNewEntities();
    while (!unindexed.empty()) {
        const std::uint32_t index = indexOf[unindexed.back()->ordinal];
        unindexed.pop_back();
        if (index != kNoIndex) {
            updateBox(index);
            if (isOver(deadline)) {
                return unindexed.empty();
            }
        }
    }
    return true;
}

bool Scene::State::buildIndex(Deadline deadline) {
    indexOf.resize(core.objects().stubs().size(), kNoIndex);
    const auto boxAt = [this](std::size_t index) {
        const KdDbStub& entity = *entities()[index];
        indexOf[entity.ordinal] = static_cast<std::uint32_t>(index);
        indexedCount = index + 1;
        return boxOf(index);
    };
    if (!build.advance(entities().size(), boxAt, deadline)) {
        return false;
    }
    // What changed since its box was made is looked at again: it is still among the unindexed.
    build.take(pickIndex);
    compactAppearances.clear();
    difference = {.everything = true, .areas = {}};
    isIndexed = true;
    maker.startWalk();
    return true;
}

// True when all is done.
bool Scene::State::prepare(Deadline deadline) {
    settle();
    return (isIndexed || buildIndex(deadline)) && updateIndex(deadline);
}

Scene::Scene(KdDbDatabase& database) : m_state(std::make_unique<State>(database)) {}

Scene::~Scene() = default;

PlanBox Scene::extents() {
    m_state->prepare();
    return m_state->pickIndex.bounds();
}

const Appearance& Scene::appearance(KdDbStub& entity) {
    m_state->settle();
    return m_state->appearance(entity);
}

void Scene::visit(const PlanBox& area,
                  const std::function<void(KdDbStub&, const Appearance&)>& visitor) {
    m_state->prepare();
    for (const std::uint32_t index : m_state->pickIndex.query(area)) {
        KdDbStub& entity = *m_state->entities()[index];
        visitor(entity, m_state->appearance(entity));
    }
}

void Scene::visitNearest(const PlanBox& area, PlanPoint place, std::size_t most,
                         const std::function<void(KdDbStub&, const Appearance&)>& visitor) {
    m_state->prepare();
    for (const std::uint32_t index : m_state->pickIndex.nearest(area, place, most)) {
        KdDbStub& entity = *m_state->entities()[index];
        visitor(entity, m_state->appearance(entity));
    }
}

void Scene::visitAll(const std::function<void(KdDbStub&, const Appearance&)>& visitor) {
    m_state->settle();
    for (KdDbStub* entity : m_state->entities()) {
        m_state->visitUnkept(*entity, visitor);
    }
}

void Scene::visitFilled(const std::function<void(KdDbStub&, const Appearance&)>& visitor) {
    m_state->prepare();
    if (!m_state->maker.partlyDrawn().empty()) {
        visitAll(visitor); // how much is left out depends on all that is drawn before
        return;
    }
    const auto& all = m_state->entities();
    for (std::size_t index = 0; index < all.size(); ++index) {
        if (m_state->hasFill[index]) {
            m_state->visitUnkept(*all[index], visitor);
        }
    }
}

KdDbStub* Scene::pick(PlanPoint point, double reach) {
    const auto found = picks(point, reach, 0.0);
    return found.empty() ? nullptr : found.front();
}

std::vector<KdDbStub*> Scene::picks(PlanPoint point, double reach, double slack) {
    if (!std::isfinite(point.x) || !std::isfinite(point.y) || !std::isfinite(reach) ||
        reach < 0.0) {
        return {};
    }
    m_state->prepare();
    const PlanBox square{{point.x - reach, point.y - reach}, {point.x + reach, point.y + reach}};
    struct Hit {
        KdDbStub* entity;
        double distance;
    };
    std::vector<Hit> hits; // in drawing order
    double nearest = std::numeric_limits<double>::infinity();
    for (const std::uint32_t index : m_state->pickIndex.query(square)) {
        KdDbStub& entity = *m_state->entities()[index];
        if (const auto distance = pickDistance(m_state->appearance(entity), point, reach)) {
            hits.push_back({&entity, *distance});
            nearest = std::min(nearest, *distance);
        }
    }
    const double tie =
        kTieOfReach * reach + kTieOfCoordinate * std::max(std::abs(point.x), std::abs(point.y));
    std::erase_if(hits, [&](const Hit& hit) { return !(hit.distance <= nearest + slack + tie); });
    std::reverse(hits.begin(), hits.end());
    // Those as near as the nearest stay in this order, whatever rounding made of them.
    std::stable_sort(hits.begin(), hits.end(), [&](const Hit& a, const Hit& b) {
        return std::max(a.distance, nearest + tie) < std::max(b.distance, nearest + tie);
    });
    std::vector<KdDbStub*> found;
    found.reserve(hits.size());
    for (const Hit& hit : hits) {
        found.push_back(hit.entity);
    }
    return found;
}

std::vector<KdDbStub*> Scene::entitiesWithin(const PlanBox& box) {
    m_state->prepare();
    std::vector<KdDbStub*> found;
    for (const std::uint32_t index : m_state->pickIndex.query(box)) {
        if (contains(box, m_state->pickIndex.box(index))) { // which is the box of what is drawn
            found.push_back(m_state->entities()[index]);
        }
    }
    return found;
}

std::vector<KdDbStub*> Scene::entitiesTouching(const PlanBox& box) {
    m_state->prepare();
    std::vector<KdDbStub*> found;
    for (const std::uint32_t index : m_state->pickIndex.query(box)) {
        KdDbStub& entity = *m_state->entities()[index];
        // Most lie in the box as a whole, and their appearances needn't be made.
        if (contains(box, m_state->pickIndex.box(index)) ||
            touches(m_state->appearance(entity), box)) {
            found.push_back(&entity);
        }
    }
    return found;
}

std::vector<KdDbStub*> Scene::allSeen() {
    m_state->prepare();
    std::vector<KdDbStub*> found;
    for (const std::uint32_t index : m_state->pickIndex.query(m_state->pickIndex.bounds())) {
        found.push_back(m_state->entities()[index]);
    }
    return found;
}

KdDbStub* Scene::entityAt(const KdGePoint3d& worldPoint, int pickBoxPixels) {
    const double unitsPerPixel = m_state->unitsPerPixel ? m_state->unitsPerPixel() : 1.0;
    return pick({worldPoint.x, worldPoint.y}, pickBoxPixels * unitsPerPixel);
}

void Scene::setUnitsPerPixel(std::function<double()> unitsPerPixel) {
    m_state->unitsPerPixel = std::move(unitsPerPixel);
}

Appearance Scene::appearanceOf(const KdDbEntity& entity) {
    m_state->settle();
    return m_state->maker.appearance(entity);
}

bool Scene::prepareSome(std::chrono::nanoseconds budget) {
    return m_state->prepare(std::chrono::steady_clock::now() + budget);
}

Scene::Difference Scene::takeDifference() {
    return std::exchange(m_state->difference, {});
}

std::vector<std::uint32_t> Scene::entitiesIn(const PlanBox& area) const {
    return m_state->pickIndex.query(area);
}

const PlanBox& Scene::boxAt(std::uint32_t index) const {
    return m_state->pickIndex.box(index);
}

const Appearance& Scene::appearanceAt(std::uint32_t index) {
    return m_state->appearance(*m_state->entities()[index]);
}

CompactAppearance Scene::compactAppearanceAt(std::uint32_t index) {
    auto words = m_state->compactAppearances.find(index);
    if (words.empty()) {
        // Not kept in the cache, or a walk over the whole drawing would empty them of what is
        // seen all the time.
        const KdDbStub& entity = *m_state->entities()[index];
        const Appearance* known = m_state->cache.find(entity);
        const Appearance made = known != nullptr ? Appearance{} : m_state->maker.appearance(entity);
        words =
            m_state->compactAppearances.keep(index, known != nullptr ? *known : made, boxAt(index));
    }
    return CompactAppearance(words);
}

std::vector<std::uint64_t> Scene::partlyDrawn() const {
    const auto& handles = m_state->maker.partlyDrawn();
    return {handles.begin(), handles.end()};
}

void Scene::showOnlyLayers(const std::vector<std::wstring>& names) {
    m_state->maker.showOnlyLayers(names);
    m_state->cache.clear();
    m_state->rebuild();
}

void Scene::limitRepetitions(std::int64_t inInsert, std::int64_t inAll) {
    m_state->maker.limitRepetitions(inInsert, inAll);
    m_state->cache.clear();
    m_state->rebuild();
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
