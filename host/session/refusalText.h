#pragma once

#include "ToolWatch.h"

#include <string>

namespace orvex {

// Why a pick did nothing, as half a sentence for a place where there is little room: "a circle is
// no multiline".
std::wstring refusalText(PickRefusal reason, const KdDbStub* entity);

// What would do, as the other half; empty where nothing can be said.
std::wstring refusalRemedy(PickRefusal reason);

} // namespace orvex
