// STRETCH and REVERSE: other chains for multilines.

#include "DatabaseCore.h"
#include "HostCommand.h"
#include "KdDbDatabase.h"
#include "KdDbEntity.h"
#include "KdDbMlineStyle.h"
#include "MlineStyleContent.h"
#include "Opened.h"
#include "PromptSession.h"
#include "Session.h"
#include "answerFromText.h"
#include "commandOutput.h"
#include "editMlines.h"
#include "hostText.h"
#include "impossible.h"
#include "kddbObjects.h"
#include "lockedLayers.h"
#include "mlineEdits.h"
#include "reverse.h"
#include "selection.h"
#include "stretch.h"
#include "vertexEdits.h"

namespace orvex {

namespace {

void tellLeft(std::size_t count, const char* what) {
    if (count > 0) {
        kdutPrintf(L"%ls", wideHostText(what, {std::to_wstring(count)}).c_str());
    }
}

// The multilines that a box touches, but for those on locked layers.
std::vector<KdDbStub*> mlinesTouching(Session& session, const PlanBox& box) {
    std::vector<KdDbStub*> found = session.scene().entitiesTouching(box);
    tellLeft(
        std::erase_if(found, [](const KdDbStub* stub) { return stub->kind != ObjectKind::mline; }),
        markedText("%1 other than multilines left out."));
    tellLeft(std::erase_if(found, [](KdDbStub* stub) { return isOnLockedLayer(*stub); }),
             markedText("%1 on locked layers left out."));
    return found;
}

std::optional<PlanBox> askBox() {
    const auto first = askPoint(wideHostText("First corner: ").c_str());
    const auto corner =
        first ? askPoint(wideHostText("Opposite corner: ").c_str(), first) : std::nullopt;
    if (!corner) {
        return std::nullopt;
    }
    PlanBox box;
    box.include(PlanPoint{first->x, first->y});
    box.include(PlanPoint{corner->x, corner->y});
    return box;
}

Result<MlineContent> stretchedIn(const PlanBox& box, const MlineContent& mline,
                                 const KdGeVector3d& shift) {
    const std::optional<StyleLayout> style = styleLayoutOf(mline);
    if (!style) {
        return impossible(hostText("its style is missing"));
    }
    const auto isWithin = [&box](const KdGePoint3d& point) {
        return point.x >= box.low.x && point.x <= box.high.x && point.y >= box.low.y &&
               point.y <= box.high.y;
    };
    return stretched(mline, *style, isWithin, shift);
}

// By the edit itself, of as many as can follow the cursor.
PromptPreviews stretchPreviews(const std::vector<KdDbStub*>& mlines, const PlanBox& box,
                               const KdGePoint3d& base) {
    constexpr std::size_t kMostShown = 300;
    return [&mlines, box, base](const KdGePoint3d& cursor) {
        std::vector<std::unique_ptr<KdDbEntity>> shown;
        for (KdDbStub* const mline : mlines) {
            const auto content = shown.size() < kMostShown ? contentOf(*mline) : nullptr;
            if (content == nullptr) {
                continue;
            }
            if (Result<MlineContent> result = stretchedIn(box, *content, cursor - base)) {
                shown.push_back(freeMline(std::move(*result)));
            }
        }
        return shown;
    };
}

// What the style draws at an end, by the flags of the start.
int capsAt(int flags, bool isEnd) {
    constexpr int kStartCaps = kStyleStartLine | kStyleStartArcs | kStyleStartRound;
    constexpr int kFromEndToStart = kStyleEndLine / kStyleStartLine;
    return (isEnd ? flags / kFromEndToStart : flags) & kStartCaps;
}

// Whether a chain can change its direction without a change of what is drawn at its ends.
bool hasSameCaps(const MlineContent& mline) {
    const Opened<KdDbMlineStyle> style(mline.style, kForRead);
    if (!style) {
        return true;
    }
    const int flags = style->values().flags;
    return mline.closed || (mline.startCapsSuppressed && mline.endCapsSuppressed) ||
           capsAt(flags, false) == capsAt(flags, true);
}

} // namespace

void stretchCommand(Session& session) {
    std::optional<PlanBox> box = askBox();
    std::vector<KdDbStub*> mlines;
    while (box) {
        mlines = mlinesTouching(session, *box);
        if (!mlines.empty() || !session.hasWindow()) {
            break; // a script has answers for what comes next
        }
        kdutPrintf(L"%ls", wideHostText("No multiline is touched by these corners.").c_str());
        session.record().line(kCancelText); // of the base point, which a script is asked
        session.record().line(L"STRETCH");
        box = askBox();
    }
    if (!box) {
        return;
    }
    const auto base = askPoint(wideHostText("Base point: ").c_str());
    if (!base) {
        return;
    }
    const PreviewScope preview(stretchPreviews(mlines, *box, *base));
    const auto second = askPoint(wideHostText("Second point: ").c_str(), base);
    if (!second) {
        return;
    }
    std::size_t lostGaps = 0;
    editEach(
        mlines,
        [&](const MlineContent& mline) {
            Result<MlineContent> result = stretchedIn(*box, mline, *second - *base);
            const std::size_t had = heldGaps(mline);
            const std::size_t has = result ? heldGaps(*result) : had;
            lostGaps += had > has ? had - has : 0;
            return result;
        },
        hostText("%1 of %2 multilines stretched."));
    tellLostGaps(lostGaps);
}

void reverseCommand(Session& session) {
    const std::optional<Selection> selection = askSelection(session, SelectionKind::mlines);
    if (!selection || selection->entities.empty()) {
        return;
    }
    editEach(
        selection->entities,
        [](const MlineContent& mline) -> Result<MlineContent> {
            if (!hasSameCaps(mline)) {
                return impossible(
                    hostText("its style has other caps at the start than at the end"));
            }
            return reversed(mline);
        },
        hostText("%1 of %2 multilines reversed."));
}

} // namespace orvex
