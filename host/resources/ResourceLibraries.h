#pragma once

#include "HINSTANCE.h"
#include "textTable.h"

#include <QByteArray>

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace orvex {

// The resource libraries of the process: binary Qt resource files, registered with their pictures
// under ":/" at the first opening and dropped at the last. The texts stand in the entry
// "texts.txt" (see textTable.h). Captions of windows, where they aren't those in the code, are Qt
// translations in the entry "captions.qm", installed for the same time.
class ResourceLibraries {
public:
    static ResourceLibraries& instance();
    ~ResourceLibraries();

    // One opening of the file; null when it is no sound resource file. `path` in UTF-8.
    HINSTANCE open(const std::string& path);
    // The file that was refused last, and why, to be shown; empty when none was since the last
    // call.
    [[nodiscard]] std::string takeRefusal() { return std::exchange(m_refusal, {}); }
    // False for a handle that has no opening left.
    bool release(HINSTANCE handle);

    // Null handle: the current library. Null where there is no such text.
    [[nodiscard]] const std::wstring* text(HINSTANCE handle, unsigned number) const;

    [[nodiscard]] HINSTANCE current() const { return m_current; }
    void setCurrent(HINSTANCE handle) { m_current = handle; }

private:
    class Captions;
    struct Library {
        std::string path;
        int openings = 0;
        QByteArray bytes; // Qt reads in them as long as they are registered
        TextTable texts;
        std::unique_ptr<Captions> captions;
    };

    ResourceLibraries();
    [[nodiscard]] Library* find(HINSTANCE handle) const;
    bool load(Library& library);
    bool refuse(const Library& library, const std::string& why);

    // Closed ones stay, so that a handle is never given to another file: a look-up in a released
    // handle finds a closed library, not a foreign one.
    std::vector<std::unique_ptr<Library>> m_libraries;
    std::vector<QByteArray> m_stillUsed; // of closed ones, by files that somebody holds open
    HINSTANCE m_current = nullptr;
    std::string m_refusal;
};

} // namespace orvex
