#include "wholeFile.h"

#include "AtomicFile.h"
#include "readFile.h"

namespace orvex {

std::optional<std::string> readWholeFile(const std::string& path, std::uint64_t largest) {
    auto bytes = readRegularFile(path, {}, largest);
    return bytes ? std::optional(std::move(*bytes)) : std::nullopt;
}

bool saveWholeFile(const std::string& path, std::string_view bytes) {
    return !saveFile(path, bytes, ClosedFolder::writeInPlace);
}

} // namespace orvex
