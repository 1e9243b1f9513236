#include "VoMemStreamBuf.h"

std::uint64_t VoMemStreamBuf::seek(std::uint64_t offset, VoIO::SeekType type) {
    switch (type) {
    case VoIO::fromStart:
        moveTo(offset);
        break;
    case VoIO::forward:
        moveTo(tell() + offset);
        break;
    case VoIO::backward:
        moveTo(tell() - offset);
        break;
    case VoIO::fromEnd:
        moveTo(length() - offset);
        break;
    }
    return tell();
}

std::uint64_t VoMemStreamBuf::bufSize() const {
    return length();
}

void VoMemStreamBuf::resize(unsigned /*count*/) {}

void VoMemStreamBuf::reserve(unsigned /*count*/) {}

void VoMemStreamBuf::moveTo(std::uint64_t /*position*/) {}
