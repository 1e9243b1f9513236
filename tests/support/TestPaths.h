#pragma once

#include <filesystem>

namespace orvex::testing {

/// Root of the source tree, for sample drawings and expected results.
std::filesystem::path sourceDir();

/// The folder with the programs, the libraries and the module of this build.
std::filesystem::path binDir();

} // namespace orvex::testing
