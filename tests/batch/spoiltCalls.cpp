// Preloaded into a program under test: spoils the n-th system call that concerns the folder of its
// results, or the n-th allocation. What is spoilt, and how, is in the environment.
//
//   SPOILT_FOLDER  the folder; calls that concern others aren't counted
//   SPOILT_CALL    n, from 1; none is spoilt without it
//   SPOILT_HOW     "fail", "half" (a write that writes half, once), "kill", "term"; or "named": no
//   file
//                  without a name can be opened, all calls of the others count as well
//   SPOILT_NEW     n, from 1: from this operator new on there is no memory, for SPOILT_NEWS times
//   SPOILT_FROM    they are counted from when a file is opened whose name ends with this, or a line
//                  is printed that ends with it; else from the beginning
//   SPOILT_LOG     a file that gets a letter for each call counted, and + for each that was spoilt

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <new>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr int kMostFiles = 1024;
std::array<bool, kMostFiles> g_isOurs; // descriptors of what lies in the folder
std::atomic<long> g_calls = 0;
std::atomic<long> g_news = 0;

std::atomic<bool> g_hasBegun = false; // to count news

void noteMark(std::string_view text) {
    const char* const mark = std::getenv("SPOILT_FROM");
    if (mark != nullptr && text.ends_with(mark)) {
        g_hasBegun = true;
    }
}

long number(const char* name) {
    const char* const text = std::getenv(name);
    return text == nullptr ? 0 : std::atol(text);
}

bool is(const char* how) {
    const char* const text = std::getenv("SPOILT_HOW");
    return text != nullptr && std::strstr(text, how) != nullptr;
}

template <class Function>
Function* next(const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

bool isInFolder(const char* path) {
    const char* const folder = std::getenv("SPOILT_FOLDER");
    return folder != nullptr && std::strncmp(path, folder, std::strlen(folder)) == 0;
}

bool isOurs(int file) {
    return file >= 0 && file < kMostFiles && g_isOurs[static_cast<std::size_t>(file)];
}

void log(char letter) {
    static const auto open = next<int(const char*, int, ...)>("open");
    static const auto write = next<ssize_t(int, const void*, std::size_t)>("write");
    const char* const path = std::getenv("SPOILT_LOG");
    static const int file = path == nullptr ? -1 : open(path, O_WRONLY | O_CREAT | O_APPEND, 0600);
    if (file >= 0) {
        [[maybe_unused]] const ssize_t written = write(file, &letter, 1);
    }
}

// Whether this call, which is one of those that count, is to fail.
bool isSpoilt(char letter, int error) {
    const bool isIt = ++g_calls == number("SPOILT_CALL");
    log(letter);
    if (!isIt) {
        return false;
    }
    log('+');
    if (is("kill")) {
        ::kill(getpid(), SIGKILL);
    }
    if (is("term")) {
        raise(SIGTERM);
        return false;
    }
    errno = error;
    return is("fail");
}

int opened(const char* name, const char* path, int flags, mode_t mode) {
    static const auto real = next<int(const char*, int, ...)>("open");
    noteMark(path);
    const bool counts = isInFolder(path) && (flags & O_ACCMODE) != O_RDONLY;
    if (counts && is("named") && (flags & O_TMPFILE) == O_TMPFILE) {
        errno = EOPNOTSUPP;
        return -1;
    }
    if (counts && isSpoilt(*name, ENOSPC)) {
        return -1;
    }
    const int file = real(path, flags, mode);
    if (file >= 0 && file < kMostFiles) {
        g_isOurs[static_cast<std::size_t>(file)] = counts;
    }
    return file;
}

mode_t modeOf(int flags, std::va_list rest) {
    return (flags & (O_CREAT | O_TMPFILE)) != 0 ? static_cast<mode_t>(va_arg(rest, int)) : 0;
}

void* allocated(std::size_t size) {
    const long first = number("SPOILT_NEW");
    const bool counts = g_hasBegun || std::getenv("SPOILT_FROM") == nullptr;
    const long at = counts ? ++g_news : 0;
    if (first > 0 && at >= first && at < first + std::max(1L, number("SPOILT_NEWS"))) {
        log('+');
        if (const std::new_handler handler = std::get_new_handler()) {
            handler();
        }
        throw std::bad_alloc();
    }
    void* const memory = std::malloc(std::max<std::size_t>(size, 1));
    return memory == nullptr ? throw std::bad_alloc() : memory;
}

} // namespace

