#pragma once

#include "Verb.h"

#include <cstdio>

namespace orvex {

class JoinRun;

// How many places came to each result, and were left for each reason.
Counts joinCounts(const JoinRun& join);

// Prints what became of each place, a line each, and how many there are of a kind; as one JSON
// object where that is asked for.
void printJoin(const JoinRun& join, const DrawingTask& task, bool asJson, std::FILE* out);

} // namespace orvex
