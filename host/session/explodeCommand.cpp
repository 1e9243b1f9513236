// MLEXPLODE: multilines become the lines, arcs and areas that they are drawn as.

#include "DatabaseCore.h"
#include "HostCommand.h"
#include "KdDbDatabase.h"
#include "MlineExploder.h"
#include "PlainEntity.h"
#include "Session.h"
#include "editMlines.h"
#include "hostText.h"
#include "mlineEdits.h"
#include "selection.h"

namespace orvex {

namespace {

// False, with a word, where the multiline stays.
bool explode(KdDbStub& mline, MlineExploder& exploder) {
    const std::shared_ptr<const MlineContent> content = contentOf(mline);
    if (content == nullptr) {
        tellRefusal(mline, hostText("it can't be read"));
        return false;
    }
    Result<std::vector<PlainContent>> parts = exploder.explode(*content);
    if (!parts) {
        tellRefusal(mline, parts.failure().text);
        return false;
    }
    for (PlainContent& part : *parts) {
        part.replaces = KdDbObjectId(&mline);
        auto entity = std::make_unique<PlainEntity>();
        entity->setContent(std::make_shared<PlainContent>(std::move(part)));
        addEntity(mline, std::move(entity));
    }
    mline.database->erase(mline);
    return true;
}

} // namespace

void explodeCommand(Session& session) {
    const std::optional<Selection> selection = askSelection(session, SelectionKind::mlines);
    if (!selection || selection->entities.empty()) {
        return;
    }
    MlineExploder exploder(session.database().core());
    std::size_t count = 0;
    for (KdDbStub* const mline : selection->entities) {
        count += explode(*mline, exploder) ? 1 : 0;
    }
    tellCount(count, selection->entities.size(), hostText("%1 of %2 multilines exploded."));
}

} // namespace orvex
