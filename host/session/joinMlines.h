#pragma once

#include <string>
#include <vector>

struct KdDbStub;

namespace orvex {

class DatabaseCore;

// The multilines that are joined, in drawing order.
struct JoinMlines {
    std::vector<KdDbStub*> mlines;
    std::vector<std::wstring> unknownLayers;  // of those that were named
    std::vector<std::wstring> withheldLayers; // named, but off, frozen or locked
};

// All of model space that are seen and not on a locked layer; of the named layers alone where any
// are named. Names ignore case.
JoinMlines mlinesToJoin(DatabaseCore& core, const std::vector<std::wstring>& layers);

// Those of a selection that can be joined, in drawing order, each once.
JoinMlines mlinesToJoin(DatabaseCore& core, const std::vector<KdDbStub*>& selection);

} // namespace orvex
