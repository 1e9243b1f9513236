#pragma once

#include "Verb.h"

#include <memory>
#include <string>
#include <variant>

namespace orvex {

// What the user calls the program for.
struct VerbCall {
    std::unique_ptr<Verb> verb; // with its options
    DrawingTask task;
};

// A call that is answered at once, by help, the version, or a complaint.
struct AnsweredCall {
    bool isWrong = false;
    std::string text;
};

using BatchCall = std::variant<VerbCall, AnsweredCall>;

BatchCall parseBatchCall(int argc, const char* const* argv);

} // namespace orvex
