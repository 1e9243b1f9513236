#include "VoStreamBuf.h"

#include "crashRecorder.h"
#include "streamReports.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::uint64_t kChunk = 4096;

std::uint64_t bytesLeft(const VoStreamBuf& buffer) {
    const std::uint64_t position = buffer.tell();
    const std::uint64_t length = buffer.length();
    return position < length ? length - position : 0;
}

// Brings a buffer to the start of a range, whose bounds come in either order, and gives its size.
std::uint64_t seekRange(VoStreamBuf& buffer, std::uint64_t from, std::uint64_t to) {
    const auto [low, high] = std::minmax(from, to);
    buffer.seek(low, VoIO::fromStart);
    return high - low;
}

void copyChunks(VoStreamBuf& source, VoStreamBuf& target, std::uint64_t amount) {
    std::array<unsigned char, kChunk> chunk{};
    while (amount > 0) {
        const auto count = static_cast<unsigned>(std::min(amount, kChunk));
        source.readBytes(chunk.data(), count);
        target.writeBytes(chunk.data(), count);
        amount -= count;
    }
}

} // namespace

bool VoStreamBuf::holds(std::uint64_t size, std::uint64_t position, std::uint64_t count) {
    if (position <= size && count <= size - position) {
        return true;
    }
    orvex::reportBadAccess(orvex::kOutOfBuffer);
    return false;
}

bool VoStreamBuf::isEOS() const {
    return tell() >= length();
}

void VoStreamBuf::setlength(std::uint64_t /*length*/) {}

void VoStreamBuf::truncate() {}

void VoStreamBuf::rewind() {
    seek(0, VoIO::fromStart);
}

unsigned char* VoStreamBuf::buffer() {
    return nullptr;
}

const unsigned char* VoStreamBuf::buffer() const {
    return nullptr;
}

unsigned char VoStreamBuf::readByte() {
    unsigned char byte = 0;
    readBytes(&byte, 1);
    return byte;
}

unsigned char VoStreamBuf::readByte(std::uint64_t position) {
    unsigned char byte = 0;
    readBytes(position, &byte, 1);
    return byte;
}

void VoStreamBuf::writeByte(unsigned char byte) {
    writeBytes(&byte, 1);
}

void VoStreamBuf::writeByte(std::uint64_t position, unsigned char byte) {
    writeBytes(position, &byte, 1);
}

unsigned char VoStreamBuf::getByte() {
    return getByte(tell());
}

unsigned char VoStreamBuf::getByte(std::uint64_t position) {
    unsigned char byte = 0;
    getBytes(position, &byte, 1);
    return byte;
}

void VoStreamBuf::setByte(unsigned char byte) {
    setByte(tell(), byte);
}

void VoStreamBuf::setByte(std::uint64_t position, unsigned char byte) {
    setBytes(position, &byte, 1);
}

void VoStreamBuf::readBytes(std::uint64_t position, void* target, unsigned count) {
    if (!holds(length(), position, count)) {
        return;
    }
    const std::uint64_t saved = tell();
    if (position == saved) {
        readBytes(target, count);
        return;
    }
    seek(position, VoIO::fromStart);
    readBytes(target, count);
    seek(saved, VoIO::fromStart);
}

void VoStreamBuf::writeBytes(std::uint64_t position, const void* source, unsigned count) {
    if (!holds(length(), position, count)) {
        return;
    }
    const std::uint64_t saved = tell();
    if (position == saved) {
        writeBytes(source, count);
        return;
    }
    seek(position, VoIO::fromStart);
    writeBytes(source, count);
    seek(saved, VoIO::fromStart);
}

void VoStreamBuf::getBytes(void* target, unsigned count) {
    getBytes(tell(), target, count);
}

void VoStreamBuf::getBytes(std::uint64_t position, void* target, unsigned count) {
    VoStreamBuf::readBytes(position, target, count);
}

void VoStreamBuf::setBytes(const void* source, unsigned count) {
    setBytes(tell(), source, count);
}

void VoStreamBuf::setBytes(std::uint64_t position, const void* source, unsigned count) {
    VoStreamBuf::writeBytes(position, source, count);
}

void VoStreamBuf::copyFrom(VoStreamBuf* source, std::uint64_t from, std::uint64_t to) {
    if (source == nullptr) {
        return;
    }
    const std::uint64_t kept = source->tell();
    std::uint64_t amount = bytesLeft(*source);
    if (from != 0 || to != 0) {
        const std::uint64_t wanted = seekRange(*source, from, to);
        // No more than there is: a read that is refused would leave nothing to write.
        amount = std::min(wanted, bytesLeft(*source));
    }
    if (amount == 0) {
        return;
    }
    copyChunks(*source, *this, amount);
    source->seek(kept, VoIO::fromStart);
}

void VoStreamBuf::copyTo(VoStreamBuf* target, std::uint64_t from, std::uint64_t to) {
    if (target == nullptr) {
        return;
    }
    const std::uint64_t kept = tell();
    // Without bounds the target's length less its position, both unsigned: a target positioned
    // after its own end takes all there is.
    const std::uint64_t wanted =
        from == 0 && to == 0 ? target->length() - target->tell() : seekRange(*target, from, to);
    const std::uint64_t length = this->length();
    const std::uint64_t amount = std::min(wanted, kept < length ? length - kept : 0);
    if (amount == 0) {
        return;
    }
    copyChunks(*this, *target, amount);
    seek(kept, VoIO::fromStart);
}
