#include "drawingAudit.h"

#include "KdDbStub.h"
#include "handleText.h"
#include "hostText.h"
#include "layRight.h"
#include "lockedLayers.h"
#include "mlineEdits.h"

#include <algorithm>

namespace orvex {

namespace {

bool isSamePlace(const Finding& a, const Finding& b) {
    return a.code == b.code && a.vertex == b.vertex && a.element == b.element;
}

// The findings with what became of each.
std::vector<AuditedFinding> compared(const std::vector<Finding>& before,
                                     const std::vector<Finding>& after) {
    std::vector<AuditedFinding> result;
    for (const Finding& finding : before) {
        const bool stays = std::any_of(after.begin(), after.end(), [&](const Finding& other) {
            return isSamePlace(finding, other);
        });
        result.push_back({finding, stays ? FindingResult::left : FindingResult::repaired});
    }
    return result;
}

std::vector<AuditedFinding> withResult(const std::vector<Finding>& findings, FindingResult result) {
    std::vector<AuditedFinding> all;
    all.reserve(findings.size());
    for (const Finding& finding : findings) {
        all.push_back({finding, result});
    }
    return all;
}

std::vector<AuditedFinding> repairMline(KdDbStub& stub, const MlineContent& content,
                                        const StyleLayout* style,
                                        const std::vector<Finding>& findings) {
    if (style == nullptr || isOnLockedLayer(stub)) {
        return withResult(findings, FindingResult::left);
    }
    Result<MlineContent> laid = layRight(content, *style);
    if (!laid) {
        return withResult(findings, FindingResult::left);
    }
    const std::vector<Finding> after = auditMline(*laid, style);
    storeContent(stub, std::move(*laid));
    return compared(findings, after);
}

} // namespace

std::vector<AuditedMline> auditMlines(const std::vector<KdDbStub*>& mlines, bool repair) {
    std::vector<AuditedMline> audited;
    for (KdDbStub* const stub : mlines) {
        const std::shared_ptr<const MlineContent> content = contentOf(*stub);
        if (content == nullptr) {
            continue;
        }
        const std::optional<StyleLayout> layout = styleLayoutOf(*content);
        const StyleLayout* const style = layout ? &*layout : nullptr;
        const std::vector<Finding> findings = auditMline(*content, style);
        if (findings.empty()) {
            continue;
        }
        audited.push_back({stub, repair ? repairMline(*stub, *content, style, findings)
                                        : withResult(findings, FindingResult::found)});
    }
    return audited;
}

std::vector<std::string> linesOf(const AuditedMline& audited) {
    std::vector<std::string> lines;
    for (const AuditedFinding& each : audited.findings) {
        lines.push_back(
            hostText("multiline %1, %2 (%3)", {handleText(audited.mline->handle),
                                               textOf(each.finding), shownName(each.result)}));
    }
    return lines;
}

std::string summaryOf(const std::vector<AuditedMline>& audited, std::size_t mlines) {
    std::size_t count = 0;
    for (const AuditedMline& each : audited) {
        count += each.findings.size();
    }
    return hostText(
        "%1 findings in %2 of %3 multilines.",
        {std::to_string(count), std::to_string(audited.size()), std::to_string(mlines)});
}

} // namespace orvex