extern "C" {

int open(const char* path, int flags, ...) {
    std::va_list rest;
    va_start(rest, flags);
    const int file = opened("open", path, flags, modeOf(flags, rest));
    va_end(rest);
    return file;
}

int open64(const char* path, int flags, ...) {
    std::va_list rest;
    va_start(rest, flags);
    const int file = opened("open", path, flags, modeOf(flags, rest));
    va_end(rest);
    return file;
}

std::size_t fwrite(const void* bytes, std::size_t size, std::size_t count, std::FILE* file) {
    static const auto real =
        next<std::size_t(const void*, std::size_t, std::size_t, std::FILE*)>("fwrite");
    const std::string_view text(static_cast<const char*>(bytes), size * count);
    noteMark(text.substr(0, text.find_last_not_of('\n') + 1));
    return real(bytes, size, count, file);
}

int mkostemp(char* pattern, int flags) {
    static const auto real = next<int(char*, int)>("mkostemp");
    if (isInFolder(pattern) && isSpoilt('m', EACCES)) {
        return -1;
    }
    const int file = real(pattern, flags);
    if (file >= 0 && file < kMostFiles) {
        g_isOurs[static_cast<std::size_t>(file)] = isInFolder(pattern);
    }
    return file;
}

int mkostemp64(char* pattern, int flags) {
    return mkostemp(pattern, flags);
}

ssize_t write(int file, const void* bytes, std::size_t size) {
    static const auto real = next<ssize_t(int, const void*, std::size_t)>("write");
    if (isOurs(file)) {
        if (is("half") && g_calls + 1 == number("SPOILT_CALL")) {
            size = (size + 1) / 2;
        } else if (is("kill") && g_calls + 1 == number("SPOILT_CALL")) {
            real(file, bytes, size / 2);
        }
        if (isSpoilt('w', ENOSPC)) {
            return -1;
        }
    }
    return real(file, bytes, size);
}

int fsync(int file) noexcept(false) {
    static const auto real = next<int(int)>("fsync");
    return isOurs(file) && isSpoilt('s', EIO) ? -1 : real(file);
}

int fchmod(int file, mode_t mode) noexcept {
    static const auto real = next<int(int, mode_t)>("fchmod");
    return isOurs(file) && isSpoilt('c', EPERM) ? -1 : real(file, mode);
}

int ftruncate(int file, off_t size) noexcept {
    static const auto real = next<int(int, off_t)>("ftruncate");
    return isOurs(file) && isSpoilt('t', EIO) ? -1 : real(file, size);
}

int close(int file) {
    static const auto real = next<int(int)>("close");
    const bool isIt = isOurs(file);
    if (isIt) {
        g_isOurs[static_cast<std::size_t>(file)] = false;
    }
    const bool fails = isIt && isSpoilt('x', EIO); // the descriptor is gone all the same
    const int error = errno;
    const int status = real(file);
    errno = fails ? error : errno;
    return fails ? -1 : status;
}

int linkat(int oldFolder, const char* path, int newFolder, const char* name, int flags) noexcept {
    static const auto real = next<int(int, const char*, int, const char*, int)>("linkat");
    return isInFolder(name) && isSpoilt('l', EIO) ? -1
                                                  : real(oldFolder, path, newFolder, name, flags);
}

int rename(const char* path, const char* name) noexcept {
    static const auto real = next<int(const char*, const char*)>("rename");
    return isInFolder(name) && isSpoilt('r', EIO) ? -1 : real(path, name);
}

} // extern "C"

void* operator new(std::size_t size) {
    return allocated(size);
}
void* operator new[](std::size_t size) {
    return allocated(size);
}
void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete[](void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}
void operator delete[](void* memory, std::size_t) noexcept {
    std::free(memory);
}
