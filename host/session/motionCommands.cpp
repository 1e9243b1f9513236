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

struct MotionStart {
    std::vector<KdDbStub*> mlines;
    KdGePoint3d base;
};

// Nothing for a cancel, or where nothing was selected, which has been told then.
std::optional<MotionStart> askStart(Session& session, const std::wstring& question) {
    std::optional<Selection> selection = askSelection(session, SelectionKind::mlines);
    if (!selection || selection->entities.empty()) {
        return std::nullopt;
    }
    const auto base = askPoint(question.c_str());
    return base ? std::optional(MotionStart{std::move(selection->entities), *base}) : std::nullopt;
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
    const auto start = askStart(session, wideHostText("Base point: "));
    if (!start) {
        return;
    }
    const auto& [mlines, base] = *start;
    const PreviewScope preview(shiftFrom(mlines, base));
    if (const auto second = askPoint(wideHostText("Second point: ").c_str(), base)) {
        moveAll(mlines, shiftBy(*second - base), hostText("%1 of %2 multilines moved."));
    }
}

void copyCommand(Session& session) {
    const auto start = askStart(session, wideHostText("Base point: "));
    if (!start) {
        return;
    }
    const auto& [mlines, base] = *start;
    const PreviewScope preview(shiftFrom(mlines, base));
    while (const auto second = askPoint(wideHostText("Second point: ").c_str(), base)) {
        copyAll(mlines, shiftBy(*second - base));
    }
}

void rotateCommand(Session& session) {
    const auto start = askStart(session, wideHostText("Base point: "));
    if (!start) {
        return;
    }
    const auto& [mlines, base] = *start;
    const PreviewScope preview(
        PromptMotion{mlines, [base = base](const KdGePoint3d& cursor) -> std::optional<PlanMap> {
                         return planMapOf(turnAbout(base, userNormal(), userDegrees(base, cursor)));
                     }});
    const PromptAnswer answer =
        askUser(PromptKind::real, wideHostText("Degrees counter-clockwise: ").c_str(), base);
    if (answer.kind == PromptAnswer::Kind::number) {
        moveAll(mlines, turnAbout(base, userNormal(), answer.number),
                hostText("%1 of %2 multilines rotated."));
    }
}

void mirrorCommand(Session& session) {
    const auto start = askStart(session, wideHostText("First point of the mirror line: "));
    if (!start) {
        return;
    }
    const auto& [mlines, first] = *start;
    const PreviewScope preview(
        PromptMotion{mlines, [first = first](const KdGePoint3d& cursor) -> std::optional<PlanMap> {
                         const Result<PlanMotion> motion = mirrorAt(first, cursor, userNormal());
                         return motion ? std::optional(planMapOf(*motion)) : std::nullopt;
                     }});
    const auto second = askPoint(wideHostText("Second point: ").c_str(), first);
    if (!second) {
        return;
    }
    const Result<PlanMotion> motion = mirrorAt(first, *second, userNormal());
    if (!motion) {
        kdutPrintf(L"%ls",
                   widen(hostText("Nothing mirrored: %1.", {motion.failure().text})).c_str());
        return;
    }
    moveAll(mlines, *motion, hostText("%1 of %2 multilines mirrored."));
}

} // namespace orvex
