// ERASE: takes entities of any kind out of model space.

#include "BlockList.h"
#include "DatabaseCore.h"
#include "HostCommand.h"
#include "KdDbDatabase.h"
#include "Session.h"
#include "commandOutput.h"
#include "hostText.h"
#include "selection.h"

namespace orvex {

void eraseCommand(Session& session) {
    const std::optional<Selection> selection = askSelection(session, SelectionKind::entities);
    if (!selection || selection->entities.empty()) {
        return;
    }
    DatabaseCore& core = session.database().core();
    const BlockEntities& space = core.blocks().modelSpace();
    std::size_t count = 0;
    for (KdDbStub* const entity : selection->entities) {
        if (core.blocks().blockOf(*entity) == &space) {
            core.erase(*entity);
            ++count;
        }
    }
    if (const std::size_t others = selection->entities.size() - count; others > 0) {
        kdutPrintf(
            L"%ls",
            wideHostText("%1 outside of model space left.", {std::to_wstring(others)}).c_str());
    }
    kdutPrintf(L"%ls", wideHostText("%1 erased.", {std::to_wstring(count)}).c_str());
}

} // namespace orvex
