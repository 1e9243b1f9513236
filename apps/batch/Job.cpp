#include "Job.h"

#include "batchFiles.h"
#include "exitStatus.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <sstream>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace orvex {

namespace {

Descriptor memoryFile() {
    return Descriptor(memfd_create("orvex-batch", MFD_CLOEXEC));
}

Descriptor namelessFile() {
    std::error_code error;
    const std::string folder = std::filesystem::temp_directory_path(error).string();
    if (error) {
        return memoryFile();
    }
    const int number = open(folder.c_str(), O_TMPFILE | O_RDWR | O_CLOEXEC, S_IRUSR | S_IWUSR);
    return number >= 0 ? Descriptor(number) : memoryFile();
}

bool isKnownStatus(int status) {
    return std::ranges::any_of(
        std::array{ExitStatus::done, ExitStatus::wrongCall, ExitStatus::unreadable,
                   ExitStatus::unwritable, ExitStatus::unplayable, ExitStatus::missedPick,
                   ExitStatus::programFault},
        [status](ExitStatus known) { return static_cast<int>(known) == status; });
}

// "NAME COUNT" a line.
std::string countsText(const Counts& counts) {
    std::string text;
    for (const auto& [name, count] : counts) {
        text += name + ' ' + std::to_string(count) + '\n';
    }
    return text;
}

Counts readCounts(const Descriptor& file) {
    std::string text;
    readPieces(file, [&](std::string_view piece) { text += piece; });
    Counts counts;
    std::istringstream stream(text);
    std::string name;
    for (std::size_t count = 0; stream >> name >> count;) {
        counts.emplace_back(name, count);
    }
    return counts;
}

std::string causeOfDeath(int waited) {
    if (WIFSIGNALED(waited)) {
        const int signal = WTERMSIG(waited);
        return "signal " + std::to_string(signal) + ", " + strsignal(signal);
    }
    return "status " + std::to_string(WEXITSTATUS(waited));
}

} // namespace

Descriptor::~Descriptor() {
    if (m_number >= 0) {
        close(m_number);
    }
}

Descriptor::Descriptor(Descriptor&& other) noexcept : m_number(std::exchange(other.m_number, -1)) {}

Descriptor& Descriptor::operator=(Descriptor&& other) noexcept {
    std::swap(m_number, other.m_number);
    return *this;
}

bool readPieces(const Descriptor& file, const std::function<void(std::string_view)>& sink) {
    std::array<char, 65'536> piece{};
    for (off_t at = 0;;) {
        const ssize_t got = pread(file.number(), piece.data(), piece.size(), at);
        if (got <= 0) {
            return got == 0;
        }
        sink({piece.data(), static_cast<std::size_t>(got)});
        at += got;
    }
}

Result<Job> Job::begin(const Work& work) {
    Job job;
    job.m_output = namelessFile();
    job.m_messages = memoryFile();
    job.m_counts = memoryFile();
    const bool isReady =
        job.m_output.number() >= 0 && job.m_messages.number() >= 0 && job.m_counts.number() >= 0;
    const pid_t parent = getpid();
    // What is waiting to be printed would be printed twice.
    std::fflush(stdout);
    job.m_process = isReady ? fork() : -1;
    if (job.m_process < 0) {
        return Failure{FailureCause::programFault,
                       {},
                       0,
                       std::string("no process can be begun: ") + std::strerror(errno)};
    }
    if (job.m_process == 0) {
        job.runChild(work, parent);
    }
    return job;
}

void Job::runChild(const Work& work, pid_t parent) const {
    prctl(PR_SET_PDEATHSIG, SIGTERM);
    if (getppid() != parent) {
        _exit(static_cast<int>(ExitStatus::programFault)); // it ended before we could ask
    }
    dup2(m_output.number(), STDOUT_FILENO);
    dup2(m_messages.number(), STDERR_FILENO);
    Counts counts;
    const int status = work(counts);
    const std::string text = countsText(counts);
    const bool isTold =
        write(m_counts.number(), text.data(), text.size()) == static_cast<ssize_t>(text.size());
    std::fflush(stdout);
    _exit(isTold ? status : static_cast<int>(ExitStatus::programFault));
}

JobResult Job::result(int waited, const std::string& subject) && {
    JobResult result;
    const std::chrono::duration<double> time = std::chrono::steady_clock::now() - m_begin;
    result.seconds = time.count();
    readPieces(m_messages, [&](std::string_view piece) { result.messages += piece; });
    result.counts = readCounts(m_counts);
    result.output = std::move(m_output);
    if (WIFEXITED(waited) && isKnownStatus(WEXITSTATUS(waited))) {
        result.status = WEXITSTATUS(waited);
    } else {
        result.status = static_cast<int>(ExitStatus::programFault);
        result.messages +=
            complaint(subject + ": the process that worked on it died of " + causeOfDeath(waited));
    }
    return result;
}

} // namespace orvex
