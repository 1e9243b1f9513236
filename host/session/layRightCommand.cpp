// MLLAY: lays the elements of multilines where style, scale and justification put them.

#include "HostCommand.h"
#include "KdDbStub.h"
#include "commandOutput.h"
#include "editMlines.h"
#include "handleText.h"
#include "hostText.h"
#include "layRight.h"
#include "mlineEdits.h"
#include "selection.h"
#include "textCodec.h"

namespace orvex {

namespace {

// Nothing when it could be done.
std::optional<std::string> layOne(KdDbStub& mline, bool& changed) {
    const std::shared_ptr<const MlineContent> content = contentOf(mline);
    if (content == nullptr) {
        return hostText("it can't be read");
    }
    const std::optional<StyleLayout> style = styleLayoutOf(*content);
    if (!style) {
        return hostText("its style is missing");
    }
    Result<MlineContent> laid = layRight(*content, *style);
    if (!laid) {
        return laid.failure().text;
    }
    changed = storeContent(mline, std::move(*laid));
    return std::nullopt;
}

} // namespace

void layRightCommand(Session& session) {
    const std::optional<Selection> selection = askSelection(session, SelectionKind::mlines);
    if (!selection || selection->entities.empty()) {
        return;
    }
    std::size_t count = 0;
    for (KdDbStub* const mline : selection->entities) {
        bool changed = false;
        if (const auto refusal = layOne(*mline, changed)) {
            tellRefusal(*mline, *refusal);
        }
        count += changed ? 1 : 0;
    }
    tellCount(count, selection->entities.size(), hostText("%1 of %2 multilines laid right."));
}

} // namespace orvex
