#pragma once

#include <cstdio>

namespace orvex {

class JoinRun;

// Prints what became of each place, a line each, and how many there are of a kind; as one JSON
// object where that is asked for.
void printJoin(const JoinRun& join, bool asJson, std::FILE* out);

} // namespace orvex
