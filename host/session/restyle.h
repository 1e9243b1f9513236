#pragma once

#include "KdDbObjectId.h"

#include <vector>

struct KdDbStub;

namespace orvex {

class DatabaseCore;

// Those that use a style, wherever they stand. What lies on locked layers is left out and told.
std::vector<KdDbStub*> mlinesOfStyle(DatabaseCore& core, KdDbObjectId style);

// Whether any does, also on locked layers.
bool isStyleUsed(DatabaseCore& core, KdDbObjectId style);

// Gives each the style; tells those that can't take it, and how many have.
void restyle(const std::vector<KdDbStub*>& mlines, KdDbObjectId style);

} // namespace orvex
