#include "StepMemory.h"

#include "PromptSession.h"

namespace orvex {

namespace {

struct Remembered {
    KdGePoint3d lastPoint;
    std::vector<KdDbStub*> chosen;
    std::vector<KdDbStub*> previous;
};

} // namespace

std::any StepMemory::state() const {
    return Remembered{PromptSession::current().lastPoint, m_selection.chosen, m_selection.previous};
}

void StepMemory::restore(const std::any& state) {
    const auto* const remembered = std::any_cast<Remembered>(&state);
    if (remembered == nullptr) {
        return;
    }
    PromptSession::current().lastPoint = remembered->lastPoint;
    m_selection.chosen = remembered->chosen;
    m_selection.previous = remembered->previous;
    for (auto* const entities : {&m_selection.chosen, &m_selection.previous}) {
        std::erase_if(*entities, [](const KdDbStub* entity) { return entity->erased; });
    }
}

} // namespace orvex
