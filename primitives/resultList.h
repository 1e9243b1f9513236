#pragma once

#include "resbuf.h"

// Finds the first entry of a type in a list of result buffers: 0, and the entry in `out`; -1 when
// there is none, `out` unwritten. The list keeps its owner.
short gx_Associate(resbuf* list, short type, resbuf** out);
