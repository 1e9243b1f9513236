#include "moduleFiles.h"

#include <filesystem>

namespace orvex {

std::vector<std::string> moduleFiles(const std::optional<std::string>& named) {
    namespace fs = std::filesystem;
    constexpr const char* kModuleFile = "libOmxMLStyle.omx";
    if (named) {
        return {*named};
    }
    std::error_code error;
    const fs::path program = fs::read_symlink("/proc/self/exe", error);
    const fs::path folder = program.parent_path();
    return {(folder / kModuleFile).string(),
            (folder / "../lib/orvex" / kModuleFile).lexically_normal().string()};
}

} // namespace orvex
