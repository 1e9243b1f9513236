#pragma once

#include <cstdint>
#include <functional>
#include <vector>

namespace orvex {

// Bytes that are about to be written into a buffer. Where they lie in the very buffer they are
// copied first, since it may move when it grows.
class DetachedSource {
public:
    DetachedSource(const void* source, unsigned count, const unsigned char* buffer,
                   std::uint64_t bufferSize)
        : m_bytes(static_cast<const unsigned char*>(source)) {
        const std::less_equal<> notAfter;
        if (buffer != nullptr && notAfter(buffer, m_bytes) &&
            notAfter(m_bytes, buffer + bufferSize)) {
            m_copy.assign(m_bytes, m_bytes + count);
            m_bytes = m_copy.data();
        }
    }

    [[nodiscard]] const unsigned char* bytes() const { return m_bytes; }

private:
    const unsigned char* m_bytes;
    std::vector<unsigned char> m_copy;
};

} // namespace orvex
