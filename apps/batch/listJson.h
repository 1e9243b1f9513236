#pragma once

class KdDbDatabase;

namespace orvex {

// Prints multilines and styles as one JSON object on standard output, a line an entry. Numbers
// read back as the same double.
void printListAsJson(KdDbDatabase& database);

} // namespace orvex
