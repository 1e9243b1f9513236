#pragma once

#include "Appearance.h"
#include "Failure.h"
#include "ToolWatch.h"

#include <memory>
#include <optional>
#include <vector>

namespace orvex {

class Session;

// What would come of a pick before it is made.
struct ToolGhost {
    struct Outcome {
        KdDbStub* mline = nullptr;
        std::shared_ptr<const MlineContent> content;
    };
    std::vector<Outcome> changed;       // empty where nothing would be
    std::optional<PickRefusal> refusal; // why not
};

// Why the tool that runs wouldn't take a pick of this entity at this point of the current user
// coordinate system, as far as the host can tell without trying; nothing where it may.
std::optional<PickRefusal> refusalOf(Session& session, KdDbStub& entity,
                                     const KdGePoint3d& userPoint);

// What the tool would make of such a pick if it is the last of its cycle, else refusals alone. The
// tool itself is played over copies; the drawing, its undo and the tool that waits never notice.
// Costs what the picked multilines cost, whatever else the drawing holds. Fails only where the
// module can't be loaded.
Result<ToolGhost> toolGhost(Session& session, KdDbStub& entity, const KdGePoint3d& userPoint);

// What an outcome would look like in the drawing.
Appearance appearanceOf(Session& session, const ToolGhost::Outcome& outcome);

} // namespace orvex
