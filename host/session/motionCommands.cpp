// MOVE, COPY, ROTATE and MIRROR: multilines moved as a whole.

#include "HostCommand.h"
#include "KdDbStub.h"
#include "commandOutput.h"
#include "editMlines.h"
#include "mlineEdits.h"
#include "planMotion.h"
#include "promptLibrary.h"
#include "promptStatus.h"
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
            tellRefusal(*mline, "it can't be read");
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
    tellCount(count, mlines.size(), "copied");
}

KdGeVector3d userNormal() {
    return userDirectionToWorld({0.0, 0.0, 1.0});
}

} // namespace

void moveCommand(Session& session) {
    const std::vector<KdDbStub*> mlines = askMlines(session);
    const auto base = mlines.empty() ? std::nullopt : askPoint(L"Base point: ");
    const auto second = base ? askPoint(L"Second point: ", base) : std::nullopt;
    if (second) {
        moveAll(mlines, shiftBy(*second - *base), "moved");
    }
}

void copyCommand(Session& session) {
    const std::vector<KdDbStub*> mlines = askMlines(session);
    const auto base = mlines.empty() ? std::nullopt : askPoint(L"Base point: ");
    if (!base) {
        return;
    }
    while (const auto second = askPoint(L"Second point: ", base)) {
        copyAll(mlines, shiftBy(*second - *base));
    }
}

void rotateCommand(Session& session) {
    const std::vector<KdDbStub*> mlines = askMlines(session);
    const auto base = mlines.empty() ? std::nullopt : askPoint(L"Base point: ");
    double degrees = 0.0;
    if (base && kdedGetReal(L"Degrees counter-clockwise: ", &degrees) == kPromptNormal) {
        moveAll(mlines, turnAbout(*base, userNormal(), degrees), "rotated");
    }
}

void mirrorCommand(Session& session) {
    const std::vector<KdDbStub*> mlines = askMlines(session);
    const auto first =
        mlines.empty() ? std::nullopt : askPoint(L"First point of the mirror line: ");
    const auto second = first ? askPoint(L"Second point: ", first) : std::nullopt;
    if (!second) {
        return;
    }
    const Result<PlanMotion> motion = mirrorAt(*first, *second, userNormal());
    if (!motion) {
        kdutPrintf(L"%ls", widen("Nothing mirrored: " + motion.failure().text + ".").c_str());
        return;
    }
    moveAll(mlines, *motion, "mirrored");
}

} // namespace orvex
