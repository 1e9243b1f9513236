#pragma once

#include <cstddef>

namespace orvex {

// Fills target[i], i < count, with the 8 bits that start `shift` bits (1 to 7) into source[i], the
// most significant bit counted first; the last of them reach into source[count]. The target may be
// the source itself; other overlaps are not allowed.
void copyShiftedLeft(unsigned char* target, const unsigned char* source, std::size_t count,
                     unsigned shift);

} // namespace orvex
