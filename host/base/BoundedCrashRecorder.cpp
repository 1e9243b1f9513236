#include "BoundedCrashRecorder.h"

#include <exception>

namespace orvex {

void BoundedCrashRecorder::take(const VoException& report) noexcept {
    ++m_total;
    try {
        m_messages.push_back(report.message());
        if (m_messages.size() > m_capacity) {
            m_messages.pop_front();
        }
    } catch (const std::exception&) {
        // Reporting must never stop what goes on.
    }
}

std::vector<std::wstring> BoundedCrashRecorder::messages() const {
    return {m_messages.begin(), m_messages.end()};
}

void BoundedCrashRecorder::clear() {
    m_messages.clear();
    m_total = 0;
}

} // namespace orvex
