#include "editMlines.h"

#include "BlockList.h"
#include "DatabaseCore.h"
#include "HostCommand.h"
#include "KdDbMline.h"
#include "PromptSession.h"
#include "PromptWatcher.h"
#include "commandOutput.h"
#include "handleText.h"
#include "hostText.h"
#include "kddbObjects.h"
#include "lockedLayers.h"
#include "mlineEdits.h"
#include "promptExchange.h"
#include "promptLibrary.h"
#include "promptStatus.h"
#include "textCodec.h"
#include "userFrame.h"

#include <cmath>
#include <limits>

namespace orvex {

namespace {

constexpr int kErrorNothingFound = 7;

} // namespace

bool hasMissed() {
    return PromptSession::current().errorNumber == kErrorNothingFound;
}

void editEach(const std::vector<KdDbStub*>& mlines, const MlineEdit& edit,
              const std::string& done) {
    std::size_t count = 0;
    for (KdDbStub* const mline : mlines) {
        const std::shared_ptr<const MlineContent> content = contentOf(*mline);
        if (content == nullptr) {
            tellRefusal(*mline, hostText("it can't be read"));
            continue;
        }
        Result<MlineContent> edited = edit(*content);
        if (!edited) {
            tellRefusal(*mline, edited.failure().text);
            continue;
        }
        count += storeContent(*mline, std::move(*edited)) ? 1 : 0;
    }
    tellCount(count, mlines.size(), done);
}

void tellRefusal(const KdDbStub& mline, const std::string& why) {
    const std::string line =
        hostText("multiline %1 left as it is: %2", {handleText(mline.handle), why});
    kdutPrintf(L"%ls", widen(line).c_str());
}

void tellCount(std::size_t count, std::size_t all, const std::string& done) {
    const std::string line = filledText(done, {std::to_string(count), std::to_string(all)});
    kdutPrintf(L"%ls", widen(line).c_str());
}

KdDbStub& addEntity(const KdDbStub& original, std::unique_ptr<KdDbEntity> entity) {
    DatabaseCore& core = *original.database;
    BlockEntities& block = *core.blocks().blockOf(original);
    const ObjectKind kind = kindOf(*entity);
    KdDbStub& stub = core.adopt(std::move(entity), kind, block.record);
    core.blocks().appendEntity(block, stub);
    return stub;
}

KdDbStub& addMline(const KdDbStub& original, MlineContent content) {
    auto mline = std::make_unique<KdDbMline>();
    mline->setContent(std::make_shared<MlineContent>(std::move(content)));
    return addEntity(original, std::move(mline));
}

std::optional<PickedMline> pickMline(const wchar_t* prompt) {
    long name[2] = {0, 0};
    double point[3] = {0.0, 0.0, 0.0};
    const int status = kdedEntSel(prompt, name, point);
    if (status != kPromptNormal) {
        if (status == kPromptError) {
            kdutPrintf(L"%ls", wideHostText("Nothing found there.").c_str());
        }
        return std::nullopt;
    }
    KdDbObjectId id;
    kddbGetObjectId(id, name);
    PickedMline picked{id.stub(), nullptr, userToWorld({point[0], point[1], point[2]})};
    picked.content = picked.stub != nullptr ? contentOf(*picked.stub) : nullptr;
    if (picked.content == nullptr || picked.content->vertices.empty()) {
        kdutPrintf(L"%ls", wideHostText("That isn't a multiline with a chain.").c_str());
        if (PromptWatcher* const watcher = PromptSession::current().watcher) {
            watcher->missed(PickRefusal::noMultiline, picked.stub, true);
        }
        PromptSession::current().errorNumber = kErrorNothingFound;
        return std::nullopt;
    }
    return picked;
}

std::optional<NamedMline> askMlineToChange(const wchar_t* prompt) {
    const PromptAnswer answer = askUser(PromptKind::selection, prompt);
    const bool isPlace = answer.kind == PromptAnswer::Kind::point;
    if (!isPlace && answer.kind != PromptAnswer::Kind::handle) {
        return std::nullopt;
    }
    KdDbStub* const found = entityOf(answer);
    NamedMline named{found, found != nullptr ? contentOf(*found) : nullptr, {}};
    if (named.content == nullptr || named.content->vertices.empty()) {
        kdutPrintf(L"%ls", wideHostText("No multiline found there.").c_str());
        return std::nullopt;
    }
    if (isOnLockedLayer(*found)) {
        kdutPrintf(L"%ls", wideHostText("The multiline lies on a locked layer.").c_str());
        return std::nullopt;
    }
    if (isPlace) {
        named.place = userToWorld(answer.point);
    }
    return named;
}

std::optional<unsigned> askIndex(const wchar_t* prompt, bool* isEmpty) {
    double number = 0.0;
    const int status = kdedGetReal(prompt, &number);
    if (isEmpty != nullptr) {
        *isEmpty = status == kPromptNone;
    }
    if (status != kPromptNormal) {
        return std::nullopt;
    }
    if (number < 0.0 || number > std::numeric_limits<int>::max() || std::trunc(number) != number) {
        rejectAnswer(wideHostText("that is no whole number from 0 on"));
        return std::nullopt;
    }
    return static_cast<unsigned>(number);
}

std::unique_ptr<KdDbEntity> freeMline(MlineContent content) {
    auto mline = std::make_unique<KdDbMline>();
    mline->setContent(std::make_shared<MlineContent>(std::move(content)));
    return mline;
}

void tellLostGaps(std::size_t count) {
    if (count > 0) {
        const std::wstring number = std::to_wstring(count);
        kdutPrintf(
            L"%ls",
            (count == 1
                 ? wideHostText("%1 gap cut or gone: the segments don't hold them any more.",
                                {number})
                 : wideHostText("%1 gaps cut or gone: the segments don't hold them any more.",
                                {number}))
                .c_str());
    }
}

std::optional<KdGePoint3d> askPoint(const wchar_t* prompt, const std::optional<KdGePoint3d>& base) {
    const KdGePoint3d from = base ? worldToUser(*base) : KdGePoint3d();
    const double start[3] = {from.x, from.y, from.z};
    double point[3] = {0.0, 0.0, 0.0};
    if (kdedGetPoint(base ? start : nullptr, prompt, point) != kPromptNormal) {
        return std::nullopt;
    }
    return userToWorld({point[0], point[1], point[2]});
}

} // namespace orvex
