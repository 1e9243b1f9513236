#pragma once

#include <cstddef>

// Bounded copies that neither abort nor throw. Results: 0 done, else nothing or less was copied.

// Bytes. A null or a capacity that is too small: nothing is copied, the result is not 0.
int memcpy_s(void* target, std::size_t capacity, const void* source, std::size_t count);

// Wide text; `capacity` in characters with the terminator. What is too long is cut, the target is
// always terminated.
int wcscpy_s(wchar_t* target, std::size_t capacity, const wchar_t* source);
int wcsncpy_s(wchar_t* target, std::size_t capacity, const wchar_t* source, std::size_t count);
