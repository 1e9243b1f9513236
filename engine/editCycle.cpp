// The cycle of picks and edits that all tools share; what differs stands in their rows.

#include "CMlineEdit.h"

#include "CMlineOpenObject.h"
#include "KdDbMline.h"
#include "commandLine.h"
#include "displayRefresh.h"
#include "kddbObjects.h"
#include "mlineRecord.h"
#include "pickTests.h"
#include "promptLibrary.h"
#include "promptStatus.h"
#include "resourceLibrary.h"
#include "segments.h"
#include "systemVariables.h"
#include "textNumbers.h"

#include <cwchar>

namespace {

enum RedrawMode { kShow = 1, kHide = 2, kRefresh = 4 };

bool endsTool(int status) {
    return status == kPromptCancelled || status == kPromptNone;
}

// The host says so when the user can't be asked any more.
bool isInputClosed() {
    constexpr short kClosed = 52;
    resbuf number;
    kdedGetVar(L"ERRNO", &number);
    return number.resval.rint == kClosed;
}

void loadText(HINSTANCE resources, unsigned number, wchar_t (&buffer)[kPromptTextSize]) {
    LoadStringW(resources, number, buffer, kPromptTextSize);
}

void discard(KdDbMline*& copy) {
    delete copy;
    copy = nullptr;
}

void closeAndClear(KdDbMline*& mline) {
    if (mline != nullptr) {
        mline->close();
        mline = nullptr;
    }
}

} // namespace

int CMlineEdit::runTool(const EditTool& tool, HINSTANCE resources) {
    if (tool.step == nullptr) {
        return m_status;
    }
    for (;;) {
        Prompted prompted = askFirst(tool, resources);
        if (prompted == Prompted::picked) {
            (this->*tool.initialise)(&m_first, m_pickedName, nullptr);
            if (tool.secondPick != EditTool::SecondPick::none) {
                prompted = askSecond(tool, resources);
            }
        }
        if (prompted == Prompted::leave) {
            closeAtExit(tool);
            return m_status;
        }
        if (prompted == Prompted::again) {
            continue;
        }
        if (tool.secondPick != EditTool::SecondPick::none) {
            (this->*tool.initialise)(&m_second, m_pickedName, &m_first);
        }
        workOnPicks(tool, resources);
    }
}

CMlineEdit::Prompted CMlineEdit::askFirst(const EditTool& tool, HINSTANCE resources) {
    if (m_undoFirst != nullptr) {
        loadText(resources, mledit::texts::kUndoKeyword, m_buffer);
        kdedInitGet(0, m_buffer);
        loadText(resources, tool.prompts.firstWithUndo, m_buffer);
    } else {
        kdedInitGet(0, nullptr);
        loadText(resources, tool.prompts.first, m_buffer);
    }
    m_status = kdedEntSel(m_buffer, m_pickedName, m_pickedPoint);
    if (endsTool(m_status) || (m_status == kPromptError && isInputClosed())) {
        return Prompted::leave;
    }
    if (m_status == kPromptKeyword) {
        kdedGetInput(m_buffer);
        if (wcscasecmp(m_buffer, L"UNDO") == 0) {
            takeBackLastCycle(tool);
        }
    }
    // The name alone decides, whatever the status: a keyword or a miss finds it empty.
    const bool accepted = tool.firstPick == EditTool::FirstPick::anyEntity
                              ? m_pickedName[0] != 0 || m_pickedName[1] != 0
                              : needBreak(m_pickedName);
    if (!accepted || (tool.refusesClosedFirst && isRefusedAsClosed(resources))) {
        return Prompted::again;
    }
    return Prompted::picked;
}

