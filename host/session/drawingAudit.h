#pragma once

#include "findingText.h"

#include <string>
#include <vector>

struct KdDbStub;

namespace orvex {

struct AuditedFinding {
    Finding finding;
    FindingResult result = FindingResult::found;
};

struct AuditedMline {
    KdDbStub* mline = nullptr;
    std::vector<AuditedFinding> findings; // never empty
};

// What is wrong with these multilines, in their order; what isn't one is passed over. With `repair`
// each is laid right as far as it goes, unless its layer is locked.
std::vector<AuditedMline> auditMlines(const std::vector<KdDbStub*>& mlines, bool repair);

// A line for each finding, UTF-8: "multiline 2F, vertex 1, element 0: ... (repaired)".
std::vector<std::string> linesOf(const AuditedMline& audited);
// "2 findings in 1 of 40 multilines."
std::string summaryOf(const std::vector<AuditedMline>& audited, std::size_t mlines);

} // namespace orvex
