#include "InputHistory.h"

namespace orvex {

void InputHistory::add(const QString& line) {
    if (!line.isEmpty() && (m_lines.isEmpty() || m_lines.back() != line)) {
        m_lines << line;
        if (m_lines.size() > kMost) {
            m_lines.removeFirst();
        }
    }
    m_place = m_lines.size();
    m_typed.clear();
}

QString InputHistory::earlier(const QString& typed) {
    if (m_place == 0) {
        return typed;
    }
    if (m_place == m_lines.size()) {
        m_typed = typed;
    }
    return m_lines[--m_place];
}

QString InputHistory::later(const QString& typed) {
    if (m_place == m_lines.size()) {
        return typed;
    }
    ++m_place;
    return m_place == m_lines.size() ? m_typed : m_lines[m_place];
}

} // namespace orvex
