// MOVE, COPY, ROTATE and MIRROR: multilines moved as a whole.

#include "HostCommand.h"
#include "KdDbStub.h"
#include "PromptSession.h"
#include "commandOutput.h"
#include "editMlines.h"
#include "hostText.h"
#include "mlineEdits.h"
#include "planMotion.h"
#include "promptExchange.h"
#include "selection.h"
#include "textCodec.h"
#include "userFrame.h"

namespace orvex {

namespace {

// Empty for a cancel, too; then it has been told.
std::vector<KdDbStub*> askMlines(Session& session) {
    std::optional<Selection> selection = askSelection(session, SelectionKind::mlines);
    return selection ? std::move(selection->entities) : std::vector<KdDbStub*>();
}

void moveAll(const std::vector<KdDbStub*>& mlines, const PlanMotion& motion,
             const std::string& done) {
    editEach(
        mlines, [&motion](const MlineContent& mline) { return movedBy(mline, motion); }, done);
}

void copyAll(const std::vector<KdDbStub*>& mlines, const PlanMotion& motion) {
    std::size_t count = 0;
    for (KdDbStub* const mline : mlines) {
        const auto content = contentOf(*mline);
        if (content == nullptr) {
            tellRefusal(*mline, hostText("it can't be read"));
            continue;
        }
        Result<MlineContent> moved = movedBy(*content, motion);
        if (!moved) {
            tellRefusal(*mline, moved.failure().text);
            continue;
        }
        addMline(*mline, std::move(*moved));
        ++count;
    }
    tellCount(count, mlines.size(), hostText("%1 of %2 multilines copied."));
}

PlanMap planMapOf(const PlanMotion& motion) {
    PlanMap map{motion.x.x, motion.y.x, motion.x.y, motion.y.y, 0.0, 0.0};
    map.dx = motion.base.x - map.xx * motion.base.x - map.xy * motion.base.y + motion.shift.x;
    map.dy = motion.base.y - map.yx * motion.base.x - map.yy * motion.base.y + motion.shift.y;
    return map;
}

// A picture of them goes with the cursor.
PromptMotion shiftFrom(const std::vector<KdDbStub*>& mlines, const KdGePoint3d& base) {
    return {mlines, [base](const KdGePoint3d& cursor) -> std::optional<PlanMap> {
                return PlanMap{.dx = cursor.x - base.x, .dy = cursor.y - base.y};
            }};
}

KdGeVector3d userNormal() {
    return userDirectionToWorld({0.0, 0.0, 1.0});
}

} // namespace

void moveCommand(Session& session) {
    const std::vector<KdDbStub*> mlines = askMlines(session);
    const auto base =
        mlines.empty() ? std::nullopt : askPoint(wideHostText("Base point: ").c_str());
    if (!base) {
        return;
    }
    const PreviewScope preview(shiftFrom(mlines, *base));
    if (const auto second = askPoint(wideHostText("Second point: ").c_str(), base)) {
        moveAll(mlines, shiftBy(*second - *base), hostText("%1 of %2 multilines moved."));
    }
}

void copyCommand(Session& session) {
    const std::vector<KdDbStub*> mlines = askMlines(session);
    const auto base =
        mlines.empty() ? std::nullopt : askPoint(wideHostText("Base point: ").c_str());
    if (!base) {
        return;
    }
    const PreviewScope preview(shiftFrom(mlines, *base));
    while (const auto second = askPoint(wideHostText("Second point: ").c_str(), base)) {
        copyAll(mlines, shiftBy(*second - *base));
    }
}

void rotateCommand(Session& session) {
    const std::vector<KdDbStub*> mlines = askMlines(session);
    const auto base =
        mlines.empty() ? std::nullopt : askPoint(wideHostText("Base point: ").c_str());
    if (!base) {
        return;
    }
    const PreviewScope preview(
        PromptMotion{mlines, [base = *base](const KdGePoint3d& cursor) -> std::optional<PlanMap> {
                         return planMapOf(turnAbout(base, userNormal(), userDegrees(base, cursor)));
                     }});
    const PromptAnswer answer =
        askUser(PromptKind::real, wideHostText("Degrees counter-clockwise: ").c_str(), base);
    if (answer.kind == PromptAnswer::Kind::number) {
        moveAll(mlines, turnAbout(*base, userNormal(), answer.number),
                hostText("%1 of %2 multilines rotated."));
    }
}

void mirrorCommand(Session& session) {
    const std::vector<KdDbStub*> mlines = askMlines(session);
    const auto first = mlines.empty()
                           ? std::nullopt
                           : askPoint(wideHostText("First point of the mirror line: ").c_str());
    if (!first) {
        return;
    }
    const PreviewScope preview(
        PromptMotion{mlines, [first = *first](const KdGePoint3d& cursor) -> std::optional<PlanMap> {
                         const Result<PlanMotion> motion = mirrorAt(first, cursor, userNormal());
                         return motion ? std::optional(planMapOf(*motion)) : std::nullopt;
                     }});
    const auto second = askPoint(wideHostText("Second point: ").c_str(), first);
    if (!second) {
        return;
    }
    const Result<PlanMotion> motion = mirrorAt(*first, *second, userNormal());
    if (!motion) {
        kdutPrintf(L"%ls",
                   widen(hostText("Nothing mirrored: %1.", {motion.failure().text})).c_str());
        return;
    }
    moveAll(mlines, *motion, hostText("%1 of %2 multilines mirrored."));
}

} // namespace orvex
