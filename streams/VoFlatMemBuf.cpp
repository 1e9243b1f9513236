#include "VoFlatMemBuf.h"

#include "DetachedSource.h"
#include "crashRecorder.h"
#include "streamReports.h"

#include <cstring>
#include <new>

bool VoFlatMemBuf::changeLength(std::uint64_t length) {
    if (length <= kLargestLength) {
        try {
            m_data.setLogicalLength(static_cast<unsigned>(length));
            return true;
        } catch (const std::bad_alloc&) {
            // Reported below, like any impossible length.
        }
    }
    orvex::reportBadAccess(orvex::kOutOfBuffer);
    return false;
}

bool VoFlatMemBuf::makeRoom(std::uint64_t count) {
    if (count <= bufSize()) {
        return true;
    }
    if (count <= kLargestLength) {
        try {
            m_data.setPhysicalLength(static_cast<unsigned>(count));
            return true;
        } catch (const std::bad_alloc&) {
            // As above.
        }
    }
    orvex::reportBadAccess(orvex::kOutOfBuffer);
    return false;
}

void VoFlatMemBuf::copyOut(std::uint64_t position, void* target, unsigned count) const {
    if (target != nullptr && count > 0) {
        std::memcpy(target, m_data.data() + position, count);
    }
}

void VoFlatMemBuf::setlength(std::uint64_t length) {
    changeLength(length);
}

void VoFlatMemBuf::truncate() {
    changeLength(m_position);
}

void VoFlatMemBuf::reserve(unsigned count) {
    makeRoom(count);
}

void VoFlatMemBuf::moveTo(std::uint64_t position) {
    if (holds(length(), position, 0)) {
        m_position = static_cast<unsigned>(position);
    }
}

unsigned char VoFlatMemBuf::readByte() {
    if (m_position >= length()) {
        orvex::reportBadAccess(orvex::kEndOfBuffer);
        return 0;
    }
    return std::as_const(m_data).data()[m_position++];
}

unsigned char VoFlatMemBuf::readByte(std::uint64_t position) {
    unsigned char byte = 0;
    readBytes(position, &byte, 1);
    return byte;
}

void VoFlatMemBuf::writeByte(unsigned char byte) {
    if (changeLength(std::uint64_t{m_position} + 1)) {
        m_data.data()[m_position++] = byte;
    }
}

void VoFlatMemBuf::writeByte(std::uint64_t position, unsigned char byte) {
    if (position >= kLargestLength) {
        orvex::reportBadAccess(orvex::kOutOfBuffer);
        return;
    }
    if (position == 0 && length() == 0) {
        if (!changeLength(1)) {
            return;
        }
    } else if (position > length() && !changeLength(position)) {
        return;
    }
    // Right after the end there may be no capacity yet.
    if (makeRoom(position + 1)) {
        m_data.data()[position] = byte;
        m_position = static_cast<unsigned>(position);
    }
}

unsigned char VoFlatMemBuf::getByte() {
    seek(m_position, VoIO::fromStart);
    unsigned char byte = 0;
    readBytes(&byte, 1);
    return byte;
}

unsigned char VoFlatMemBuf::getByte(std::uint64_t position) {
    return holds(length(), position, 1) ? std::as_const(m_data).data()[position] : 0;
}

void VoFlatMemBuf::setByte(unsigned char byte) {
    setByte(m_position, byte);
}

void VoFlatMemBuf::setByte(std::uint64_t position, unsigned char byte) {
    if (holds(length(), position, 1)) {
        m_data.data()[position] = byte;
    }
}

void VoFlatMemBuf::readBytes(void* target, unsigned count) {
    if (holds(length(), m_position, count)) {
        copyOut(m_position, target, count);
        m_position += count;
    }
}

void VoFlatMemBuf::readBytes(std::uint64_t position, void* target, unsigned count) {
    if (holds(length(), position, count)) {
        copyOut(position, target, count);
    }
}

void VoFlatMemBuf::writeBytes(const void* source, unsigned count) {
    if (source == nullptr && count > 0) {
        return;
    }
    const orvex::DetachedSource from(source, count, std::as_const(m_data).data(), bufSize());
    if (!changeLength(std::uint64_t{m_position} + count)) {
        return;
    }
    if (count > 0) {
        std::memcpy(m_data.data() + m_position, from.bytes(), count);
        m_position += count;
    }
}

void VoFlatMemBuf::writeBytes(std::uint64_t position, const void* source, unsigned count) {
    if (source == nullptr && count > 0) {
        return;
    }
    if (!holds(kLargestLength, position, count)) {
        return;
    }
    const orvex::DetachedSource from(source, count, std::as_const(m_data).data(), bufSize());
    if (length() < position + count && !changeLength(position + count)) {
        return;
    }
    if (count > 0) {
        std::memcpy(m_data.data() + position, from.bytes(), count);
    }
    m_position = static_cast<unsigned>(position);
}

void VoFlatMemBuf::getBytes(void* target, unsigned count) {
    getBytes(m_position, target, count);
}

void VoFlatMemBuf::getBytes(std::uint64_t position, void* target, unsigned count) {
    if (holds(bufSize(), position, count)) {
        copyOut(position, target, count);
    }
}

void VoFlatMemBuf::setBytes(const void* source, unsigned count) {
    setBytes(m_position, source, count);
}

void VoFlatMemBuf::setBytes(std::uint64_t position, const void* source, unsigned count) {
    if (holds(length(), position, count) && source != nullptr && count > 0) {
        std::memmove(m_data.data() + position, source, count);
    }
}

void VoFlatMemBuf::open(const void* data, unsigned count, std::uint64_t position) {
    if ((data == nullptr && count > 0) || !holds(kLargestLength, position, count)) {
        return;
    }
    const orvex::DetachedSource from(data, count, std::as_const(m_data).data(), bufSize());
    close();
    if (!changeLength(position + count)) {
        return;
    }
    if (count > 0) {
        std::memcpy(m_data.data(), from.bytes(), count);
    }
    m_position = static_cast<unsigned>(position);
}

void VoFlatMemBuf::close() {
    m_position = 0;
    m_data.setPhysicalLength(0);
}
