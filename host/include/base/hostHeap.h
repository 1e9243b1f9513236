#pragma once

#include "Status.h"

#include <cstddef>

// Texts on the host's heap, zeroed; null on failure. Give them back with rvex_free.
Status kdutNewBuffer(wchar_t*& text, std::size_t bytes);
Status kdutNewString(const wchar_t* source, wchar_t*& copy);
void kdutDelString(wchar_t*& text); // leaves null
void rvex_free(void* memory);
