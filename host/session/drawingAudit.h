#pragma once

#include "findingText.h"

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

} // namespace orvex
