#include "shiftedCopy.h"

#include <cstdint>
#include <cstring>

namespace orvex {

namespace {

std::uint64_t loadWord(const unsigned char* bytes) {
    std::uint64_t word = 0;
    std::memcpy(&word, bytes, sizeof word);
    return word;
}

// The same byte in all eight places of a word.
constexpr std::uint64_t inEveryByte(unsigned byte) {
    return 0x0101010101010101U * byte;
}

} // namespace

void copyShiftedLeft(unsigned char* target, const unsigned char* source, std::size_t count,
                     unsigned shift) {
    const unsigned rest = 8 - shift;
    const std::uint64_t highBits = inEveryByte(0xFFU << shift & 0xFFU);
    const std::uint64_t lowBits = inEveryByte(0xFFU >> rest);
    // Eight bytes at once, each from the word that holds its high bits and from the word one byte
    // further, which holds its low bits; what crosses a byte's border is masked off, so the order
    // of bytes in a word doesn't matter.
    std::size_t i = 0;
    for (; i + sizeof(std::uint64_t) <= count; i += sizeof(std::uint64_t)) {
        const std::uint64_t word = (loadWord(source + i) << shift & highBits) |
                                   (loadWord(source + i + 1) >> rest & lowBits);
        std::memcpy(target + i, &word, sizeof word);
    }
    for (; i < count; ++i) {
        target[i] = static_cast<unsigned char>(source[i] << shift | source[i + 1] >> rest);
    }
}

} // namespace orvex
