#include "ProgressBar.h"

#include <cstdio>
#include <string>
#include <unistd.h>

namespace orvex {

ProgressBar::ProgressBar(std::size_t total)
    : m_total(total), m_hasTerminal(isatty(STDERR_FILENO) != 0) {}

ProgressBar::~ProgressBar() {
    hide();
}

void ProgressBar::show(std::size_t done, std::size_t failed) {
    constexpr std::size_t kWidth = 30;
    if (!m_hasTerminal || m_total < 2) {
        return;
    }
    const std::size_t filled = done * kWidth / m_total;
    const std::string bar = std::string(filled, '#') + std::string(kWidth - filled, '.');
    const std::string failures = failed > 0 ? ", " + std::to_string(failed) + " failed" : "";
    std::fprintf(stderr, "\r[%s] %zu of %zu%s", bar.c_str(), done, m_total, failures.c_str());
    std::fflush(stderr);
    m_isShown = true;
}

void ProgressBar::hide() {
    if (m_isShown) {
        std::fputs("\r\033[K", stderr);
        std::fflush(stderr);
        m_isShown = false;
    }
}

} // namespace orvex
