#include "ForkedSave.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <exception>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace orvex {

namespace {

constexpr char kDone = '+'; // else a fault's text follows
constexpr char kNoMemory = '-';
constexpr unsigned kMostSeconds = 600; // nobody waits for a save that hangs

// The window of a desk that died would else stay on the screen until the save ends.
void closeAllBut(int first, int second) {
    const auto low = static_cast<unsigned>(std::min(first, second));
    const auto high = static_cast<unsigned>(std::max(first, second));
    constexpr unsigned kStandardError = STDERR_FILENO;
    close_range(kStandardError + 1, low - 1, 0);
    if (high > low + 1) {
        close_range(low + 1, high - 1, 0);
    }
    close_range(high + 1, ~0U, 0);
}

std::string answerOf(const ForkedSave::Work& work) {
    try {
        const auto failure = work();
        return failure ? messageOf(*failure) : std::string(1, kDone);
    } catch (const std::bad_alloc&) {
        return {kNoMemory}; // in the child nothing is translated
    } catch (const std::exception& error) {
        return error.what();
    }
}

[[noreturn]] void runChild(const ForkedSave::Work& work, int answer, int lock) {
    closeAllBut(answer, lock);
    alarm(kMostSeconds);
    umask(S_IRWXG | S_IRWXO | S_IXUSR);
    const std::string text = answerOf(work);
    [[maybe_unused]] const ssize_t written = write(answer, text.data(), text.size());
    _exit(0);
}

} // namespace

void ForkedSave::begin(const Work& work, int lock) {
    std::array<int, 2> pipe{};
    if (pipe2(pipe.data(), O_CLOEXEC) != 0) {
        return end(QString::fromLocal8Bit(std::strerror(errno)));
    }
    m_answer = pipe[0];
    m_process = fork();
    if (m_process == 0) {
        runChild(work, pipe[1], lock);
    }
    const int error = errno;
    close(pipe[1]);
    if (m_process < 0) {
        return end(QString::fromLocal8Bit(std::strerror(error)));
    }
    m_notifier = std::make_unique<QSocketNotifier>(m_answer, QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &ForkedSave::readAnswer);
}

// The end of the pipe comes when the child has given back its memory, which takes its time.
void ForkedSave::readAnswer() {
    std::array<char, 4096> answer{};
    const ssize_t size = read(m_answer, answer.data(), answer.size());
    if (size < 0 && errno == EINTR) {
        return;
    }
    if (size > 0) {
        m_told.append(answer.data(), static_cast<int>(size));
        return;
    }
    const QByteArray told = std::exchange(m_told, {});
    end(told == QByteArray(1, kDone)       ? QString()
        : told == QByteArray(1, kNoMemory) ? tr("not enough memory")
        : told.isEmpty()                   ? tr("the process that saved it ended by a fault")
                                           : QString::fromUtf8(told));
}

void ForkedSave::stop() {
    if (isRunning()) {
        kill(m_process, SIGKILL);
        forgetNotifier();
        close(std::exchange(m_answer, -1));
        m_told.clear();
        waitpid(std::exchange(m_process, 0), nullptr, 0);
    }
}

// Which may be calling, and mustn't see that its descriptor is closed.
void ForkedSave::forgetNotifier() {
    if (m_notifier) {
        m_notifier->setEnabled(false);
        m_notifier.release()->deleteLater();
    }
}

void ForkedSave::end(const QString& fault) {
    forgetNotifier();
    if (m_answer >= 0) {
        close(std::exchange(m_answer, -1));
    }
    if (m_process > 0) {
        waitpid(m_process, nullptr, 0);
    }
    m_process = 0;
    emit ended(fault);
}

} // namespace orvex
