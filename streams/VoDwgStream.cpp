#include "VoDwgStream.h"

#include "KdString.h"
#include "VoCharOp.h"
#include "hostHeap.h"
#include "streamReports.h"

#include <algorithm>
#include <array>
#include <climits>
#include <cwchar>
#include <string>

namespace {

constexpr unsigned kTypeBits = 2;
constexpr unsigned kLargestHandle = 8; // bytes

} // namespace

void VoDwgStream::readScale3d(KdGeScale3d& /*value*/) {}

void VoDwgStream::writeScale3d(const KdGeScale3d& /*value*/) {}

void VoDwgStream::readHandleParts(std::uint8_t& code, std::uint64_t& value) {
    if (!canRead(1)) {
        return;
    }
    readUInt8(code);
    const unsigned count = code & 0x0FU;
    if (count > kLargestHandle) {
        orvex::reportStatus(Status::badHandleCount);
        return;
    }
    value = 0;
    for (unsigned i = 0; i < count; ++i) {
        std::uint8_t byte = 0;
        readUInt8(byte);
        value = value << 8 | byte;
    }
}

void VoDwgStream::writeHandleParts(std::uint8_t code, std::uint64_t value) {
    std::array<unsigned char, kLargestHandle + 1> bytes{};
    std::size_t first = bytes.size();
    for (; value != 0; value >>= 8) {
        bytes[--first] = static_cast<unsigned char>(value & 0xFFU);
    }
    const std::size_t count = bytes.size() - first;
    bytes[--first] = static_cast<unsigned char>(code << 4 | count);
    writeBytes(bytes.data() + first, static_cast<unsigned>(count) + 1);
}

void VoDwgStream::readHandle(KdDbHandle& handle) {
    std::uint8_t code = 0;
    readHandleParts(code, handle.value);
}

void VoDwgStream::writeHandle(const KdDbHandle& handle) {
    writeHandleParts(0, convertHandleToUInt64(handle));
}

void VoDwgStream::skipId(std::uint8_t& type) {
    readBits(type, kTypeBits);
    void* address = nullptr;
    readAddress(address);
}

void VoDwgStream::readObjectId(KdDbObjectId& /*id*/, std::uint8_t* type) {
    std::uint8_t found = type != nullptr ? *type : std::uint8_t{0};
    skipId(found);
    if (type != nullptr) {
        *type = found;
    }
}

void VoDwgStream::writeObjectId(const KdDbObjectId& id, std::uint8_t type) {
    writeBits(type, kTypeBits);
    writeAddress(id.stub());
}

void VoDwgStream::readHardOwnershipId(KdDbObjectId& /*id*/) {
    std::uint8_t type = 0;
    skipId(type);
}

void VoDwgStream::writeHardOwnershipId(const KdDbObjectId& id) {
    writeObjectId(id, hardOwnership);
}

void VoDwgStream::readSoftOwnershipId(KdDbObjectId& /*id*/) {
    std::uint8_t type = 0;
    skipId(type);
}

void VoDwgStream::writeSoftOwnershipId(const KdDbObjectId& id) {
    writeObjectId(id, softOwnership);
}

void VoDwgStream::readHardPointerId(KdDbObjectId& /*id*/) {
    std::uint8_t type = 0;
    skipId(type);
}

void VoDwgStream::writeHardPointerId(const KdDbObjectId& id) {
    writeObjectId(id, hardPointer);
}

void VoDwgStream::readSoftPointerId(KdDbObjectId& /*id*/) {
    std::uint8_t type = 0;
    skipId(type);
}

void VoDwgStream::writeSoftPointerId(const KdDbObjectId& id) {
    writeObjectId(id, softPointer);
}

void VoDwgStream::readUnicodeString(wchar_t*& text) {
    std::int32_t count = 0;
    readInt32(count);
    if (count == 0) {
        return;
    }
    text = nullptr;
    if (count < 0 || !canRead(static_cast<std::uint64_t>(count) * 2)) {
        return;
    }
    const unsigned bytes = static_cast<unsigned>(count) * 2;
    // Room for whole characters and a terminator after them.
    const std::size_t characters = bytes / sizeof(wchar_t) + 2;
    kdutNewBuffer(text, characters * sizeof(wchar_t));
    readBytes(text, bytes);
}

void VoDwgStream::writeUnicodeString(const wchar_t* text) {
    const std::size_t length = text != nullptr ? std::wcslen(text) : 0;
    const auto count = static_cast<std::int32_t>(std::min<std::size_t>(length, INT_MAX));
    writeInt32(count);
    if (count != 0) {
        writeBytes(text, static_cast<unsigned>(count) * 2);
    }
}

void VoDwgStream::readString(CStdStr<wchar_t>& text) {
    text.Empty();
    std::int16_t count = 0;
    readInt16(count);
    if (count < 1 || !canRead(static_cast<std::uint64_t>(count))) {
        return;
    }
    std::string bytes(static_cast<std::size_t>(count), '\0');
    readBytes(bytes.data(), static_cast<unsigned>(count));
    text.appendNarrow(bytes.c_str());
}

void VoDwgStream::writeString(const wchar_t* text) {
    const KdString both(text);
    const int count = VoCharOp::numOfChars(both.kszPtr());
    writeInt16(static_cast<std::int16_t>(count));
    if (count > 0) {
        writeBytes(both.kszPtr(), static_cast<unsigned>(count));
    }
}
