#pragma once

#include "Digest.h"

#include <cstdint>
#include <span>

namespace orvex::testing {

// Plays random operations on a stream. The first byte of the input chooses the stream, the second
// is the number of operations; the rest is what they read. Each operation is one byte for its kind
// and one for its argument. All that comes out goes into the digest.
//
// Whatever the bytes are, the streams must stay within their buffers and come to an end, and a
// value that was read whole must be written and read again as the same; else the process aborts.
void playOperations(std::span<const std::uint8_t> input, Digest& digest);

} // namespace orvex::testing
