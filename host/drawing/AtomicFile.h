#pragma once

#include <string>
#include <string_view>

namespace orvex {

// A file that is written whole or not at all: the bytes go to a file beside the target, which takes
// its place when it is complete on disk. Without commit nothing is left behind. A link stays and
// what it leads to is replaced; what is no file (a terminal, a pipe) is written to as it is. Errors
// are texts in UTF-8, empty when all went well.
class AtomicFile {
public:
    explicit AtomicFile(const std::string& path);
    ~AtomicFile();
    AtomicFile(const AtomicFile&) = delete;
    AtomicFile& operator=(const AtomicFile&) = delete;

    std::string open();
    std::string write(std::string_view bytes);
    std::string commit();

private:
    std::string openTemporary();
    void discard();

    std::string m_path;      // of the target, links followed
    std::string m_temporary; // empty when the target is written to directly
    int m_descriptor = -1;
};

} // namespace orvex
