#pragma once

namespace orvex {

// From now on a program that runs out of memory where nothing can be caught (in a function of a
// library that may not throw, before main) says so and ends with that status, without its
// temporary files, where it would end by an abort. `program` is for the message, and outlives it.
void sayWhenMemoryEnds(const char* program, int status);

// While one lives, the program also ends so where it could catch what is thrown: for a call into a
// library that doesn't survive its own exception. Counts for the thread that made it.
class MemoryEndIsFinal {
public:
    MemoryEndIsFinal();
    ~MemoryEndIsFinal();
    MemoryEndIsFinal(const MemoryEndIsFinal&) = delete;
    MemoryEndIsFinal& operator=(const MemoryEndIsFinal&) = delete;
};

} // namespace orvex
