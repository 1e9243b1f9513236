#pragma once

#include <optional>
#include <string>
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
    std::vector<KdDbStub*> chosen; // in drawing order
    // What a script answers to have the same selected. Empty: the handles say so.
    std::vector<std::wstring> chosenLines;
    std::vector<KdDbStub*> inUse;              // of the command that runs
    std::vector<KdDbStub*> previous;           // of the last command that had one
    std::optional<SelectionProgress> progress; // while a question for a selection stands
};

} // namespace orvex
