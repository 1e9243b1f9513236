#pragma once

#include <functional>
#include <string>

namespace orvex {

// From a bare file name to its path on the support path; empty when there is none.
using SupportFileFinder = std::function<std::wstring(const std::wstring& name)>;

// Objects know no folders, so whoever puts the host together says how support files are found.
// Returns the finder before; without one no file is found.
SupportFileFinder setSupportFileFinder(SupportFileFinder finder);

} // namespace orvex
