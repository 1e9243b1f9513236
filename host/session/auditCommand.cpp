// MLAUDIT: tells multilines that contradict their style or themselves, and lays them right.

#include "HostCommand.h"
#include "KdDbStub.h"
#include "commandOutput.h"
#include "drawingAudit.h"
#include "handleText.h"
#include "mlineEdits.h"
#include "promptLibrary.h"
#include "promptStatus.h"
#include "selection.h"
#include "textCodec.h"

#include <string_view>

namespace orvex {

namespace {

void tell(const AuditedMline& audited) {
    for (const AuditedFinding& each : audited.findings) {
        const std::wstring line = L"multiline " + widen(handleText(audited.mline->handle)) + L", " +
                                  widen(textOf(each.finding)) + L" (" + widen(nameOf(each.result)) +
                                  L")";
        kdutPrintf(L"%ls", line.c_str());
    }
}

} // namespace

void auditCommand(Session& session) {
    std::optional<Selection> selection = askSelection(session, SelectionKind::mlines, true);
    if (selection && selection->isEmptyAnswer) {
        selection = selectAll(session, SelectionKind::mlines);
    }
    if (!selection) {
        return;
    }
    wchar_t keyword[kPromptTextSize] = L"";
    kdedInitGet(0, L"Look Repair");
    if (kdedGetKword(L"Look or Repair: ", keyword) != kPromptNormal) {
        return;
    }
    std::size_t count = 0;
    const std::vector<AuditedMline> audited =
        auditMlines(selection->entities, std::wstring_view(keyword) == L"Repair");
    for (const AuditedMline& each : audited) {
        tell(each);
        count += each.findings.size();
    }
    const std::wstring total = std::to_wstring(count) + L" findings in " +
                               std::to_wstring(audited.size()) + L" of " +
                               std::to_wstring(selection->entities.size()) + L" multilines.";
    kdutPrintf(L"%ls", total.c_str());
}

} // namespace orvex
