#pragma once

#include <string>

namespace orvex {

// How a call ended, as the shell sees it.
enum class ExitStatus : int {
    done = 0,
    wrongCall = 2,
    unreadable = 3, // the drawing or the script
    unwritable = 4, // the result; nothing was left behind
    unplayable = 5, // the script; nothing was saved
};

// Why a call can't be carried out. The text in UTF-8, with file and line where they are known.
struct BatchFailure {
    enum class Cause { call, reading, writing, playing } cause = Cause::call;
    std::string text;
};

ExitStatus exitStatus(const BatchFailure& failure);

} // namespace orvex
