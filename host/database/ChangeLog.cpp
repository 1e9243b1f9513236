#include "ChangeLog.h"

#include "ChangeFeed.h"
#include "DatabaseCore.h"
#include "UndoLog.h"

#include <limits>
#include <stdexcept>
#include <utility>

namespace orvex {

ChangeLog::ChangeLog(DatabaseCore& core) : m_core(core), m_undo(std::make_unique<UndoLog>(core)) {}

ChangeLog::~ChangeLog() {
    for (ChangeFeed* const feed : m_feeds) {
        feed->m_log = nullptr;
        feed->m_pending.clear();
    }
}

// What changes outside of commands is no step, but steps taken back don't fit any more.
bool ChangeLog::keepsChanges() {
    if (m_undo->isRestoring()) {
        return false;
    }
    if (!m_inCommand) {
        m_undo->forgetRedo();
    }
    return m_inCommand;
}

void ChangeLog::noteChange(KdDbStub& stub) {
    if (m_isPaused) {
        return;
    }
    if (keepsChanges()) {
        m_undo->current().keep(stub);
    }
    notify(stub);
}

void ChangeLog::noteMade(KdDbStub& stub) {
    if (m_isPaused) {
        return;
    }
    if (keepsChanges()) {
        m_undo->current().keepMade(stub);
    }
    notify(stub);
}

void ChangeLog::noteVariable(std::string_view name) {
    if (keepsChanges()) {
        m_undo->current().keepVariable(name);
    }
}

void ChangeLog::notify(KdDbStub& stub) {
    if (!stub.changed) {
        stub.changed = true;
        m_changed.push_back(&stub);
    }
    tellFeeds(stub);
}

void ChangeLog::tellFeeds(KdDbStub& stub) {
    for (ChangeFeed* const feed : m_feeds) {
        if ((stub.pendingFeeds & feed->m_bit) == 0) {
            stub.pendingFeeds = static_cast<std::uint8_t>(stub.pendingFeeds | feed->m_bit);
            feed->m_pending.push_back(&stub);
        }
    }
}

void ChangeLog::beginCommand(std::wstring name) {
    if (!m_inCommand) {
        m_undo->begin(std::move(name)); // may find no memory
        m_inCommand = true;
    }
}

bool ChangeLog::endCommand() {
    m_core.closeAll();
    if (!m_inCommand) {
        return false;
    }
    m_inCommand = false;
    return m_undo->end();
}

bool ChangeLog::undo() {
    if (m_inCommand) {
        return false;
    }
    m_core.closeAll();
    return m_undo->undo();
}

bool ChangeLog::redo() {
    if (m_inCommand) {
        return false;
    }
    m_core.closeAll();
    return m_undo->redo();
}

std::size_t ChangeLog::undoDepth() const {
    return m_undo->depth();
}

std::size_t ChangeLog::redoDepth() const {
    return m_undo->redoDepth();
}

const StepName* ChangeLog::nextUndo() const {
    return m_undo->nextUndo();
}

const StepName* ChangeLog::nextRedo() const {
    return m_undo->nextRedo();
}

std::uint64_t ChangeLog::highestRedoHandle() const {
    return m_undo->highestRedoHandle();
}

bool ChangeLog::mark() {
    return m_inCommand && m_undo->mark();
}

bool ChangeLog::rollBackToMark() {
    return m_inCommand && m_undo->rollBack();
}

bool ChangeLog::rollForward() {
    return m_inCommand && m_undo->rollForward();
}

void ChangeLog::attach(ChangeFeed& feed) {
    unsigned taken = 0;
    for (const ChangeFeed* const other : m_feeds) {
        taken |= other->m_bit;
    }
    unsigned bit = 1;
    while ((taken & bit) != 0) {
        bit <<= 1U;
    }
    if (bit > std::numeric_limits<std::uint8_t>::max()) {
        throw std::length_error("too many change feeds");
    }
    feed.m_bit = static_cast<std::uint8_t>(bit);
    m_feeds.push_back(&feed);
}

void ChangeLog::detach(ChangeFeed& feed) {
    static_cast<void>(feed.take());
    std::erase(m_feeds, &feed);
}

} // namespace orvex
