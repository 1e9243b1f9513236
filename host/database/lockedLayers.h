#pragma once

#include <string_view>

struct KdDbStub;

namespace orvex {

class DatabaseCore;

// Whether entities on the layer may be looked at, but not changed. One that the drawing doesn't
// have isn't locked.
bool isLayerLocked(DatabaseCore& core, std::wstring_view layer);

// Whether a command may change all on the layer at once: neither locked nor out of sight.
bool isLayerEditable(DatabaseCore& core, std::wstring_view layer);

// Whether an entity lies on a locked layer; false for anything else.
bool isOnLockedLayer(KdDbStub& entity);

} // namespace orvex
