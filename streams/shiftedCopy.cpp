#include "shiftedCopy.h"

#include <cstdint>
#include <cstring>

namespace orvex {

namespace {

// Two 64-bit words that the processor works on at once.
using Words [[gnu::vector_size(16)]] = std::uint64_t;

template <class T>
T load(const unsigned char* bytes) {
    T words{};
    std::memcpy(&words, bytes, sizeof words);
    return words;
}

// As many bytes as T has, each from the words that hold its high bits and from those one byte
// further, which hold its low bits; what crosses a byte's border is masked off, so the order of
// bytes in a word doesn't matter.
template <class T>
T shifted(const unsigned char* bytes, unsigned shift, T highBits, T lowBits) {
    return (load<T>(bytes) << shift & highBits) | (load<T>(bytes + 1) >> (8 - shift) & lowBits);
}

// The same byte in all places of a word.
constexpr std::uint64_t inEveryByte(unsigned byte) {
    return 0x0101010101010101U * byte;
}

} // namespace

void copyShiftedLeft(unsigned char* target, const unsigned char* source, std::size_t count,
                     unsigned shift) {
    const std::uint64_t high = inEveryByte(0xFFU << shift & 0xFFU);
    const std::uint64_t low = inEveryByte(0xFFU >> (8 - shift));
    const Words highBits{high, high};
    const Words lowBits{low, low};
    constexpr std::size_t kStep = 2 * sizeof(Words);
    std::size_t i = 0;
    for (; i + kStep <= count; i += kStep) {
        const Words first = shifted(source + i, shift, highBits, lowBits);
        const Words second = shifted(source + i + sizeof(Words), shift, highBits, lowBits);
        std::memcpy(target + i, &first, sizeof first);
        std::memcpy(target + i + sizeof first, &second, sizeof second);
    }
    for (; i + sizeof(std::uint64_t) <= count; i += sizeof(std::uint64_t)) {
        const std::uint64_t word = shifted(source + i, shift, high, low);
        std::memcpy(target + i, &word, sizeof word);
    }
    for (; i < count; ++i) {
        target[i] = static_cast<unsigned char>(source[i] << shift | source[i + 1] >> (8 - shift));
    }
}

} // namespace orvex
