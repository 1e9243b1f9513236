#pragma once

#include "EditTool.h"

// Adding and removing vertices. Every other vertex keeps its position.

namespace mledit {

StepOutcome stepAddVertex(CMlineEdit& run);
StepOutcome stepDeleteVertex(CMlineEdit& run);

// CMlineEdit::delete_OneVertex again and again at one index, in time that is linear in the vertices
// altogether. The record's table of positions has to be made anew afterwards.
void removeVertices(CMlineEdit& run, CMlineSegment& seg, int vertex, int times);

} // namespace mledit
