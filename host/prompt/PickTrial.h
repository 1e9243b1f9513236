#pragma once

#include "Failure.h"
#include "KdGePoint3d.h"

#include <functional>
#include <memory>

class KdDbEntity;
struct KdDbStub;

namespace orvex {

// What picking an entity at a place (world) would make of it, not in any drawing, or why it
// wouldn't. Changes nothing.
using PickTrial =
    std::function<Result<std::unique_ptr<KdDbEntity>>(KdDbStub& entity, const KdGePoint3d& place)>;

// Lets a window try the picks that are asked for while it lives; one at a time.
class PickTrialScope {
public:
    explicit PickTrialScope(PickTrial trial);
    ~PickTrialScope();
    PickTrialScope(const PickTrialScope&) = delete;
    PickTrialScope& operator=(const PickTrialScope&) = delete;

    // Null where the command that runs has none.
    [[nodiscard]] static const PickTrial& current();
};

} // namespace orvex
