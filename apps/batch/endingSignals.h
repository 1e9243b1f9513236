#pragma once

#include <csignal>
#include <optional>

namespace orvex {

// What a shell calls the status of a process that a signal ended.
inline constexpr int kSignalStatus = 128;

// From now on a signal that asks the process to end (SIGINT, SIGTERM, SIGHUP) ends it with
// 128 + signal, and with nothing half-written left behind. Signals that are ignored stay so.
void endCleanlyOnSignals();

// While it lives, those signals and the ends of child processes don't interrupt: they are waited
// for.
class SignalWait {
public:
    SignalWait();
    ~SignalWait();
    SignalWait(const SignalWait&) = delete;
    SignalWait& operator=(const SignalWait&) = delete;

    // The next signal; SIGCHLD when a child ended.
    [[nodiscard]] int next() const;
    // In a child: signals are as before.
    void restore() const;

private:
    sigset_t m_waited{};
    sigset_t m_before{};
};

} // namespace orvex
