#include "libraryFile.h"

#include "textCodec.h"

#include <fstream>

namespace fs = std::filesystem;

namespace mledit {

fs::path libraryPath(const wchar_t* path) {
    return path != nullptr ? fs::path(orvex::narrow(path)) : fs::path();
}

std::optional<std::string> readLibraryFile(const fs::path& path) {
    constexpr std::uintmax_t kGreatestSize = 64U << 20U;
    std::error_code error;
    if (!fs::is_regular_file(path, error)) {
        return std::nullopt;
    }
    const std::uintmax_t size = fs::file_size(path, error);
    if (error || size > kGreatestSize) {
        return std::nullopt;
    }
    std::ifstream file(path, std::ios::binary);
    if (!file.is_open()) {
        return std::nullopt;
    }
    std::string bytes(static_cast<std::size_t>(size), '\0');
    file.read(bytes.data(), static_cast<std::streamsize>(size));
    return file.gcount() == static_cast<std::streamsize>(size) ? std::optional(std::move(bytes))
                                                               : std::nullopt;
}

} // namespace mledit
