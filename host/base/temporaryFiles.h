#pragma once

#include <csignal>
#include <cstddef>
#include <string>

namespace orvex {

// Notes the name of a file that has to go when the process is ended by a signal. There is room for
// a few names at once, more than anybody saves; further ones aren't noted.
class TemporaryName {
public:
    TemporaryName() = default;
    ~TemporaryName() { clear(); }
    TemporaryName(const TemporaryName&) = delete;
    TemporaryName& operator=(const TemporaryName&) = delete;

    void note(const std::string& path);
    void clear(); // the file is gone, or has become lasting

private:
    static constexpr std::size_t kNone = static_cast<std::size_t>(-1);
    std::size_t m_slot = kNone;
};

// Removes all files that are noted. For signal handlers: calls nothing that they may not.
void removeTemporaryFiles();

// Signals that end the process wait as long as this lives, so that a file and the note of its name
// come and go together.
class HeldSignals {
public:
    HeldSignals();
    ~HeldSignals();
    HeldSignals(const HeldSignals&) = delete;
    HeldSignals& operator=(const HeldSignals&) = delete;

private:
    sigset_t m_before{};
};

} // namespace orvex
