#pragma once

#include <vector>

// The three kinds of crossing, each told as which element is cut between which two crossings.

enum class CrossKind {
    closed, // the first multiline goes under the second
    open,   // and the second's outer lines open too
    merged, // both open as nested corners, middle lines run through
};

// An entry of the matrix of crossings: element of the first, element of the second.
struct CrossingAt {
    int first;
    int second;

    friend bool operator==(const CrossingAt&, const CrossingAt&) = default;
};

struct CrossCut {
    bool cutsSecond; // else the first multiline
    int element;
    CrossingAt from;
    CrossingAt to;

    friend bool operator==(const CrossCut&, const CrossCut&) = default;
};

// The cuts in their order, for multilines of so many elements.
std::vector<CrossCut> crossCuts(CrossKind kind, int firstElements, int secondElements);
