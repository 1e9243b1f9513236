#pragma once

#include "HINSTANCE.h"
#include "textTable.h"

#include <memory>
#include <string>
#include <vector>

namespace orvex {

// The resource libraries of the process: binary Qt resource files, registered with their pictures
// under ":/" at the first opening and dropped at the last. The texts stand in the entry
// "texts.txt" (see textTable.h).
class ResourceLibraries {
public:
    static ResourceLibraries& instance();
    ~ResourceLibraries();

    // One opening of the file; null when it is no resource file. `path` in UTF-8.
    HINSTANCE open(const std::string& path);
    // False for a handle that has no opening left.
    bool release(HINSTANCE handle);

    // Null handle: the current library. Null where there is no such text.
    [[nodiscard]] const std::wstring* text(HINSTANCE handle, unsigned number) const;

    [[nodiscard]] HINSTANCE current() const { return m_current; }
    void setCurrent(HINSTANCE handle) { m_current = handle; }

private:
    struct Library {
        std::string path;
        int openings = 0;
        TextTable texts;
    };

    ResourceLibraries();
    [[nodiscard]] Library* find(HINSTANCE handle) const;
    static bool load(Library& library);

    // Closed ones stay, so that a handle is never given to another file: a look-up in a released
    // handle finds a closed library, not a foreign one.
    std::vector<std::unique_ptr<Library>> m_libraries;
    HINSTANCE m_current = nullptr;
};

} // namespace orvex
