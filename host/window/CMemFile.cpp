#include "CMemFile.h"

#include <algorithm>
#include <utility>

CMemFile::CMemFile(unsigned char* data, unsigned size)
    : m_attached(data), m_attachedSize(data != nullptr ? size : 0) {}

unsigned long CMemFile::GetLength() const {
    return m_attached != nullptr ? m_attachedSize : m_own.size();
}

unsigned CMemFile::Read(void* target, unsigned count) {
    const unsigned char* const from = m_attached != nullptr ? m_attached : m_own.data();
    const unsigned long left = GetLength() - std::min(m_position, GetLength());
    const auto some = static_cast<unsigned>(std::min<unsigned long>(count, left));
    if (target == nullptr || some == 0) {
        return 0;
    }
    std::copy_n(from + m_position, some, static_cast<unsigned char*>(target));
    m_position += some;
    return some;
}

unsigned CMemFile::Write(const void* source, unsigned count) {
    if (source == nullptr || count == 0) {
        return 0;
    }
    unsigned some = count;
    if (m_attached != nullptr) {
        some = static_cast<unsigned>(std::min<unsigned long>(count, m_attachedSize - m_position));
    } else if (m_own.size() < m_position + count) {
        m_own.resize(m_position + count);
    }
    unsigned char* const to = m_attached != nullptr ? m_attached : m_own.data();
    std::copy_n(static_cast<const unsigned char*>(source), some, to + m_position);
    m_position += some;
    return some;
}

unsigned char* CMemFile::Detach() {
    m_position = 0;
    if (m_attached != nullptr) {
        m_attachedSize = 0;
        return std::exchange(m_attached, nullptr);
    }
    const std::vector<unsigned char> content = std::exchange(m_own, {});
    if (content.empty()) {
        return nullptr;
    }
    auto* const data = new unsigned char[content.size()];
    std::copy(content.begin(), content.end(), data);
    return data;
}
