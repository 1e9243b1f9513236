#include "AtomicFile.h"

#include "leftBehind.h"

#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <random>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace orvex {

namespace {

constexpr int kMostTries = 100; // of names

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

// Files without a name get one by way of their descriptor.
std::string descriptorPath(int descriptor) {
    return "/proc/self/fd/" + std::to_string(descriptor);
}

std::string temporaryPattern(const std::string& target) {
    return (std::filesystem::path(folderOf(target)) / kTemporaryPattern).string();
}

} // namespace

AtomicFile::AtomicFile(std::string path, ClosedFolder closedFolder)
    : m_path(std::move(path)), m_closedFolder(closedFolder) {}

AtomicFile::AtomicFile(int descriptor, std::string name)
    : m_path(std::move(name)), m_isBorrowed(true), m_descriptor(descriptor) {}

AtomicFile::~AtomicFile() {
    discard();
}

Failure AtomicFile::failure(int error) const {
    return {FailureCause::unwritableOutput, m_path, 0, std::strerror(error)};
}

std::optional<Failure> AtomicFile::open() {
    if (m_isBorrowed) {
        return std::nullopt;
    }
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
    if (!openNameless()) {
        openNamed();
    }
    if (m_descriptor < 0 && exists && m_closedFolder == ClosedFolder::writeInPlace) {
        return openDirectly(O_WRONLY | O_TRUNC);
    }
    if (m_descriptor < 0 || fchmod(m_descriptor, mode) != 0) {
        return failure(errno);
    }
    return std::nullopt;
}

// Not every file system has such files, and not every system a place to give them a name.
bool AtomicFile::openNameless() {
    m_descriptor =
        ::open(folderOf(m_target).c_str(), O_TMPFILE | O_WRONLY | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (m_descriptor >= 0 && access(descriptorPath(m_descriptor).c_str(), F_OK) != 0) {
        close(m_descriptor);
        m_descriptor = -1;
    }
    m_isNameless = m_descriptor >= 0;
    return m_isNameless;
}

void AtomicFile::openNamed() {
    const HeldSignals held;
    for (int i = 0; i < kMostTries && m_descriptor < 0; ++i) {
        std::string name = temporaryPattern(m_target);
        m_descriptor = mkostemp(name.data(), O_CLOEXEC);
        if (m_descriptor < 0) {
            return;
        }
        if (lockTemporary(m_descriptor)) {
            m_temporary = std::move(name);
            m_note.note(m_temporary);
        } else {
            close(std::exchange(m_descriptor, -1));
            errno = EAGAIN;
        }
    }
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
    if (m_isBorrowed) {
        return std::nullopt;
    }
    const bool replaces = m_isNameless || !m_temporary.empty();
    if (replaces && fsync(m_descriptor) != 0) {
        return failure(errno);
    }
    // From here on the target is the new file or the old one, and nothing else has a name.
    const HeldSignals held;
    if (m_isNameless) {
        if (auto unnamed = giveName()) {
            return unnamed;
        }
    }
    // Only a close tells that all is written, and would let the lock go while the old name is
    // there.
    const int lock = replaces ? fcntl(m_descriptor, F_DUPFD_CLOEXEC, 0) : -1;
    std::optional<Failure> failed;
    if (close(std::exchange(m_descriptor, -1)) != 0) {
        failed = failure(errno);
    } else if (replaces) {
        failed = replaceTarget();
    }
    if (lock >= 0) {
        close(lock);
    }
    return failed;
}

// A link can't replace a file; only a rename can.
std::optional<Failure> AtomicFile::giveName() {
    flock(m_descriptor, LOCK_EX | LOCK_NB); // before there is a name that somebody else could see
    const std::string source = descriptorPath(m_descriptor);
    std::random_device random;
    for (int i = 0; i < kMostTries; ++i) {
        std::string name = temporaryPattern(m_target);
        for (std::size_t at = name.size() - 6; at < name.size(); ++at) {
            name[at] = static_cast<char>('a' + random() % 26U);
        }
        if (linkat(AT_FDCWD, source.c_str(), AT_FDCWD, name.c_str(), AT_SYMLINK_FOLLOW) == 0) {
            m_temporary = std::move(name);
            return std::nullopt;
        }
        if (errno != EEXIST) {
            break;
        }
    }
    return failure(errno);
}

std::optional<Failure> AtomicFile::replaceTarget() {
    if (rename(m_temporary.c_str(), m_target.c_str()) != 0) {
        return failure(errno);
    }
    m_temporary.clear();
    m_note.clear();
    syncFolder(folderOf(m_target));
    return std::nullopt;
}

void AtomicFile::discard() {
    const HeldSignals held;
    if (m_descriptor >= 0 && !m_isBorrowed) {
        close(m_descriptor);
        m_descriptor = -1;
    }
    if (!m_temporary.empty()) {
        unlink(m_temporary.c_str());
        m_temporary.clear();
    }
    m_note.clear();
}

std::optional<Failure> saveFile(const std::string& path, std::string_view bytes,
                                ClosedFolder closedFolder) {
    AtomicFile file(path, closedFolder);
    return saveFile(file, bytes);
}

std::optional<Failure> saveFile(AtomicFile& file, std::string_view bytes) {
    auto failure = file.open();
    if (!failure) {
        failure = file.write(bytes);
    }
    return failure ? failure : file.commit();
}

} // namespace orvex
