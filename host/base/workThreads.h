#pragma once

namespace orvex {

// How many threads may work on one drawing at once; as many as there are processors unless set.
// What comes out doesn't depend on it.
[[nodiscard]] int workThreads();
void setWorkThreads(int threads); // at least 1

} // namespace orvex
