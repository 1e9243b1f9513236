#include "UndoLog.h"

#include "DatabaseCore.h"

#include <cstddef>
#include <utility>

namespace orvex {

void UndoLog::begin(std::wstring command) {
    m_command = std::move(command);
    m_before = companionState();
    m_segments.clear();
    m_segments.emplace_back(m_core);
    m_rolledBack.clear();
    m_marksMemory = 0;
}

std::any UndoLog::companionState() const {
    return m_companion != nullptr ? m_companion->state() : std::any();
}

bool UndoLog::end() {
    noteNews();
    StateImages images = std::move(m_segments.front());
    for (std::size_t i = 1; i < m_segments.size(); ++i) {
        images.append(std::move(m_segments[i]));
    }
    m_segments.clear();
    images.dropWhatIsAsBefore();
    const bool isStep = !images.isEmpty();
    if (isStep) {
        images.finish();
        forgetRedo();
        const std::size_t memory = images.memoryUse();
        StepName name{m_command, images.countMultilines(), images.countEntities()};
        m_done.push_back({std::move(images), std::move(name), m_before, companionState(), memory});
        m_memory += memory;
    } else {
        images.restoreVariables();
    }
    keepRolledBack();
    m_before.reset();
    keepWithinLimit();
    return isStep;
}

// Cycles of the command that were rolled back are steps that were taken back.
void UndoLog::keepRolledBack() {
    if (!m_undone.empty()) {
        m_rolledBack.clear();
    }
    for (StateImages& images : m_rolledBack) {
        images.finish();
        const std::size_t memory = images.memoryUse();
        StepName name{m_command, images.countMultilines(), images.countEntities()};
        m_undone.push_back({std::move(images), std::move(name), m_before, m_before, memory});
        m_memory += memory;
    }
    m_rolledBack.clear();
}

void UndoLog::keepWithinLimit() {
    while (m_memory > m_memoryLimit && m_done.size() > 1) {
        m_memory -= m_done.front().memory;
        m_done.pop_front();
        ++m_dropped;
    }
}

bool UndoLog::isTakenBack(const StateImages& last, const StateImages& before) {
    StateImages both = before;
    both.append(StateImages(last));
    both.dropWhatIsAsBefore();
    return both.isEmpty();
}

void UndoLog::joinLastSegments() {
    StateImages last = std::move(m_segments.back());
    m_segments.pop_back();
    current().append(std::move(last));
    current().dropWhatIsAsBefore();
}

// What was rolled back doesn't fit on top of anything new.
void UndoLog::noteNews() {
    current().dropWhatIsAsBefore();
    if (!current().isEmpty()) {
        m_rolledBack.clear();
    }
}

bool UndoLog::mark() {
    noteNews();
    if (current().isEmpty()) {
        return false;
    }
    const std::size_t count = m_segments.size();
    if (count > 1 && isTakenBack(m_segments[count - 1], m_segments[count - 2])) {
        joinLastSegments();
        return false;
    }
    m_marksMemory += current().memoryUse();
    keepMarksWithinLimit();
    m_segments.emplace_back(m_core);
    return true;
}

void UndoLog::keepMarksWithinLimit() {
    const auto half = static_cast<std::ptrdiff_t>(m_segments.size() / 2);
    if (m_marksMemory <= m_memoryLimit || half < 2) {
        return;
    }
    for (auto each = m_segments.begin() + 1; each != m_segments.begin() + half; ++each) {
        m_segments.front().append(std::move(*each));
    }
    m_segments.erase(m_segments.begin() + 1, m_segments.begin() + half);
    m_marksMemory = 0;
    for (const StateImages& each : m_segments) {
        m_marksMemory += each.memoryUse();
    }
}

bool UndoLog::rollBack() {
    noteNews();
    if (current().isEmpty() && m_segments.size() > 1) {
        joinLastSegments();
    }
    if (current().isEmpty()) {
        return false;
    }
    exchange(current());
    m_rolledBack.push_back(std::move(m_segments.back()));
    m_segments.back() = StateImages(m_core);
    return true;
}

bool UndoLog::rollForward() {
    noteNews();
    if (m_rolledBack.empty()) {
        return false;
    }
    exchange(m_rolledBack.back());
    m_segments.back() = std::move(m_rolledBack.back());
    m_rolledBack.pop_back();
    m_segments.emplace_back(m_core);
    return true;
}

void UndoLog::exchange(StateImages& images) {
    m_isRestoring = true;
    images.exchange();
    m_isRestoring = false;
}

bool UndoLog::step(std::deque<Step>& from, std::deque<Step>& to, std::any Step::*state) {
    if (from.empty()) {
        return false;
    }
    Step step = std::move(from.back());
    from.pop_back();
    exchange(step.images);
    m_memory -= step.memory;
    step.memory = step.images.memoryUse();
    m_memory += step.memory;
    if (m_companion != nullptr) {
        m_companion->restore(step.*state);
    }
    to.push_back(std::move(step));
    return true;
}

bool UndoLog::undo() {
    return step(m_done, m_undone, &Step::before);
}

bool UndoLog::redo() {
    return step(m_undone, m_done, &Step::after);
}

const StepName* UndoLog::nextUndo() const {
    return m_done.empty() ? nullptr : &m_done.back().name;
}

const StepName* UndoLog::nextRedo() const {
    return m_undone.empty() ? nullptr : &m_undone.back().name;
}

void UndoLog::forgetRedo() {
    for (const Step& step : m_undone) {
        m_memory -= step.memory;
    }
    m_undone.clear();
}

// The step to be brought again last goes furthest.
std::uint64_t UndoLog::highestRedoHandle() const {
    return m_undone.empty() ? 0 : m_undone.front().images.highestHandle();
}

} // namespace orvex
