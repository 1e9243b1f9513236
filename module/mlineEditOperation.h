#pragma once

#include "HINSTANCE.h"

// Runs one tool, 1 to 12, on a fresh CMlineEdit, with its texts from `resources`. Any other number
// runs none. What a tool can take back goes with it.
void mlineEditOperation(int tool, HINSTANCE resources);
