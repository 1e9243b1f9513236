#include "endingSignals.h"

#include "temporaryFiles.h"

#include <array>
#include <unistd.h>

namespace orvex {

namespace {

constexpr std::array kEndingSignals{SIGHUP, SIGINT, SIGTERM};

bool isIgnored(int signal) {
    struct sigaction present {};
    return sigaction(signal, nullptr, &present) == 0 && present.sa_handler == SIG_IGN;
}

void endNow(int signal) {
    removeTemporaryFiles();
    _exit(kSignalStatus + signal);
}

} // namespace

void endCleanlyOnSignals() {
    struct sigaction action {};
    action.sa_handler = endNow;
    for (const int signal : kEndingSignals) {
        sigaddset(&action.sa_mask, signal);
    }
    for (const int signal : kEndingSignals) {
        if (!isIgnored(signal)) {
            sigaction(signal, &action, nullptr);
        }
    }
}

SignalWait::SignalWait() {
    // Ignored, ends of children wouldn't be kept for us.
    struct sigaction usual {};
    usual.sa_handler = SIG_DFL;
    sigaction(SIGCHLD, &usual, nullptr);
    sigemptyset(&m_waited);
    sigaddset(&m_waited, SIGCHLD);
    for (const int signal : kEndingSignals) {
        if (!isIgnored(signal)) {
            sigaddset(&m_waited, signal);
        }
    }
    pthread_sigmask(SIG_BLOCK, &m_waited, &m_before);
}

SignalWait::~SignalWait() {
    restore();
}

int SignalWait::next() const {
    int signal = -1;
    do {
        signal = sigwaitinfo(&m_waited, nullptr);
    } while (signal < 0);
    return signal;
}

void SignalWait::restore() const {
    pthread_sigmask(SIG_SETMASK, &m_before, nullptr);
}

} // namespace orvex
