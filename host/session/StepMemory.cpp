#include "StepMemory.h"

#include "PromptSession.h"

namespace orvex {

namespace {

struct Remembered {
    KdGePoint3d lastPoint;
    std::vector<KdDbStub*> chosen;
};

} // namespace

std::any StepMemory::state() const {
    return Remembered{PromptSession::current().lastPoint, m_selection.chosen};
}

void StepMemory::restore(const std::any& state) {
    const auto* const remembered = std::any_cast<Remembered>(&state);
    if (remembered == nullptr) {
        return;
    }
    PromptSession::current().lastPoint = remembered->lastPoint;
    m_selection.chosen = remembered->chosen;
    std::erase_if(m_selection.chosen, [](const KdDbStub* entity) { return entity->erased; });
}

} // namespace orvex
