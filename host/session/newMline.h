#pragma once

#include "KdGePoint3d.h"
#include "KdGeVector3d.h"
#include "newChain.h"

#include <memory>
#include <vector>

class KdDbDatabase;
class KdDbMline;
class KdDbMlineStyle;

namespace orvex {

// What a style says about a new multiline, at scale 1 and with the elements where they are.
MlineSettings settingsOf(const KdDbMlineStyle& style);

// Gives a multiline without vertices a chain with unbroken elements.
void fillChain(KdDbMline& mline, const NewChain& chain);

// Whether the current style has anything to draw.
bool hasCurrentElements(KdDbDatabase& database);

// A multiline along world points in the current style, scale and justification, which is no part of
// the drawing yet. Null when the points aren't two different ones or the style has no elements.
std::unique_ptr<KdDbMline> newMline(KdDbDatabase& database, const std::vector<KdGePoint3d>& points,
                                    bool closed, const KdGeVector3d& normal);

} // namespace orvex
