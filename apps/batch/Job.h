#pragma once

#include "Verb.h"

#include <chrono>
#include <functional>
#include <string>
#include <sys/types.h>

namespace orvex {

// An open file of ours, or none.
class Descriptor {
public:
    explicit Descriptor(int number = -1) : m_number(number) {}
    ~Descriptor();
    Descriptor(Descriptor&& other) noexcept;
    Descriptor& operator=(Descriptor&& other) noexcept;

    [[nodiscard]] int number() const { return m_number; }

private:
    int m_number;
};

// How a job ended.
struct JobResult {
    int status = 0;
    std::string messages; // all of its standard error
    Counts counts;
    double seconds = 0.0;
    Descriptor output; // a file with all of its standard output
};

// A piece of work in a process of its own. The process ends with its parent.
class Job {
public:
    // What the process does; the result is its exit status.
    using Work = std::function<int(Counts&)>;

    static Result<Job> begin(const Work& work);

    [[nodiscard]] pid_t process() const { return m_process; }
    // After its end, with what waitpid told. A process that died of something else than its work
    // has the status of a program's fault, and a message of what it was about `subject`.
    [[nodiscard]] JobResult result(int waited, const std::string& subject) &&;

private:
    Job() = default;
    [[noreturn]] void runChild(const Work& work, pid_t parent) const;

    pid_t m_process = -1;
    std::chrono::steady_clock::time_point m_begin = std::chrono::steady_clock::now();
    Descriptor m_output;   // a file without a name: it may be large
    Descriptor m_messages; // in memory, so that they are there when the disk is full
    Descriptor m_counts;
};

// All bytes of a file from its start, handed on in pieces; false when it can't be read.
bool readPieces(const Descriptor& file, const std::function<void(std::string_view)>& sink);

} // namespace orvex
