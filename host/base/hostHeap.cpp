#include "hostHeap.h"

#include <cstdlib>
#include <cwchar>

Status kdutNewBuffer(wchar_t*& text, std::size_t bytes) {
    text = static_cast<wchar_t*>(std::calloc(bytes > 0 ? bytes : 1, 1));
    return text != nullptr ? Status::done : Status::outOfMemory;
}

Status kdutNewString(const wchar_t* source, wchar_t*& copy) {
    const std::size_t length = source != nullptr ? std::wcslen(source) : 0;
    const Status status = kdutNewBuffer(copy, (length + 1) * sizeof(wchar_t));
    if (status == Status::done && length > 0) {
        std::wmemcpy(copy, source, length);
    }
    return status;
}

void kdutDelString(wchar_t*& text) {
    rvex_free(text);
    text = nullptr;
}

void rvex_free(void* memory) {
    std::free(memory);
}
