#include "ModuleLoader.h"

#include "KdRxDictionary.h"
#include "KdRxDynamicLinker.h"
#include "LoadedModules.h"
#include "ResourceLibraries.h"
#include "hostText.h"
#include "kdrxRegistry.h"
#include "moduleEntry.h"
#include "moduleFile.h"

#include <dlfcn.h>

#include <filesystem>

namespace orvex {

namespace {

using DllMainFunction = int (*)(HINSTANCE, int, void*);
using EntryPointFunction = int (*)(int, void*);
using ApiVersionFunction = int (*)(int);

struct LibraryCloser {
    void operator()(void* library) const { dlclose(library); }
};

// dlopen searches library folders for a name without a "/".
std::string absolutePath(const std::string& path) {
    std::error_code error;
    const std::filesystem::path absolute = std::filesystem::absolute(path, error);
    return error ? path : absolute.lexically_normal().string();
}

template <class Function>
Function entry(void* library, const char* name) {
    return reinterpret_cast<Function>(dlsym(library, name));
}

Failure unloadable(const std::string& path, std::string text) {
    return {FailureCause::unloadableModule, path, 0, std::move(text)};
}

// The system's text begins with the file to blame, which may be a library that the module needs.
std::string lastLinkerError(const std::string& path) {
    const char* const told = dlerror();
    std::string text = told != nullptr ? told : hostText("it can't be opened");
    if (text.starts_with(path + ": ")) {
        text.erase(0, path.size() + 2);
    }
    return text;
}

// A module names the host's libraries without a folder, and needn't lie beside them: it finds those
// that are open. This library is; the two for windows are opened here, once and for good. A host
// without them still loads modules that need none.
void openWindowLibraries() {
    static const bool done = [] {
        Dl_info self{};
        if (dladdr(reinterpret_cast<const void*>(&openWindowLibraries), &self) == 0) {
            return false;
        }
        const auto folder = std::filesystem::path(self.dli_fname).parent_path();
        for (const char* name : {"libVoMFCWrapper.so", "liborvexui.so"}) {
            dlopen((folder / name).c_str(), RTLD_LAZY | RTLD_LOCAL);
        }
        return true;
    }();
    (void)done;
}

} // namespace

struct ModuleLoader::Module {
    std::string path;
    std::unique_ptr<void, LibraryCloser> library;
    HINSTANCE handle = nullptr;
    DllMainFunction dllMain = nullptr;
    EntryPointFunction entryPoint = nullptr;
};

ModuleLoader::ModuleLoader() = default;

ModuleLoader::~ModuleLoader() {
    unloadAll();
}

ModuleLoader::Module* ModuleLoader::find(const std::string& path) const {
    const std::string wanted = absolutePath(path);
    for (const auto& each : m_modules) {
        if (each->path == wanted) {
            return each.get();
        }
    }
    return nullptr;
}

bool ModuleLoader::isLoaded(const std::string& path) const {
    return find(path) != nullptr;
}

std::optional<Failure> ModuleLoader::load(const std::string& path) {
    if (isLoaded(path)) {
        return std::nullopt;
    }
    openWindowLibraries();
    auto module = std::make_unique<Module>();
    module->path = absolutePath(path);
    if (auto fault = findFaultOfModuleFile(module->path)) {
        return unloadable(module->path, std::move(*fault));
    }
    module->library.reset(dlopen(module->path.c_str(), RTLD_NOW | RTLD_LOCAL));
    if (!module->library) {
        return unloadable(module->path, lastLinkerError(module->path));
    }
    void* const library = module->library.get();
    module->dllMain = entry<DllMainFunction>(library, "DllMain");
    module->entryPoint = entry<EntryPointFunction>(library, "kdrxEntryPoint");
    const auto apiVersion = entry<ApiVersionFunction>(library, "kdrxGetApiVersion");
    if (module->dllMain == nullptr || module->entryPoint == nullptr || apiVersion == nullptr) {
        return unloadable(module->path, hostText("it isn't a module"));
    }
    if (apiVersion(0) != kApiVersion) {
        return unloadable(module->path, hostText("the module is for another version of the host"));
    }
    module->handle = addModuleHandle(module->path);
    module->dllMain(module->handle, kReasonAttach, nullptr);
    (void)ResourceLibraries::instance().takeRefusal(); // of what the module didn't ask for
    if (module->entryPoint(kMessageLoad, module.get()) == kLoadFailed) {
        module->dllMain(module->handle, kReasonDetach, nullptr);
        dropModuleHandle(module->handle);
        const std::string refusal = ResourceLibraries::instance().takeRefusal();
        return unloadable(module->path, hostText("the module or its texts can't be loaded") +
                                            (refusal.empty() ? refusal : " (" + refusal + ')'));
    }
    m_modules.push_back(std::move(module));
    return std::nullopt;
}

std::optional<int> ModuleLoader::send(const std::string& path, int message) {
    Module* const module = find(path);
    return module != nullptr ? std::optional(module->entryPoint(message, module)) : std::nullopt;
}

void ModuleLoader::unload(Module& module) {
    module.entryPoint(kMessageUnload, &module);
    module.dllMain(module.handle, kReasonDetach, nullptr);
    dropModuleHandle(module.handle);
    if (auto* const linker = KdRxDynamicLinker::cast(kdrxSysRegistry()->at(L"DynamicLinker"))) {
        linker->forget(&module);
    }
}

bool ModuleLoader::unloadAll() {
    if (m_uses > 0) {
        return false;
    }
    while (!m_modules.empty()) {
        unload(*m_modules.back());
        m_modules.pop_back();
    }
    return true;
}

} // namespace orvex
