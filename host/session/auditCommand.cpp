// MLAUDIT: tells multilines that contradict their style or themselves, and lays them right.

#include "HostCommand.h"
#include "commandOutput.h"
#include "drawingAudit.h"
#include "hostText.h"
#include "promptLibrary.h"
#include "promptStatus.h"
#include "selection.h"
#include "textCodec.h"

#include <string_view>

namespace orvex {

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
    if (kdedGetKword(wideHostText("Look or Repair: ").c_str(), keyword) != kPromptNormal) {
        return;
    }
    const std::vector<AuditedMline> audited =
        auditMlines(selection->entities, std::wstring_view(keyword) == L"Repair");
    for (const AuditedMline& each : audited) {
        for (const std::string& line : linesOf(each)) {
            kdutPrintf(L"%ls", widen(line).c_str());
        }
    }
    kdutPrintf(L"%ls", widen(summaryOf(audited, selection->entities.size())).c_str());
}

} // namespace orvex
