#pragma once

#include "Failure.h"
#include "HINSTANCE.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace orvex {

// Opens module files, calls their entries in the order that "moduleEntry.h" gives, and closes them
// at its own end, the last one first. That has to come before the end of statics, which the
// registry is. Nothing is unloaded while a command runs.
class ModuleLoader {
public:
    ModuleLoader();
    ~ModuleLoader();
    ModuleLoader(const ModuleLoader&) = delete;
    ModuleLoader& operator=(const ModuleLoader&) = delete;

    // Loads the file (UTF-8); one that is loaded already is fine.
    [[nodiscard]] std::optional<Failure> load(const std::string& path);
    [[nodiscard]] bool isLoaded(const std::string& path) const;

    // Unloads everything. False, and nothing is done, while a command runs.
    bool unloadAll();

    // Sends a message to a loaded module and returns its answer; nothing for an unknown path.
    std::optional<int> send(const std::string& path, int message);

    // Held by whoever runs code of a module.
    class Use {
    public:
        explicit Use(ModuleLoader& loader) : m_loader(loader) { ++m_loader.m_uses; }
        ~Use() { --m_loader.m_uses; }
        Use(const Use&) = delete;
        Use& operator=(const Use&) = delete;

    private:
        ModuleLoader& m_loader;
    };

private:
    struct Module;
    [[nodiscard]] Module* find(const std::string& path) const;
    static void unload(Module& module);

    std::vector<std::unique_ptr<Module>> m_modules;
    int m_uses = 0;
};

} // namespace orvex
