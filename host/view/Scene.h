#pragma once

#include "Appearance.h"
#include "CompactAppearance.h"
#include "PromptSession.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

class KdDbDatabase;
class KdDbEntity;
struct KdDbStub;

namespace orvex {

// What the model space of a drawing looks like: appearances made on demand and kept, and a spatial
// index over them. Both follow changes lazily; neither a query nor an edit costs more in a larger
// drawing. The index is built in bulk at the first query.
class Scene final : public EntityFinder {
public:
    explicit Scene(KdDbDatabase& database);
    ~Scene() override;
    Scene(const Scene&) = delete;
    Scene& operator=(const Scene&) = delete;

    // Of all visible strokes of model space; empty where there is nothing.
    [[nodiscard]] PlanBox extents();

    // The appearance of one entity as it is now. The reference stays valid until the next query.
    [[nodiscard]] const Appearance& appearance(KdDbStub& entity);

    // What an entity that isn't part of the drawing would look like in its model space.
    [[nodiscard]] Appearance appearanceOf(const KdDbEntity& entity);

    // Visits every seen entity whose box meets `area`, in drawing order.
    void visit(const PlanBox& area,
               const std::function<void(KdDbStub&, const Appearance&)>& visitor);
    // The same of at most `most` entities, those whose boxes are nearest to the place.
    void visitNearest(const PlanBox& area, PlanPoint place, std::size_t most,
                      const std::function<void(KdDbStub&, const Appearance&)>& visitor);
    // Every seen entity in drawing order.
    void visitAll(const std::function<void(KdDbStub&, const Appearance&)>& visitor);
    // The same of those that have areas, for hardly more than these take.
    void visitFilled(const std::function<void(KdDbStub&, const Appearance&)>& visitor);

    // The entity one of whose drawn lines passes through the square that reaches `reach` drawing
    // units to each side of the point: the nearest, and of equally near ones the one drawn later.
    // Null when there is none.
    [[nodiscard]] KdDbStub* pick(PlanPoint point, double reach);
    // What pick() would find, first, and all else that passes through the square at most `slack`
    // drawing units further from the point: the nearest first, of equally near ones the one drawn
    // later. One after the other they are what a user may mean by the same place.
    [[nodiscard]] std::vector<KdDbStub*> picks(PlanPoint point, double reach, double slack);
    // What a box selects, in drawing order: seen entities all of whose lines, fills and texts lie
    // within it, or any of them touches it. Edges count.
    [[nodiscard]] std::vector<KdDbStub*> entitiesWithin(const PlanBox& box);
    [[nodiscard]] std::vector<KdDbStub*> entitiesTouching(const PlanBox& box);
    // Every seen entity, in drawing order.
    [[nodiscard]] std::vector<KdDbStub*> allSeen();

    KdDbStub* entityAt(const KdGePoint3d& worldPoint, int pickBoxPixels) override;

    // Drawing units a pixel, which turns pick boxes into reaches.
    void setUnitsPerPixel(std::function<double()> unitsPerPixel);

    // Handles of the entities that are drawn in part, in ascending order, as far as boxes or
    // appearances were made: their blocks insert each other too often for all of it.
    [[nodiscard]] std::vector<std::uint64_t> partlyDrawn() const;

    // Entities on other layers are neither drawn nor found; all are again without names.
    void showOnlyLayers(const std::vector<std::wstring>& names);
    // How many entities blocks within blocks may repeat in one insert, and in all of them together.
    void limitRepetitions(std::int64_t inInsert, std::int64_t inAll);

    // Hidden entities are neither drawn nor found.
    void hide(KdDbStub& entity);
    void show(KdDbStub& entity);

    // Brings the index up to date for about `budget`; true when nothing is left to be done. The
    // questions above do the rest at once, however much it is.
    bool prepareSome(std::chrono::nanoseconds budget);

    // What looks different from what it did at the last call, as far as the index knows.
    struct Difference {
        bool everything = false;
        std::vector<PlanBox> areas; // of changed entities, before and after
        [[nodiscard]] bool isEmpty() const { return !everything && areas.empty(); }
    };
    [[nodiscard]] Difference takeDifference();

    // For painting in steps: the seen entities whose boxes meet `area`, as indexes in the drawing
    // order, without bringing the spatial index up to date. Valid as long as prepareSome is true.
    [[nodiscard]] std::vector<std::uint32_t> entitiesIn(const PlanBox& area) const;
    [[nodiscard]] const PlanBox& boxAt(std::uint32_t index) const;
    // The reference stays valid until the next question.
    [[nodiscard]] const Appearance& appearanceAt(std::uint32_t index);
    // For entities that cover few pixels. Valid until the next question.
    [[nodiscard]] CompactAppearance compactAppearanceAt(std::uint32_t index);

private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace orvex
