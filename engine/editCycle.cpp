#include "editCycle.h"

#include "CMlineEdit.h"
#include "CMlineOpenObject.h"
#include "EditTool.h"
#include "KdDbMline.h"
#include "commandOutput.h"
#include "displayRefresh.h"
#include "kddbObjects.h"
#include "mlineAccessors.h"
#include "pickTests.h"
#include "promptLibrary.h"
#include "promptStatus.h"
#include "resourceLibrary.h"
#include "systemVariables.h"
#include "textNumbers.h"

#include <cwchar>

namespace mledit {

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

enum class Prompted { leave, again, picked };

bool isRefusedAsClosed(CMlineEdit& run, HINSTANCE resources) {
    KdDbObjectId id;
    kddbGetObjectId(id, run.m_pickedName);
    KdDbMline* mline = nullptr;
    kddbOpenObject(mline, id, kForRead);
    if (mline == nullptr) {
        return true;
    }
    int flags = 0;
    GetFlag(mline, &flags);
    if ((flags & kFlagClosed) != 0) {
        // Stays open for read; the host closes it at the end of the command.
        loadText(resources, texts::kClosedRefused, run.m_buffer);
        kdutPrintf(L"%ls", run.m_buffer);
        return true;
    }
    mline->close();
    return false;
}

void takeBackLastCycle(CMlineEdit& run, const EditTool& tool) {
    const auto takeBack = [&run](CMlineSegment& record, KdDbMline*& copy, bool hides) {
        if (hides) {
            kdedRedraw(record.m_name, kHide);
        }
        run.MlineCopy(record.m_name, copy);
        discard(copy);
        kdedRedraw(record.m_name, kShow);
    };
    takeBack(run.m_first, run.m_undoFirst, tool.hidesFirst);
    if (tool.undoCopies == 2 && !isSameEntity(run.m_first.m_name, run.m_second.m_name)) {
        takeBack(run.m_second, run.m_undoSecond, tool.hidesSecond);
    }
}

Prompted askFirst(CMlineEdit& run, const EditTool& tool, HINSTANCE resources) {
    if (run.m_undoFirst != nullptr) {
        loadText(resources, texts::kUndoKeyword, run.m_buffer);
        kdedInitGet(0, run.m_buffer);
        loadText(resources, tool.prompts.firstWithUndo, run.m_buffer);
    } else {
        kdedInitGet(0, nullptr);
        loadText(resources, tool.prompts.first, run.m_buffer);
    }
    run.m_status = kdedEntSel(run.m_buffer, run.m_pickedName, run.m_pickedPoint);
    if (endsTool(run.m_status) || (run.m_status == kPromptError && isInputClosed())) {
        return Prompted::leave;
    }
    if (run.m_status == kPromptKeyword) {
        kdedGetInput(run.m_buffer);
        if (wcscasecmp(run.m_buffer, L"UNDO") == 0) {
            takeBackLastCycle(run, tool);
        }
    }
    // The name alone decides, whatever the status: a keyword or a miss finds it empty.
    const bool accepted = tool.firstPick == EditTool::FirstPick::anyEntity
                              ? run.m_pickedName[0] != 0 || run.m_pickedName[1] != 0
                              : needBreak(run.m_pickedName);
    if (!accepted || (tool.refusesClosedFirst && isRefusedAsClosed(run, resources))) {
        return Prompted::again;
    }
    return Prompted::picked;
}

// Repeats its prompt without a message until the pick is accepted. No keyword is armed: UNDO is for
// the first pick alone.
Prompted askSecond(CMlineEdit& run, const EditTool& tool, HINSTANCE resources) {
    loadText(resources, tool.prompts.second, run.m_buffer);
    bool accepted = false;
    while (!accepted) {
        run.m_status = kdedEntSel(run.m_buffer, run.m_pickedName, run.m_pickedPoint);
        if (endsTool(run.m_status)) {
            return Prompted::leave;
        }
        accepted = tool.secondPick == EditTool::SecondPick::sameEntity
                       ? isSameEntity(run.m_pickedName, run.m_first.m_name)
                       : needBreak(run.m_pickedName);
    }
    return tool.refusesClosedSecond && isRefusedAsClosed(run, resources) ? Prompted::again
                                                                         : Prompted::picked;
}

void renewUndoCopies(CMlineEdit& run, const EditTool& tool) {
    const auto renew = [&run](KdDbMline*& copy, KdDbMline* source) {
        discard(copy);
        copy = new KdDbMline;
        run.MlineCopy(copy, source);
    };
    renew(run.m_undoFirst, run.m_first.m_mline);
    if (tool.undoCopies == 2 && !isSameEntity(run.m_first.m_name, run.m_second.m_name)) {
        renew(run.m_undoSecond, run.m_second.m_mline);
    }
}

// Only what can be worked on reaches the tool's step. Welding something that is no multiline
// counts as done.
StepOutcome runStep(CMlineEdit& run, const EditTool& tool) {
    const bool twoPicks = tool.secondPick != EditTool::SecondPick::none;
    if (tool.firstPick == EditTool::FirstPick::anyEntity && run.m_first.m_mline == nullptr) {
        return StepOutcome::done;
    }
    if (!isUsable(run.m_first) || (twoPicks && !isUsable(run.m_second))) {
        return StepOutcome::failedSilently;
    }
    return tool.step(run);
}

void workOnPicks(CMlineEdit& run, const EditTool& tool, HINSTANCE resources) {
    const CMlineOpenObject open(&run.m_first, &run.m_second);
    renewUndoCopies(run, tool);
    const StepOutcome outcome = runStep(run, tool);
    if (outcome == StepOutcome::done) {
        kdedRedraw(nullptr, kRefresh);
        return;
    }
    if (outcome == StepOutcome::noCrossing) {
        loadText(resources, texts::kNoCrossing, run.m_buffer);
        kdutPrintf(L"%ls", run.m_buffer);
    }
    discard(run.m_undoFirst);
    if (tool.undoCopies == 2) {
        discard(run.m_undoSecond);
    }
}

void closeAtExit(CMlineEdit& run, const EditTool& tool) {
    if (tool.closesAtExit == EditTool::Closes::neither) {
        return;
    }
    closeAndClear(run.m_first.m_mline);
    if (tool.closesAtExit == EditTool::Closes::both) {
        closeAndClear(run.m_second.m_mline);
    }
}

} // namespace

int runTool(CMlineEdit& run, const EditTool& tool, HINSTANCE resources) {
    if (tool.step == nullptr) {
        return run.m_status;
    }
    for (;;) {
        Prompted prompted = askFirst(run, tool, resources);
        if (prompted == Prompted::picked) {
            (run.*tool.initialise)(&run.m_first, run.m_pickedName, nullptr);
            if (tool.secondPick != EditTool::SecondPick::none) {
                prompted = askSecond(run, tool, resources);
            }
        }
        if (prompted == Prompted::leave) {
            closeAtExit(run, tool);
            return run.m_status;
        }
        if (prompted == Prompted::again) {
            continue;
        }
        if (tool.secondPick != EditTool::SecondPick::none) {
            (run.*tool.initialise)(&run.m_second, run.m_pickedName, &run.m_first);
        }
        workOnPicks(run, tool, resources);
    }
}

} // namespace mledit
