#include "AtomicFile.h"

#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace orvex {

namespace {

std::string describe(int error) {
    return std::strerror(error);
}

// A limit on file sizes has to come back as an error: the signal would end the process with the
// temporary file left behind.
class IgnoredSizeSignal {
public:
    IgnoredSizeSignal() {
        struct sigaction ignore {};
        ignore.sa_handler = SIG_IGN;
        sigaction(SIGXFSZ, &ignore, &m_before);
    }
    ~IgnoredSizeSignal() { sigaction(SIGXFSZ, &m_before, nullptr); }
    IgnoredSizeSignal(const IgnoredSizeSignal&) = delete;
    IgnoredSizeSignal& operator=(const IgnoredSizeSignal&) = delete;

private:
    struct sigaction m_before {};
};

// Follows links, to a target that needn't exist. A ring of links is left for open to refuse.
std::string followLinks(const std::string& path) {
    constexpr int kMostLinks = 40;
    std::filesystem::path target = path;
    std::error_code error;
    for (int i = 0; i < kMostLinks && std::filesystem::is_symlink(target, error); ++i) {
        const std::filesystem::path next = std::filesystem::read_symlink(target, error);
        if (error) {
            break;
        }
        target = target.parent_path() / next; // an absolute one replaces the folder
    }
    return target.string();
}

// What a file that is newly made may be used for.
mode_t usualMode() {
    const mode_t mask = umask(0);
    umask(mask);
    return 0666U & ~mask;
}

// The name in a folder becomes lasting only with the folder itself.
void syncFolder(const std::string& folder) {
    const int descriptor = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor >= 0) {
        fsync(descriptor);
        close(descriptor);
    }
}

std::string folderOf(const std::string& path) {
    const std::string folder = std::filesystem::path(path).parent_path().string();
    return folder.empty() ? "." : folder;
}

} // namespace

AtomicFile::AtomicFile(const std::string& path) : m_path(followLinks(path)) {}

AtomicFile::~AtomicFile() {
    discard();
}

std::string AtomicFile::open() {
    struct stat present {};
    const bool exists = stat(m_path.c_str(), &present) == 0;
    if (!exists && errno != ENOENT) {
        return describe(errno);
    }
    if (exists && S_ISDIR(present.st_mode)) {
        return describe(EISDIR);
    }
    if (exists && !S_ISREG(present.st_mode)) {
        m_descriptor = ::open(m_path.c_str(), O_WRONLY | O_CLOEXEC);
        return m_descriptor < 0 ? describe(errno) : std::string();
    }
    // A file that may not be written is not to be replaced either.
    if (exists && access(m_path.c_str(), W_OK) != 0) {
        return describe(errno);
    }
    if (std::string error = openTemporary(); !error.empty()) {
        return error;
    }
    if (fchmod(m_descriptor, exists ? present.st_mode & 07777U : usualMode()) != 0) {
        return describe(errno);
    }
    return {};
}

std::string AtomicFile::openTemporary() {
    std::string name = (std::filesystem::path(folderOf(m_path)) / ".saving-XXXXXX").string();
    m_descriptor = mkostemp(name.data(), O_CLOEXEC);
    if (m_descriptor < 0) {
        return describe(errno);
    }
    m_temporary = std::move(name);
    return {};
}

std::string AtomicFile::write(std::string_view bytes) {
    const IgnoredSizeSignal ignored;
    while (!bytes.empty()) {
        const ssize_t written = ::write(m_descriptor, bytes.data(), bytes.size());
        if (written < 0 && errno != EINTR) {
            return describe(errno);
        }
        if (written > 0) {
            bytes.remove_prefix(static_cast<std::size_t>(written));
        }
    }
    return {};
}

std::string AtomicFile::commit() {
    const bool isPlace = !m_temporary.empty();
    if (isPlace && fsync(m_descriptor) != 0) {
        return describe(errno);
    }
    const int descriptor = m_descriptor;
    m_descriptor = -1;
    if (close(descriptor) != 0) {
        return describe(errno);
    }
    if (!isPlace) {
        return {};
    }
    if (rename(m_temporary.c_str(), m_path.c_str()) != 0) {
        return describe(errno);
    }
    m_temporary.clear();
    syncFolder(folderOf(m_path));
    return {};
}

void AtomicFile::discard() {
    if (m_descriptor >= 0) {
        close(m_descriptor);
        m_descriptor = -1;
    }
    if (!m_temporary.empty()) {
        unlink(m_temporary.c_str());
        m_temporary.clear();
    }
}

} // namespace orvex
