#pragma once

#include "crashRecorder.h"

#include <cstddef>
#include <deque>
#include <string>
#include <vector>

namespace orvex {

// Keeps the latest reports in words, and how many there were in all.
class BoundedCrashRecorder : public CrashRecorder {
public:
    static constexpr std::size_t kDefaultCapacity = 256;

    explicit BoundedCrashRecorder(std::size_t capacity = kDefaultCapacity) : m_capacity(capacity) {}

    // When memory is short the report is counted without its words.
    void take(const VoException& report) noexcept override;

    [[nodiscard]] std::vector<std::wstring> messages() const; // oldest first
    [[nodiscard]] std::size_t total() const { return m_total; }
    void clear();

private:
    std::size_t m_capacity;
    std::size_t m_total = 0;
    std::deque<std::wstring> m_messages;
};

} // namespace orvex
