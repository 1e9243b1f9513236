#pragma once

#include "Failure.h"

#include <cstdint>
#include <functional>
#include <limits>
#include <string>

namespace orvex {

// Called now and then with the part that is done, from 0 to 1; false gives up.
using Progress = std::function<bool(double)>;

// All bytes of a file (its path in UTF-8) that hasn't more than `largest`. What is no regular file
// is refused at once: a pipe may have no writer, a device no end. The causes of a failure are
// unreadableInput and, by `progress`, interrupted.
Result<std::string>
readRegularFile(const std::string& path, const Progress& progress = {},
                std::uint64_t largest = std::numeric_limits<std::uint64_t>::max());

// All bytes up to the end of standard input, whatever it is: a pipe, a file. Messages call it
// "standard input".
Result<std::string> readStandardInput();

} // namespace orvex
