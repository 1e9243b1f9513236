#pragma once

#include "DrawingConversion.h"
#include "JoinPlace.h"
#include "pictureWriter.h"

#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace orvex {

// What the user calls the program for. Files in UTF-8, as typed.

struct RunCall {
    std::string drawing;
    std::string script;                // "-" is standard input
    std::optional<std::string> output; // nothing is saved without
    std::optional<std::string> module; // else beside the program or in the library folder
};

struct ShowCall {
    std::string drawing;
    std::string output;
    PictureSize size;
};

struct ListCall {
    std::string drawing;
    bool asJson = false;
};

struct JoinCall {
    std::string drawing;
    std::optional<std::string> output;     // nothing is saved without
    std::optional<std::string> saveScript; // the joints as a script
    std::optional<std::string> module;     // else beside the program or in the library folder
    std::vector<std::string> layers;       // all without
    JoinOptions options;
    bool asJson = false;
};

struct AuditCall {
    std::string drawing;
    std::optional<std::string> output; // nothing is repaired without
    bool asJson = false;
};

struct ConvertCall {
    std::string drawing;
    std::string output;
    DrawingForm form = DrawingForm::text;
};

// A call that is answered at once, by help, the version, or a complaint.
struct AnsweredCall {
    bool isWrong = false;
    std::string text;
};

using BatchCall =
    std::variant<RunCall, ShowCall, ListCall, JoinCall, AuditCall, ConvertCall, AnsweredCall>;

BatchCall parseBatchCall(int argc, const char* const* argv);

} // namespace orvex
