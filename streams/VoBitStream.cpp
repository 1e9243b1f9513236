#include "VoBitStream.h"

#include "DetachedSource.h"
#include "crashRecorder.h"
#include "shiftedCopy.h"
#include "streamReports.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <utility>

// Positions, single bits and runs of bytes. The coded forms of values are in VoBitStreamForms.cpp.

namespace {

constexpr std::uint8_t kFirstBit = 128;
constexpr unsigned kMostBits = 7; // of what is read or written as one small number
constexpr std::uint64_t kChunk = 4096;

} // namespace

VoBitStream::VoBitStream(VoStreamBuf* buffer, std::uint64_t bitLength)
    : VoBufStream(buffer),
      m_bitLength(buffer != nullptr ? std::min(bitLength, buffer->length() * 8) : 0) {}

bool VoBitStream::hasBits(std::uint64_t count) const {
    const std::uint64_t position = VoBitStream::tell();
    return position <= m_bitLength && count <= m_bitLength - position;
}

bool VoBitStream::canReadBits(std::uint64_t count) const {
    if (hasBits(count)) {
        return true;
    }
    orvex::reportBadAccess(orvex::kOutOfBits);
    return false;
}

bool VoBitStream::canRead(std::uint64_t count) const {
    // More bytes than any buffer has would overflow as bits.
    return canReadBits(std::min(count, ~std::uint64_t{0} / 8) * 8);
}

void VoBitStream::moveTo(std::uint64_t position) {
    m_bytePos = position / 8;
    m_bitIndex = position % 8;
    m_mask = static_cast<std::uint8_t>(kFirstBit >> m_bitIndex);
}

void VoBitStream::advance(unsigned bits) {
    const unsigned end = m_bitIndex + bits;
    m_bytePos += end / 8;
    m_bitIndex = end % 8;
    m_mask = static_cast<std::uint8_t>(kFirstBit >> m_bitIndex);
}

void VoBitStream::noteWritten() {
    m_bitLength = std::max(m_bitLength, VoBitStream::tell());
}

bool VoBitStream::growTo(std::uint64_t bufferLength) {
    if (m_buffer->length() >= bufferLength) {
        return true;
    }
    m_buffer->setlength(bufferLength);
    if (m_buffer->length() >= bufferLength) {
        return true;
    }
    orvex::reportBadAccess(orvex::kOutOfBuffer);
    return false;
}

unsigned char* VoBitStream::bytesWithin(std::uint64_t bufferLength) {
    if (!growTo(bufferLength)) {
        return nullptr;
    }
    unsigned char* const bytes = m_buffer->buffer();
    if (bytes == nullptr) {
        orvex::reportBadAccess(orvex::kOutOfBuffer);
        return nullptr;
    }
    return bytes + m_bytePos;
}

std::uint64_t VoBitStream::seek(std::uint64_t offset, VoIO::SeekType type) {
    const std::uint64_t position = tell();
    if (m_buffer == nullptr) {
        return position;
    }
    std::uint64_t target = 0;
    bool valid = true;
    switch (type) {
    case VoIO::fromStart:
        valid = offset <= m_bitLength;
        target = offset;
        break;
    case VoIO::forward:
        valid = hasBits(offset);
        target = position + offset;
        break;
    case VoIO::backward:
        valid = offset <= position;
        target = position - offset;
        break;
    case VoIO::fromEnd:
        valid = offset <= m_bitLength;
        target = m_bitLength - offset;
        break;
    default:
        return position;
    }
    if (valid) {
        moveTo(target);
    } else {
        orvex::reportBadAccess(orvex::kOutOfBuffer);
    }
    return tell();
}

void VoBitStream::seekByte(std::uint64_t offset, VoIO::SeekType type) {
    if (m_buffer == nullptr) {
        return;
    }
    const std::uint64_t length = m_buffer->length();
    std::uint64_t target = 0;
    bool valid = true;
    switch (type) {
    case VoIO::fromStart:
        valid = offset < length;
        target = offset;
        break;
    case VoIO::forward:
        valid = m_bytePos < length && offset < length - m_bytePos;
        target = m_bytePos + offset;
        break;
    case VoIO::backward:
        valid = offset < m_bytePos;
        target = m_bytePos - offset;
        break;
    case VoIO::fromEnd:
        valid = offset < length;
        target = length - offset;
        break;
    default:
        return;
    }
    if (valid) {
        m_bytePos = target;
    } else {
        orvex::reportStatus(Status::badByteSeek);
    }
}

void VoBitStream::readBit(std::uint8_t& bit) {
    if (m_buffer == nullptr) {
        return;
    }
    bit = (m_buffer->getByte(m_bytePos) & m_mask) != 0 ? 1 : 0;
    advance(1);
}

void VoBitStream::writeBit(std::uint8_t value, std::uint8_t test) {
    if (m_buffer == nullptr) {
        return;
    }
    unsigned char* const byte = bytesWithin(m_bytePos + 1);
    if (byte == nullptr) {
        return;
    }
    if ((value & test) != 0) {
        *byte |= m_mask;
    } else {
        *byte &= static_cast<unsigned char>(~m_mask);
    }
    advance(1);
    if (m_bitIndex == 0) {
        growTo(m_bytePos + 1);
    }
    noteWritten();
}

void VoBitStream::writeBits(std::uint8_t value, unsigned count) {
    if (count < 1 || count > kMostBits || m_buffer == nullptr) {
        return;
    }
    for (unsigned i = count; i-- > 0;) {
        writeBit(value, static_cast<std::uint8_t>(1U << i));
    }
}

