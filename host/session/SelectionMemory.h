#pragma once

#include <optional>
#include <vector>

struct KdDbStub;

namespace orvex {

// A selection while it is asked for.
struct SelectionProgress {
    std::vector<KdDbStub*> entities; // selected by now, in drawing order
    bool takesMlines = false;        // and nothing else
    bool removes = false;            // what is picked is taken away
    bool isUntouched = true;         // nothing was tried, so that an empty line may mean all
};

// What a session keeps between commands of what its user selected.
struct SelectionMemory {
    // Selected by hand while no command runs; the next command that wants a selection takes it
    // without asking. Always empty where a script answers.
    std::vector<KdDbStub*> chosen;
    std::vector<KdDbStub*> previous;           // of the last command that had one
    std::optional<SelectionProgress> progress; // while a question for a selection stands
};

} // namespace orvex
