#pragma once

#include "MlineContent.h"
#include "PickRefusal.h"
#include "toolKinds.h"

namespace orvex {

// What the host can tell of a tool that did nothing, from the multilines that it was given.

// Whether the tool takes no closed multiline at its first pick, or at its second.
bool refusesAsClosed(const ToolKind& tool, const MlineContent& mline, bool isFirst);

// Why both multilines are as they were; `isSame`: they are one.
PickRefusal reasonOfNoChange(const ToolKind& tool, const MlineContent& first,
                             const MlineContent& last, bool isSame);

} // namespace orvex
