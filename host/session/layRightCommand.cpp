// MLLAY: lays the elements of multilines where style, scale and justification put them.

#include "HostCommand.h"
#include "KdDbStub.h"
#include "commandOutput.h"
#include "handleText.h"
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
        return "it can't be read";
    }
    const std::optional<StyleLayout> style = styleLayoutOf(*content);
    if (!style) {
        return "its style is missing";
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
            const std::wstring line = L"multiline " + widen(handleText(mline->handle)) +
                                      L" left as it is: " + widen(*refusal);
            kdutPrintf(L"%ls", line.c_str());
        }
        count += changed ? 1 : 0;
    }
    const std::wstring total = std::to_wstring(count) + L" of " +
                               std::to_wstring(selection->entities.size()) +
                               L" multilines laid right.";
    kdutPrintf(L"%ls", total.c_str());
}

} // namespace orvex
