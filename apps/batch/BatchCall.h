#pragma once

#include "Verb.h"

#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace orvex {

// What goes with several drawings in one call.
struct ManyOptions {
    std::optional<std::string> outputDir; // an output for each drawing there; none without
    std::string suffix;                   // between an output's stem and its ending
    bool overwrite = false;               // outputs may exist
    int jobs = 1;                         // processes at once
    bool keepGoing = false;               // after a failure
    std::optional<int> threads;           // that work on one drawing; else as many as are free
    std::optional<std::string> report;    // a file
};

// What the user calls the program for. Files in UTF-8, as typed.
struct VerbCall {
    std::unique_ptr<Verb> verb; // with its options
    std::vector<std::string> drawings;
    std::optional<std::string> output; // of a single drawing
    ManyOptions many;
    bool isOfMany = false; // several drawings, or an option that is for such
};

// A call that is answered at once, by help, the version, or a complaint.
struct AnsweredCall {
    bool isWrong = false;
    std::string text;
};

using BatchCall = std::variant<VerbCall, AnsweredCall>;

BatchCall parseBatchCall(int argc, const char* const* argv);

} // namespace orvex
