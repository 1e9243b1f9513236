#pragma once

#include <cstddef>

namespace orvex {

// A line at the bottom of a terminal that shows how far many drawings are. Nothing at all where
// standard error is no terminal.
class ProgressBar {
public:
    explicit ProgressBar(std::size_t total);
    ~ProgressBar();
    ProgressBar(const ProgressBar&) = delete;
    ProgressBar& operator=(const ProgressBar&) = delete;

    void show(std::size_t done, std::size_t failed);
    void hide(); // before anything else is printed

private:
    std::size_t m_total;
    bool m_hasTerminal;
    bool m_isShown = false;
};

} // namespace orvex
