#pragma once

#include "Appearance.h"
#include "viewChange.h"

#include <cstddef>
#include <cstdint>
#include <optional>

struct KdDbStub;

namespace orvex {

class Session;

// Which of the entities that lie together a click takes: the nearest, and where it was clicked
// before the one after that.
class OverlapPicks {
public:
    struct Choice {
        KdDbStub* entity = nullptr; // null where there is nothing
        std::size_t index = 0;      // among `count`, from 0
        std::size_t count = 0;
    };

    // What a click would take.
    [[nodiscard]] Choice at(Session& session, PlanPoint place) const;
    // What this click takes.
    Choice take(Session& session, PlanPoint place);
    void forget() { m_last.reset(); }

private:
    struct Click {
        PlanPoint place;
        ViewState view;
        std::uint64_t handle = 0; // of what it took
    };
    std::optional<Click> m_last;
};

} // namespace orvex
