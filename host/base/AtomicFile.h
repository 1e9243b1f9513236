#pragma once

#include "Failure.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace orvex {

// What to do in a folder that admits no second file.
enum class ClosedFolder : std::uint8_t { refuse, writeInPlace };

// A file that is written whole or not at all: the bytes go to a file next to the target and replace
// it once they are complete on disk. Without commit nothing is left behind. A link stays, and what
// it leads to is replaced; what is no regular file (a terminal, a pipe, a device) is written into.
class AtomicFile {
public:
    // `path` in UTF-8.
    explicit AtomicFile(std::string path, ClosedFolder closedFolder = ClosedFolder::refuse);
    ~AtomicFile();
    AtomicFile(const AtomicFile&) = delete;
    AtomicFile& operator=(const AtomicFile&) = delete;

    std::optional<Failure> open();
    std::optional<Failure> write(std::string_view bytes);
    std::optional<Failure> commit();

private:
    std::optional<Failure> openRegular(bool exists, unsigned mode);
    std::optional<Failure> openDirectly(int flags);
    [[nodiscard]] Failure failure(int error) const; // an errno
    void discard();

    std::string m_path; // as it was given
    ClosedFolder m_closedFolder;
    std::string m_target;    // links followed
    std::string m_temporary; // empty when the target is written into
    int m_descriptor = -1;
};

// All of that at once.
std::optional<Failure> saveFile(const std::string& path, std::string_view bytes,
                                ClosedFolder closedFolder = ClosedFolder::refuse);

} // namespace orvex
