#pragma once

#include <optional>
#include <string>
#include <vector>

namespace orvex {

// Where the module of multilines may be, in the order to try: the file that the user named, else
// beside the program, as in a build tree, or in the library folder of an installation.
std::vector<std::string> moduleFiles(const std::optional<std::string>& named);

} // namespace orvex
