#pragma once

#include <cstdarg>
#include <string>

namespace orvex {

// Formats like wprintf, but whatever the user's language: a point as decimal separator, wide text
// under %ls and %s alike (null reads as empty). Knows %d %i %u %x %X %c %s %f %e %g and %%, with
// width, precision, the flags "-", "0", "+", and the lengths h, l, ll, z. A directive that it
// doesn't know stands in the result as written, and so does all that follows it, because the
// arguments can't be distinguished any more.
std::wstring formatWide(const wchar_t* pattern, va_list list);

} // namespace orvex
