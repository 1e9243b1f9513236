#pragma once

#include <string>

namespace orvex {

// Where the programs' data lie: beside the host's library in a build tree, in share/orvex of an
// installation. Without a "/" at its end.
std::string dataFolder();

// ORVEX_ROOT where that is set, else the data folder. Without a "/" at its end.
std::string hostRootFolder();

} // namespace orvex