// Repeats its prompt without a word till the pick is accepted. No keyword is armed: UNDO is for
// the first pick alone.
CMlineEdit::Prompted CMlineEdit::askSecond(const EditTool& tool, HINSTANCE resources) {
    loadText(resources, tool.prompts.second, m_buffer);
    bool accepted = false;
    while (!accepted) {
        m_status = kdedEntSel(m_buffer, m_pickedName, m_pickedPoint);
        if (endsTool(m_status)) {
            return Prompted::leave;
        }
        accepted = tool.secondPick == EditTool::SecondPick::sameEntity
                       ? isSameEntity(m_pickedName, m_first.m_name)
                       : needBreak(m_pickedName);
    }
    return tool.refusesClosedSecond && isRefusedAsClosed(resources) ? Prompted::again
                                                                    : Prompted::picked;
}

bool CMlineEdit::isRefusedAsClosed(HINSTANCE resources) {
    KdDbObjectId id;
    kddbGetObjectId(id, m_pickedName);
    KdDbMline* mline = nullptr;
    kddbOpenObject(mline, id, kForRead);
    if (mline == nullptr) {
        return true;
    }
    int flags = 0;
    GetFlag(mline, &flags);
    if ((flags & kFlagClosed) != 0) {
        // Stays open for read; the host closes it at the end of the command.
        loadText(resources, mledit::texts::kClosedRefused, m_buffer);
        kdutPrintf(L"%ls", m_buffer);
        return true;
    }
    mline->close();
    return false;
}

void CMlineEdit::takeBackLastCycle(const EditTool& tool) {
    const auto takeBack = [this](CMlineSegment& record, KdDbMline*& copy, bool hides) {
        if (hides) {
            kdedRedraw(record.m_name, kHide);
        }
        MlineCopy(record.m_name, copy);
        discard(copy);
        kdedRedraw(record.m_name, kShow);
    };
    takeBack(m_first, m_undoFirst, tool.hidesFirst);
    if (tool.undoCopies == 2 && !isSameEntity(m_first.m_name, m_second.m_name)) {
        takeBack(m_second, m_undoSecond, tool.hidesSecond);
    }
}

void CMlineEdit::workOnPicks(const EditTool& tool, HINSTANCE resources) {
    const CMlineOpenObject open(&m_first, &m_second);
    renewUndoCopies(tool);
    const StepOutcome outcome = runStep(tool);
    if (outcome == StepOutcome::done) {
        kdedRedraw(nullptr, kRefresh);
        return;
    }
    if (outcome == StepOutcome::noCrossing) {
        loadText(resources, mledit::texts::kNoCrossing, m_buffer);
        kdutPrintf(L"%ls", m_buffer);
    }
    discard(m_undoFirst);
    if (tool.undoCopies == 2) {
        discard(m_undoSecond);
    }
}

void CMlineEdit::renewUndoCopies(const EditTool& tool) {
    const auto renew = [this](KdDbMline*& copy, KdDbMline* source) {
        discard(copy);
        copy = new KdDbMline;
        MlineCopy(copy, source);
    };
    renew(m_undoFirst, m_first.m_mline);
    if (tool.undoCopies == 2 && !isSameEntity(m_first.m_name, m_second.m_name)) {
        renew(m_undoSecond, m_second.m_mline);
    }
}

// Only what can be worked on reaches the tool's step. Welding something that is no multiline
// counts as done.
StepOutcome CMlineEdit::runStep(const EditTool& tool) {
    const bool twoPicks = tool.secondPick != EditTool::SecondPick::none;
    if (tool.firstPick == EditTool::FirstPick::anyEntity && m_first.m_mline == nullptr) {
        return StepOutcome::done;
    }
    if (!isUsable(m_first) || (twoPicks && !isUsable(m_second))) {
        return StepOutcome::failedSilently;
    }
    return (this->*tool.step)();
}

void CMlineEdit::closeAtExit(const EditTool& tool) {
    if (tool.closesAtExit == EditTool::Closes::neither) {
        return;
    }
    closeAndClear(m_first.m_mline);
    if (tool.closesAtExit == EditTool::Closes::both) {
        closeAndClear(m_second.m_mline);
    }
}
