#include "AutosaveStore.h"

#include "AtomicFile.h"
#include "hostText.h"
#include "leftBehind.h"
#include "readFile.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <random>
#include <sstream>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace orvex {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kPrefix = "desk-";
constexpr std::string_view kLock = ".lock";
constexpr std::size_t kLetters = 8;
constexpr std::uint64_t kLargestOriginal = 1U << 16U;

Failure failure(const std::string& path, int error) {
    return {FailureCause::unwritableOutput, path, 0, std::strerror(error)};
}

bool isName(std::string_view name) {
    const auto isLetter = [](char c) { return c >= 'a' && c <= 'z'; };
    return name.size() == kPrefix.size() + kLetters && name.starts_with(kPrefix) &&
           std::ranges::all_of(name.substr(kPrefix.size()), isLetter);
}

std::string newName() {
    std::random_device random;
    std::string name(kPrefix);
    for (std::size_t i = 0; i < kLetters; ++i) {
        name += static_cast<char>('a' + random() % 26U);
    }
    return name;
}

// A file of the user's that is no link to somewhere else.
bool isOwnFile(const struct stat& file) {
    return S_ISREG(file.st_mode) && file.st_uid == geteuid();
}

std::optional<struct stat> statusOf(const std::string& path) {
    struct stat file {};
    return lstat(path.c_str(), &file) == 0 ? std::optional(file) : std::nullopt;
}

// What others may look into or write into is no place for drawings.
std::optional<Failure> makeFolder(const std::string& folder) {
    std::error_code error;
    const fs::path parent = fs::path(folder).parent_path();
    if (!fs::exists(parent, error) && parent.has_relative_path()) {
        if (auto failed = makeFolder(parent.string())) {
            return failed;
        }
    }
    if (mkdir(folder.c_str(), S_IRWXU) != 0 && errno != EEXIST) {
        return failure(folder, errno);
    }
    return std::nullopt;
}

std::optional<Failure> makePrivateFolder(const std::string& folder) {
    if (auto failed = makeFolder(folder)) {
        return failed;
    }
    const auto present = statusOf(folder);
    if (!present || !S_ISDIR(present->st_mode) || present->st_uid != geteuid()) {
        return failure(folder, EACCES);
    }
    if ((present->st_mode & 0777U) != S_IRWXU && chmod(folder.c_str(), S_IRWXU) != 0) {
        return failure(folder, errno);
    }
    return std::nullopt;
}

// The lock file may have been removed by who held the lock before.
bool lockFile(int descriptor) {
    struct stat file {};
    return flock(descriptor, LOCK_EX | LOCK_NB) == 0 && fstat(descriptor, &file) == 0 &&
           file.st_nlink > 0 && isOwnFile(file);
}

} // namespace

Result<AutosaveEntry> AutosaveEntry::make(const std::string& folder) {
    constexpr int kMostTries = 100;
    if (folder.empty()) {
        return Failure{
            FailureCause::unwritableOutput, {}, 0, hostText("the user has no home folder")};
    }
    if (auto failed = makePrivateFolder(folder)) {
        return *failed;
    }
    int error = EEXIST;
    for (int i = 0; i < kMostTries && error == EEXIST; ++i) {
        const std::string stem = (fs::path(folder) / newName()).string();
        const int lock = ::open((stem + std::string(kLock)).c_str(),
                                O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR);
        error = lock < 0 ? errno : EEXIST;
        if (lock >= 0 && lockFile(lock)) {
            return AutosaveEntry(stem, lock);
        }
        if (lock >= 0) {
            close(lock); // somebody took it for a dead one's
        }
    }
    return failure(folder, error);
}

std::optional<AutosaveEntry> AutosaveEntry::claim(const std::string& folder,
                                                  const std::string& name) {
    const std::string stem = (fs::path(folder) / name).string();
    const int lock =
        ::open((stem + std::string(kLock)).c_str(), O_RDWR | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK);
    if (lock < 0) {
        return std::nullopt;
    }
    if (!lockFile(lock)) {
        close(lock);
        return std::nullopt;
    }
    return AutosaveEntry(stem, lock);
}

AutosaveEntry::AutosaveEntry(AutosaveEntry&& other) noexcept
    : m_stem(std::move(other.m_stem)), m_lock(std::exchange(other.m_lock, -1)) {}

AutosaveEntry& AutosaveEntry::operator=(AutosaveEntry&& other) noexcept {
    std::swap(m_stem, other.m_stem);
    std::swap(m_lock, other.m_lock);
    return *this;
}

AutosaveEntry::~AutosaveEntry() {
    release();
}

void AutosaveEntry::release() {
    if (m_lock < 0) {
        return;
    }
    if (!hasDrawing()) {
        drop();
        unlink(fileWith(".lock").c_str());
    }
    close(m_lock);
    m_lock = -1;
}

std::optional<Failure> AutosaveEntry::writeOriginal(const AutosavedDrawing& original) const {
    std::ostringstream text;
    text << original.written << ' ' << original.size << '\n' << original.path;
    return saveFile(fileWith(".of"), text.str());
}

AutosavedDrawing AutosaveEntry::readOriginal() const {
    AutosavedDrawing original;
    const auto text = readRegularFile(fileWith(".of"), {}, kLargestOriginal);
    if (!text) {
        return original;
    }
    std::istringstream stream(*text);
    if (stream >> original.written >> original.size && stream.get() == '\n') {
        original.path = text->substr(static_cast<std::size_t>(stream.tellg()));
        return original;
    }
    return {};
}

bool AutosaveEntry::hasDrawing() const {
    const auto file = statusOf(drawingFile());
    return file && isOwnFile(*file);
}

std::int64_t AutosaveEntry::savedAt() const {
    const auto file = statusOf(drawingFile());
    return file ? std::int64_t{file->st_mtim.tv_sec} * 1000 + file->st_mtim.tv_nsec / 1'000'000 : 0;
}

void AutosaveEntry::drop() const {
    unlink(drawingFile().c_str());
    unlink(fileWith(".of").c_str());
}

std::string autosaveFolder() {
    const auto value = [](const char* name) {
        const char* const text = std::getenv(name);
        return std::string(text != nullptr && *text == '/' ? text : "");
    };
    std::string state = value("XDG_STATE_HOME");
    if (state.empty()) {
        const std::string home = value("HOME");
        if (home.empty()) {
            return {};
        }
        state = home + "/.local/state";
    }
    return state + "/orvex/autosave";
}

std::vector<AutosaveEntry> claimAutosaves(const std::string& folder) {
    removeLeftBehind(folder);
    std::vector<AutosaveEntry> entries;
    std::error_code error;
    std::vector<std::string> names;
    for (fs::directory_iterator at(folder, error), end; !error && at != end; at.increment(error)) {
        const fs::path file = at->path();
        if (file.extension() == kLock && isName(file.stem().string())) {
            names.push_back(file.stem().string());
        }
    }
    for (const std::string& name : names) {
        auto entry = AutosaveEntry::claim(folder, name);
        if (entry && entry->hasDrawing()) {
            entries.push_back(std::move(*entry));
        }
    }
    std::ranges::sort(entries, std::greater(), &AutosaveEntry::savedAt);
    return entries;
}

} // namespace orvex
