#pragma once

#include <cstddef>

// The host's heap: objects that the module makes and the host may destroy come from one place.
// Throws std::bad_alloc when memory is exhausted. No data, no virtual operations.
class VoHeapOp {
public:
    static void* operator new(std::size_t size);
    static void* operator new(std::size_t size, void* place) noexcept;
    static void operator delete(void* memory) noexcept;
    static void operator delete(void* memory, void* place) noexcept;
};
