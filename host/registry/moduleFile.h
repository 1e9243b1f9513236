#pragma once

#include <optional>
#include <string>

namespace orvex {

// Why a file (UTF-8 path) must not be given to the system's loader; nothing when it may. The loader
// maps what the headers promise and is ended by a signal where the file ends before. What isn't an
// ELF file of 64 bits the loader refuses by itself.
std::optional<std::string> findFaultOfModuleFile(const std::string& path);

} // namespace orvex
