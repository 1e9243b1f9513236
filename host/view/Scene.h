#pragma once

#include "Appearance.h"
#include "PromptSession.h"

#include <functional>
#include <memory>
#include <vector>

class KdDbDatabase;
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

    // The look of one entity as it is now. The reference stays valid till the next query.
    [[nodiscard]] const Appearance& appearance(KdDbStub& entity);

    // Visits every seen entity whose box meets `area`, in drawing order.
    void visit(const PlanBox& area,
               const std::function<void(KdDbStub&, const Appearance&)>& visitor);
    // Every seen entity in drawing order.
    void visitAll(const std::function<void(KdDbStub&, const Appearance&)>& visitor);

    // The entity one of whose drawn lines passes through the square that reaches `reach` drawing
    // units to each side of the point: the nearest, and of equally near ones the one drawn later.
    // Null when there is none.
    [[nodiscard]] KdDbStub* pick(PlanPoint point, double reach);
    KdDbStub* entityAt(const KdGePoint3d& worldPoint, int pickBoxPixels) override;

    // Drawing units a pixel, which turns pick boxes into reaches.
    void setUnitsPerPixel(std::function<double()> unitsPerPixel);

    // Hidden entities are neither drawn nor found.
    void hide(KdDbStub& entity);
    void show(KdDbStub& entity);

private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace orvex
