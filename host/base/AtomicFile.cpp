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

// A limit on file sizes or a pipe without a reader has to come back as an error: the signal would
// end the process with the temporary file left behind.
class IgnoredSignals {
public:
    IgnoredSignals() {
        struct sigaction ignore {};
        ignore.sa_handler = SIG_IGN;
        sigaction(SIGXFSZ, &ignore, &m_size);
        sigaction(SIGPIPE, &ignore, &m_pipe);
    }
    ~IgnoredSignals() {
        sigaction(SIGXFSZ, &m_size, nullptr);
        sigaction(SIGPIPE, &m_pipe, nullptr);
    }
    IgnoredSignals(const IgnoredSignals&) = delete;
    IgnoredSignals& operator=(const IgnoredSignals&) = delete;

private:
    struct sigaction m_size {};
    struct sigaction m_pipe {};
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

AtomicFile::AtomicFile(std::string path, ClosedFolder closedFolder)
    : m_path(std::move(path)), m_closedFolder(closedFolder) {}

AtomicFile::~AtomicFile() {
    discard();
}

Failure AtomicFile::failure(int error) const {
    return {FailureCause::unwritableOutput, m_path, 0, std::strerror(error)};
}

std::optional<Failure> AtomicFile::open() {
    struct stat present {};
    const bool exists = stat(m_path.c_str(), &present) == 0;
    if (!exists && errno != ENOENT) {
        return failure(errno);
    }
    if (exists && S_ISDIR(present.st_mode)) {
        return failure(EISDIR);
    }
    if (exists && !S_ISREG(present.st_mode)) {
        m_target = m_path; // links to pipes needn't have a name to follow
        return openDirectly(O_WRONLY);
    }
    m_target = followLinks(m_path);
    // A file that may not be written is not to be replaced either.
    if (exists && access(m_target.c_str(), W_OK) != 0) {
        return failure(errno);
    }
    return openRegular(exists, exists ? present.st_mode & 07777U : usualMode());
}

std::optional<Failure> AtomicFile::openRegular(bool exists, unsigned mode) {
    std::string name = (std::filesystem::path(folderOf(m_target)) / ".saving-XXXXXX").string();
    m_descriptor = mkostemp(name.data(), O_CLOEXEC);
    if (m_descriptor < 0 && exists && m_closedFolder == ClosedFolder::writeInPlace) {
        return openDirectly(O_WRONLY | O_TRUNC);
    }
    if (m_descriptor < 0) {
        return failure(errno);
    }
    m_temporary = std::move(name);
    if (fchmod(m_descriptor, mode) != 0) {
        return failure(errno);
    }
    return std::nullopt;
}

std::optional<Failure> AtomicFile::openDirectly(int flags) {
    m_descriptor = ::open(m_target.c_str(), flags | O_CLOEXEC);
    return m_descriptor < 0 ? std::optional(failure(errno)) : std::nullopt;
}

std::optional<Failure> AtomicFile::write(std::string_view bytes) {
    const IgnoredSignals ignored;
    while (!bytes.empty()) {
        const ssize_t written = ::write(m_descriptor, bytes.data(), bytes.size());
        if (written < 0 && errno != EINTR) {
            return failure(errno);
        }
        if (written > 0) {
            bytes.remove_prefix(static_cast<std::size_t>(written));
        }
    }
    return std::nullopt;
}

std::optional<Failure> AtomicFile::commit() {
    const bool replaces = !m_temporary.empty();
    if (replaces && fsync(m_descriptor) != 0) {
        return failure(errno);
    }
    const int descriptor = m_descriptor;
    m_descriptor = -1;
    if (close(descriptor) != 0) {
        return failure(errno);
    }
    if (!replaces) {
        return std::nullopt;
    }
    if (rename(m_temporary.c_str(), m_target.c_str()) != 0) {
        return failure(errno);
    }
    m_temporary.clear();
    syncFolder(folderOf(m_target));
    return std::nullopt;
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

std::optional<Failure> saveFile(const std::string& path, std::string_view bytes,
                                ClosedFolder closedFolder) {
    AtomicFile file(path, closedFolder);
    auto failure = file.open();
    if (!failure) {
        failure = file.write(bytes);
    }
    return failure ? failure : file.commit();
}

} // namespace orvex
