#pragma once

#include <vector>

struct KdDbStub;

namespace orvex {

// What a session keeps between commands of what its user selected.
struct SelectionMemory {
    // Selected by hand while no command runs; the next command that wants a selection takes it
    // without asking. Always empty where a script answers.
    std::vector<KdDbStub*> chosen;
    std::vector<KdDbStub*> previous; // of the last command that had one
};

} // namespace orvex
