#pragma once

#include "SelectionMemory.h"
#include "UndoLog.h"

namespace orvex {

// LASTPOINT and what is selected go back and forth with the steps of undo; of a selection only what
// the drawing has then. What the last command was given stays at hand as the previous selection, so
// that it can be given to another one after an undo.
class StepMemory final : public UndoCompanion {
public:
    explicit StepMemory(SelectionMemory& selection) : m_selection(selection) {}

    [[nodiscard]] std::any state() const override;
    void restore(const std::any& state) override;

private:
    SelectionMemory& m_selection;
};

} // namespace orvex
