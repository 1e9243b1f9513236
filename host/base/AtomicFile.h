#pragma once

#include "Failure.h"
#include "temporaryFiles.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace orvex {

// What to do in a folder that admits no second file.
enum class ClosedFolder : std::uint8_t { refuse, writeInPlace };

// A file that is written whole or not at all: the bytes go to a file next to the target and replace
// it once they are complete on disk. Without commit nothing is left behind, not even by a process
// that is killed, where the folder admits files without a name; elsewhere the name is noted for
// removeTemporaryFiles. A link stays, and what
// it leads to is replaced; what is no regular file (a terminal, a pipe, a device) is written into.
class AtomicFile {
public:
    // `path` in UTF-8.
    explicit AtomicFile(std::string path, ClosedFolder closedFolder = ClosedFolder::refuse);
    // What is open already and stays so, such as standard output: written into. `name` is for
    // messages.
    AtomicFile(int descriptor, std::string name);
    ~AtomicFile();
    AtomicFile(const AtomicFile&) = delete;
    AtomicFile& operator=(const AtomicFile&) = delete;

    [[nodiscard]] const std::string& path() const { return m_path; } // as it was given

    std::optional<Failure> open();
    std::optional<Failure> write(std::string_view bytes);
    std::optional<Failure> commit();

private:
    std::optional<Failure> openRegular(bool exists, unsigned mode);
    std::optional<Failure> openDirectly(int flags);
    bool openNameless();
    void openNamed();
    std::optional<Failure> giveName();
    std::optional<Failure> replaceTarget();
    [[nodiscard]] Failure failure(int error) const; // an errno
    void discard();

    std::string m_path;
    ClosedFolder m_closedFolder = ClosedFolder::refuse;
    std::string m_target;    // links followed
    std::string m_temporary; // empty when the target is written into, or without a name yet
    TemporaryName m_note;
    bool m_isNameless = false;
    bool m_isBorrowed = false; // the descriptor is somebody else's
    int m_descriptor = -1;
};

// All of that at once.
std::optional<Failure> saveFile(const std::string& path, std::string_view bytes,
                                ClosedFolder closedFolder = ClosedFolder::refuse);
std::optional<Failure> saveFile(AtomicFile& file, std::string_view bytes);

} // namespace orvex
