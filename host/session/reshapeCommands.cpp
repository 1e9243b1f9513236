// STRETCH and REVERSE: other chains for multilines.

#include "DatabaseCore.h"
#include "HostCommand.h"
#include "KdDbDatabase.h"
#include "KdDbMlineStyle.h"
#include "MlineStyleContent.h"
#include "Opened.h"
#include "Session.h"
#include "commandOutput.h"
#include "editMlines.h"
#include "impossible.h"
#include "kddbObjects.h"
#include "lockedLayers.h"
#include "mlineEdits.h"
#include "reverse.h"
#include "selection.h"
#include "stretch.h"

namespace orvex {

namespace {

struct StretchBox {
    PlanBox box; // world
    KdGePoint3d base;
    KdGePoint3d second;
};

std::optional<StretchBox> askStretch() {
    const auto first = askPoint(L"First corner: ");
    const auto corner = first ? askPoint(L"Opposite corner: ", first) : std::nullopt;
    const auto base = corner ? askPoint(L"Base point: ") : std::nullopt;
    const auto second = base ? askPoint(L"Second point: ", base) : std::nullopt;
    if (!second) {
        return std::nullopt;
    }
    StretchBox asked{{}, *base, *second};
    asked.box.include(PlanPoint{first->x, first->y});
    asked.box.include(PlanPoint{corner->x, corner->y});
    return asked;
}

void tellLeft(std::size_t count, const wchar_t* what) {
    if (count > 0) {
        kdutPrintf(L"%ls", (std::to_wstring(count) + what).c_str());
    }
}

// The multilines that a box touches, but for those on locked layers.
std::vector<KdDbStub*> mlinesTouching(Session& session, const PlanBox& box) {
    std::vector<KdDbStub*> found = session.scene().entitiesTouching(box);
    tellLeft(
        std::erase_if(found, [](const KdDbStub* stub) { return stub->kind != ObjectKind::mline; }),
        L" other than multilines left out.");
    tellLeft(std::erase_if(found, [](KdDbStub* stub) { return isOnLockedLayer(*stub); }),
             L" on locked layers left out.");
    return found;
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
    const std::optional<StretchBox> asked = askStretch();
    if (!asked) {
        return;
    }
    const std::vector<KdDbStub*> mlines = mlinesTouching(session, asked->box);
    const auto isWithin = [&box = asked->box](const KdGePoint3d& point) {
        return point.x >= box.low.x && point.x <= box.high.x && point.y >= box.low.y &&
               point.y <= box.high.y;
    };
    editEach(
        mlines,
        [&](const MlineContent& mline) -> Result<MlineContent> {
            const std::optional<StyleLayout> style = styleLayoutOf(mline);
            if (!style) {
                return impossible("its style is missing");
            }
            return stretched(mline, *style, isWithin, asked->second - asked->base);
        },
        "stretched");
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
                return impossible("its style has other caps at the start than at the end");
            }
            return reversed(mline);
        },
        "reversed");
}

} // namespace orvex
