#include "memoryEnd.h"

#include "temporaryFiles.h"

#include <cstdlib>
#include <cstring>
#include <exception>
#include <new>
#include <unistd.h>

namespace orvex {

namespace {

const char* g_program = "";
int g_status = 1;
std::terminate_handler g_before = nullptr;
bool g_wasRefused = false; // memory was, at least once
thread_local bool t_isFinal = false;

// What is thrown through a function that may not throw isn't always there to be asked.
bool isForMemory() {
    const std::exception_ptr thrown = std::current_exception();
    if (!thrown) {
        return g_wasRefused;
    }
    try {
        std::rethrow_exception(thrown);
    } catch (const std::bad_alloc&) {
        return true;
    } catch (...) {
        return false;
    }
}

void say(const char* text) {
    [[maybe_unused]] const ssize_t written = write(STDERR_FILENO, text, std::strlen(text));
}

[[noreturn]] void endWithoutMemory() {
    removeTemporaryFiles();
    say(g_program);
    say(": not enough memory\n");
    _exit(g_status);
}

[[noreturn]] void refuse() {
    if (t_isFinal) {
        endWithoutMemory();
    }
    g_wasRefused = true;
    throw std::bad_alloc();
}

[[noreturn]] void end() {
    if (isForMemory()) {
        endWithoutMemory();
    }
    g_before();
    std::abort();
}

} // namespace

void sayWhenMemoryEnds(const char* program, int status) {
    g_program = program;
    g_status = status;
    g_before = std::set_terminate(end);
    std::set_new_handler(refuse);
}

MemoryEndIsFinal::MemoryEndIsFinal() {
    t_isFinal = true;
}

MemoryEndIsFinal::~MemoryEndIsFinal() {
    t_isFinal = false;
}

} // namespace orvex
