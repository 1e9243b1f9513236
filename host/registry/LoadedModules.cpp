#include "LoadedModules.h"

#include <memory>
#include <vector>

namespace orvex {

namespace {

struct ModuleName {
    std::string path; // empty once the handle was given up
};

std::vector<std::unique_ptr<ModuleName>>& moduleNames() {
    static std::vector<std::unique_ptr<ModuleName>> names;
    return names;
}

// Handles come from anywhere, so they are compared and never followed.
ModuleName* findModule(HINSTANCE module) {
    for (const auto& each : moduleNames()) {
        if (reinterpret_cast<HINSTANCE>(each.get()) == module) {
            return each.get();
        }
    }
    return nullptr;
}

} // namespace

std::string modulePath(HINSTANCE module) {
    const ModuleName* const name = findModule(module);
    return name != nullptr ? name->path : std::string();
}

HINSTANCE addModuleHandle(const std::string& path) {
    moduleNames().push_back(std::make_unique<ModuleName>(ModuleName{path}));
    return reinterpret_cast<HINSTANCE>(moduleNames().back().get());
}

void dropModuleHandle(HINSTANCE module) {
    if (ModuleName* const name = findModule(module)) {
        name->path.clear();
    }
}

} // namespace orvex
