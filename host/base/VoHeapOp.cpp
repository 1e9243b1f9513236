#include "VoHeapOp.h"

#include <new>

void* VoHeapOp::operator new(std::size_t size) {
    return ::operator new(size);
}

void* VoHeapOp::operator new(std::size_t /*size*/, void* place) noexcept {
    return place;
}

void VoHeapOp::operator delete(void* memory) noexcept {
    ::operator delete(memory);
}

void VoHeapOp::operator delete(void* /*memory*/, void* /*place*/) noexcept {}
