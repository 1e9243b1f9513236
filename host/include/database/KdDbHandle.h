#pragma once

#include <cstdint>

// An object's name in the drawing file, 64 bits; 0 is none.
struct KdDbHandle {
    std::uint64_t value = 0;

    friend bool operator==(const KdDbHandle&, const KdDbHandle&) = default;
};

unsigned long convertHandleToUInt64(const KdDbHandle& handle);
