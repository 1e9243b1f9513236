#pragma once

#include "Verb.h"

#include <cstddef>

class KdDbDatabase;

namespace orvex {

struct ListCounts {
    std::size_t mlines = 0;
    std::size_t styles = 0;
};

// Prints a drawing's list as one object; on one line, with the drawing's name in front, when it is
// one of many.
ListCounts printListAsJson(KdDbDatabase& database, const DrawingTask& task);

} // namespace orvex
