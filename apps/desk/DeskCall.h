#pragma once

#include <optional>
#include <string>
#include <variant>

namespace orvex {

// What the user calls the program for. Files in UTF-8, as typed.
struct DeskCall {
    std::optional<std::string> drawing;
    std::optional<std::string> module; // else beside the program or in the library folder
};

// A call that is answered at once, by help, the version, or a complaint.
struct AnsweredDeskCall {
    bool isWrong = false;
    std::string text;
};

std::variant<DeskCall, AnsweredDeskCall> parseDeskCall(int argc, const char* const* argv);

} // namespace orvex
