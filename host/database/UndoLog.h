#pragma once

#include "StateImages.h"

#include <any>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <vector>

namespace orvex {

// What a step is for people: "MOVE", 12 multilines.
struct StepName {
    std::wstring command;
    std::size_t multilines = 0; // changed, made or erased
    std::size_t entities = 0;   // the same, of any kind
};

// What goes back and forth with the steps though the drawing doesn't hold it.
class UndoCompanion {
public:
    virtual ~UndoCompanion() = default;

    [[nodiscard]] virtual std::any state() const = 0;
    virtual void restore(const std::any& state) = 0;
};

// What commands changed, so that whole commands can be taken back, and brought again until
// something new is done. During a command it keeps what each object and variable was before its
// first change; at the end what turns out the same as before is dropped, and the rest becomes a
// step. A command that changed nothing makes none.
//
// A running command has marks, to which it can be rolled back. A mark costs what changed since the
// one before, whatever the size of the drawing.
class UndoLog {
public:
    static constexpr std::size_t kDefaultMemoryLimit = std::size_t{1} << 30U; // bytes

    explicit UndoLog(DatabaseCore& core) : m_core(core) {}

    void begin(std::wstring command);
    // What changes now. Only during a command.
    [[nodiscard]] StateImages& current() { return m_segments.back(); }
    // True when it made a step.
    bool end();

    // A place in the running command to which rollBack leads. None is made, and false returned,
    // where nothing changed since the mark before, or where all that changed since one more before
    // was taken back.
    bool mark();
    // Takes back what changed since the last mark; where nothing did, since the one before. False
    // when the drawing is as it was at the command's begin.
    bool rollBack();
    // Brings again what was rolled back last, until something new is done in the command. What is
    // left of it at the command's end is brought again by redo, unless the command changed nothing
    // and an older step is waiting for that.
    bool rollForward();

    // Takes the last step back, brings the last one taken back again; false when there is none.
    bool undo();
    bool redo();
    [[nodiscard]] std::size_t depth() const { return m_done.size(); }
    [[nodiscard]] std::size_t redoDepth() const { return m_undone.size(); }
    [[nodiscard]] const StepName* nextUndo() const; // null when there is none
    [[nodiscard]] const StepName* nextRedo() const;
    void forgetRedo();
    // The highest handle that steps to be brought again need; 0 for none.
    [[nodiscard]] std::uint64_t highestRedoHandle() const;
    [[nodiscard]] bool isRestoring() const { return m_isRestoring; }

    // About as much memory as all steps may hold, from the next step on. The oldest go first; the
    // latest always stays. The marks of a command may hold as much again, then the older half goes.
    void setMemoryLimit(std::size_t bytes) { m_memoryLimit = bytes; }
    [[nodiscard]] std::size_t droppedSteps() const { return m_dropped; }

    // Not owned; null for none.
    void setCompanion(UndoCompanion* companion) { m_companion = companion; }

private:
    struct Step {
        StateImages images;
        StepName name;
        std::any before; // of the companion
        std::any after;
        std::size_t memory = 0; // bytes, about
    };
    void exchange(StateImages& images);
    bool step(std::deque<Step>& from, std::deque<Step>& to, std::any Step::*state);
    [[nodiscard]] std::any companionState() const;
    [[nodiscard]] static bool isTakenBack(const StateImages& last, const StateImages& before);
    void joinLastSegments();
    void noteNews();
    void keepMarksWithinLimit();
    void keepRolledBack();
    void keepWithinLimit();

    DatabaseCore& m_core;
    std::vector<StateImages> m_segments;   // of the running command, one from each mark on
    std::vector<StateImages> m_rolledBack; // the next one to bring again is the last
    std::wstring m_command;
    std::any m_before;
    std::deque<Step> m_done;
    std::deque<Step> m_undone; // the next one to bring again is the last
    UndoCompanion* m_companion = nullptr;
    std::size_t m_memory = 0;
    std::size_t m_marksMemory = 0;
    std::size_t m_memoryLimit = kDefaultMemoryLimit;
    std::size_t m_dropped = 0;
    bool m_isRestoring = false;
};

} // namespace orvex
