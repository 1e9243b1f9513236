#pragma once

#include "Failure.h"

namespace orvex {

// How a call ended, for the shell.
enum class ExitStatus : int {
    done = 0,
    wrongCall = 2,
    unreadable = 3, // the drawing or the script
    unwritable = 4, // the result; nothing was left behind
    unplayable = 5, // the script, or the module that it needs; nothing was saved
    missedPick = 6, // nothing was saved
    programFault = 7,
    interrupted = 130,
};

ExitStatus exitStatus(FailureCause cause);

} // namespace orvex
