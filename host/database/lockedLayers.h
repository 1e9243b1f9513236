#pragma once

#include <string_view>

struct KdDbStub;

namespace orvex {

class DatabaseCore;

// Whether entities on the layer may be looked at, but not changed. One that the drawing doesn't
// have isn't locked.
bool isLayerLocked(DatabaseCore& core, std::wstring_view layer);

// The same for what the entity lies on; false for anything else.
bool isOnLockedLayer(KdDbStub& entity);

} // namespace orvex
