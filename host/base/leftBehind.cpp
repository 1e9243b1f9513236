#include "leftBehind.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace orvex {

namespace {

bool isTemporaryName(std::string_view name) {
    const std::size_t letters = kTemporaryPattern.find('X');
    const auto isChosen = [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
    };
    return name.size() == kTemporaryPattern.size() &&
           name.starts_with(kTemporaryPattern.substr(0, letters)) &&
           std::ranges::all_of(name.substr(letters), isChosen);
}

// The user's own, under that name alone: a second one may be somebody's to keep it.
bool isOurs(const struct stat& file) {
    return S_ISREG(file.st_mode) && file.st_uid == geteuid() && file.st_nlink == 1;
}

void removeIfDead(const std::string& path) {
    struct stat named {};
    if (lstat(path.c_str(), &named) != 0 || !isOurs(named)) {
        return;
    }
    const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK);
    if (file < 0) {
        return;
    }
    struct stat locked {};
    if (flock(file, LOCK_EX | LOCK_NB) == 0 && fstat(file, &locked) == 0 && isOurs(locked) &&
        locked.st_dev == named.st_dev && locked.st_ino == named.st_ino) {
        unlink(path.c_str());
    }
    close(file);
}

} // namespace

bool lockTemporary(int descriptor) {
    struct stat file {};
    const bool isRefused = flock(descriptor, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
    return !isRefused && fstat(descriptor, &file) == 0 && file.st_nlink > 0;
}

void removeLeftBehind(const std::string& folder) {
    std::error_code error;
    for (std::filesystem::directory_iterator at(folder, error), end; !error && at != end;
         at.increment(error)) {
        if (isTemporaryName(at->path().filename().native())) {
            removeIfDead(at->path());
        }
    }
}

} // namespace orvex
