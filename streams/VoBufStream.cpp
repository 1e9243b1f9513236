#include "VoBufStream.h"

std::uint64_t VoBufStream::tell() const {
    return m_buffer != nullptr ? m_buffer->tell() : 0;
}

std::uint64_t VoBufStream::seek(std::uint64_t offset, VoIO::SeekType type) {
    return m_buffer != nullptr ? m_buffer->seek(offset, type) : 0;
}

std::uint64_t VoBufStream::length() const {
    return m_buffer != nullptr ? m_buffer->length() : 0;
}

void VoBufStream::truncate() {
    if (m_buffer != nullptr) {
        m_buffer->truncate();
    }
}

bool VoBufStream::isEOS() const {
    return m_buffer == nullptr || m_buffer->isEOS();
}

void VoBufStream::readBytes(void* target, unsigned count) {
    if (m_buffer != nullptr) {
        m_buffer->readBytes(target, count);
    }
}

void VoBufStream::writeBytes(const void* source, unsigned count) {
    if (m_buffer != nullptr) {
        m_buffer->writeBytes(source, count);
    }
}

void VoBufStream::copyFrom(VoBufStream* other) {
    if (other != nullptr && m_buffer != nullptr) {
        m_buffer->copyFrom(other->streamBuf(), 0, 0);
    }
}

void VoBufStream::copyTo(VoBufStream* other) {
    if (other != nullptr && m_buffer != nullptr) {
        m_buffer->copyTo(other->streamBuf(), 0, 0);
    }
}
