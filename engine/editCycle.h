#pragma once

#include "HINSTANCE.h"

class CMlineEdit;

namespace mledit {

struct EditTool;

// The cycle of picks and edits that all tools share, until the user ends it. Returns the status of
// the last prompt. `resources` holds the texts.
int runTool(CMlineEdit& run, const EditTool& tool, HINSTANCE resources);

} // namespace mledit