void VoBitStream::readBits(std::uint8_t& value, unsigned count) {
    if (count < 1 || count > kMostBits || !canReadBits(count) || m_buffer == nullptr) {
        return;
    }
    const unsigned end = m_bitIndex + count;
    if (end <= 8) {
        const unsigned byte = m_buffer->getByte(m_bytePos);
        value = static_cast<std::uint8_t>((byte << m_bitIndex & 0xFFU) >> (8 - count));
    } else {
        const unsigned over = end - 8;
        std::array<unsigned char, 2> bytes{};
        m_buffer->getBytes(m_bytePos, bytes.data(), 2);
        const unsigned high = (bytes[0] & (0xFFU >> m_bitIndex)) << over;
        value = static_cast<std::uint8_t>(high | static_cast<unsigned>(bytes[1]) >> (8 - over));
    }
    advance(count);
}

void VoBitStream::readBits(VoBitStream* target, std::uint64_t from, std::uint64_t to) {
    if (target == nullptr) {
        return;
    }
    const std::uint64_t kept = target->tell();
    target->seek(from, VoIO::fromStart);
    if (to < from) {
        orvex::reportBadAccess(orvex::kOutOfBits);
        return;
    }
    std::uint64_t count = to - from;
    if (!canReadBits(count)) {
        return;
    }
    std::array<unsigned char, kChunk> chunk{};
    while (count >= 8) {
        const auto bytes = static_cast<unsigned>(std::min(count / 8, kChunk));
        readBytes(chunk.data(), bytes);
        target->writeBytes(chunk.data(), bytes);
        count -= std::uint64_t{bytes} * 8;
    }
    std::uint8_t rest = 0;
    readBits(rest, static_cast<unsigned>(count));
    target->writeBits(rest, static_cast<unsigned>(count));
    target->seek(kept, VoIO::fromStart);
}

void VoBitStream::readBytes(void* target, unsigned count) {
    if (target == nullptr || count == 0 || m_buffer == nullptr ||
        !canReadBits(std::uint64_t{count} * 8)) {
        return;
    }
    auto* const bytes = static_cast<unsigned char*>(target);
    if (m_bitIndex == 0) {
        m_buffer->getBytes(m_bytePos, bytes, count);
    } else if (const unsigned char* const from = std::as_const(*m_buffer).buffer();
               from != nullptr && m_bytePos + count < m_buffer->length()) {
        // Straight from the buffer, which saves a copy.
        orvex::copyShiftedLeft(bytes, from + m_bytePos, count, m_bitIndex);
    } else {
        unsigned char after = 0;
        m_buffer->getBytes(m_bytePos, bytes, count);
        m_buffer->getBytes(m_bytePos + count, &after, 1);
        orvex::copyShiftedLeft(bytes, bytes, count - 1, m_bitIndex);
        bytes[count - 1] =
            static_cast<unsigned char>(bytes[count - 1] << m_bitIndex | after >> (8 - m_bitIndex));
    }
    m_bytePos += count;
}

void VoBitStream::writeBytes(const void* source, unsigned count) {
    if (source == nullptr || count == 0 || m_buffer == nullptr) {
        return;
    }
    const orvex::DetachedSource from(source, count, std::as_const(*m_buffer).buffer(),
                                     m_buffer->length());
    unsigned char* const to = bytesWithin(m_bytePos + count + 1);
    if (to == nullptr) {
        return;
    }
    if (m_bitIndex == 0) {
        std::memcpy(to, from.bytes(), count);
    } else {
        const unsigned rest = 8U - m_bitIndex;
        const unsigned kept = *to & (0xFFU << rest);
        *to = static_cast<unsigned char>(kept | from.bytes()[0] >> m_bitIndex);
        orvex::copyShiftedLeft(to + 1, from.bytes(), count - 1, rest);
        // The rest of the byte after the bytes is cleared.
        to[count] = static_cast<unsigned char>(from.bytes()[count - 1] << rest);
    }
    m_bytePos += count;
    noteWritten();
}

void VoBitStream::readUInt8(std::uint8_t& value) {
    if (!canReadBits(8) || m_buffer == nullptr) {
        return;
    }
    if (m_bitIndex == 0) {
        value = m_buffer->getByte(m_bytePos);
    } else {
        std::array<unsigned char, 2> bytes{};
        m_buffer->getBytes(m_bytePos, bytes.data(), 2);
        value = static_cast<std::uint8_t>(bytes[0] << m_bitIndex | bytes[1] >> (8 - m_bitIndex));
    }
    ++m_bytePos;
}

void VoBitStream::writeRawUInt8(std::uint8_t value) {
    if (m_buffer == nullptr) {
        return;
    }
    if (m_bitIndex == 0) {
        if (!growTo(m_bytePos + 2)) {
            return;
        }
        m_buffer->writeByte(m_bytePos, value);
    } else {
        unsigned char* const bytes = bytesWithin(m_bytePos + 2);
        if (bytes == nullptr) {
            return;
        }
        // Unlike a run of bytes, one byte leaves the bits after it as they are.
        const unsigned rest = 8U - m_bitIndex;
        bytes[0] = static_cast<unsigned char>((bytes[0] & (0xFFU << rest)) | value >> m_bitIndex);
        bytes[1] = static_cast<unsigned char>((bytes[1] & (0xFFU >> m_bitIndex)) | value << rest);
    }
    ++m_bytePos;
    noteWritten();
}
