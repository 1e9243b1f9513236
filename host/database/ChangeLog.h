#pragma once

#include "KdDbStub.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace orvex {

class ChangeFeed;
class DatabaseCore;
class UndoLog;
struct StepName;

// What changed in a database: who is told of it, what saving looks at, and what undo takes back.
class ChangeLog {
public:
    explicit ChangeLog(DatabaseCore& core);
    ~ChangeLog();
    ChangeLog(const ChangeLog&) = delete;
    ChangeLog& operator=(const ChangeLog&) = delete;

    // Objects that may differ from the file, new ones included, in the order of their first
    // change.
    [[nodiscard]] const std::vector<KdDbStub*>& changedStubs() const { return m_changed; }

    // The name is for people.
    void beginCommand(std::wstring name = {});
    // Closes what is open and makes one undo step of all that changed; false when nothing did.
    bool endCommand();
    // Takes the last step back; false when there is none, and during a command.
    bool undo();
    // Brings the last step taken back again, until something new is done; false as for undo.
    bool redo();
    [[nodiscard]] bool inCommand() const { return m_inCommand; }
    [[nodiscard]] std::size_t undoDepth() const;    // steps that can be taken back
    [[nodiscard]] std::size_t redoDepth() const;    // and brought again
    [[nodiscard]] const StepName* nextUndo() const; // null when there is none
    [[nodiscard]] const StepName* nextRedo() const;

    // Marks of the running command, see UndoLog. Nothing outside of commands.
    bool mark();
    bool rollBackToMark();
    bool rollForward();

    // Steps, their memory, and what goes with them.
    [[nodiscard]] UndoLog& steps() { return *m_undo; }

    void attach(ChangeFeed& feed);
    void detach(ChangeFeed& feed);

    // ---- what the database reports -----------------------------------------------------------
    // Before an object changes: keeps what it was once in a command and tells the feeds.
    void noteChange(KdDbStub& stub);
    // After an object was made.
    void noteMade(KdDbStub& stub);
    // Before a variable of the header changes.
    void noteVariable(std::string_view name);
    // Handles up to it belong to what may be brought again; 0 for none.
    [[nodiscard]] std::uint64_t highestRedoHandle() const;
    // Only tells who follows the changes; nothing is kept for undo.
    void notify(KdDbStub& stub);

    // What is made while one lives comes with every drawing: it is no change.
    class Pause {
    public:
        explicit Pause(ChangeLog& log) : m_log(log), m_before(log.m_isPaused) {
            m_log.m_isPaused = true;
        }
        ~Pause() { m_log.m_isPaused = m_before; }
        Pause(const Pause&) = delete;
        Pause& operator=(const Pause&) = delete;

    private:
        ChangeLog& m_log;
        bool m_before;
    };
    [[nodiscard]] bool isPaused() const { return m_isPaused; }

private:
    [[nodiscard]] bool keepsChanges();
    void tellFeeds(KdDbStub& stub);

    DatabaseCore& m_core;
    std::vector<KdDbStub*> m_changed;
    std::vector<ChangeFeed*> m_feeds;
    std::unique_ptr<UndoLog> m_undo;
    bool m_inCommand = false;
    bool m_isPaused = false;
};

} // namespace orvex
