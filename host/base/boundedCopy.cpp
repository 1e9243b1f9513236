#include "boundedCopy.h"

#include "VoCharOp.h"

#include <algorithm>
#include <climits>
#include <cstring>
#include <cwchar>

namespace {

constexpr int kDone = 0;
constexpr int kRefused = 22;
constexpr int kTooSmall = 34;

} // namespace

int memcpy_s(void* target, std::size_t capacity, const void* source, std::size_t count) {
    if (count == 0) {
        return kDone;
    }
    if (target == nullptr || source == nullptr) {
        return kRefused;
    }
    if (capacity < count) {
        return kTooSmall;
    }
    std::memmove(target, source, count);
    return kDone;
}

int wcscpy_s(wchar_t* target, std::size_t capacity, const wchar_t* source) {
    return wcsncpy_s(target, capacity, source, static_cast<std::size_t>(-1));
}

int wcsncpy_s(wchar_t* target, std::size_t capacity, const wchar_t* source, std::size_t count) {
    if (target == nullptr || capacity == 0) {
        return kRefused;
    }
    if (source == nullptr) {
        target[0] = L'\0';
        return kRefused;
    }
    // A character more than there is room for distinguishes a text that just fits from one that is
    // cut.
    const std::size_t length = wcsnlen(source, std::min(count, capacity));
    const std::size_t kept = std::min(length, capacity - 1);
    std::wmemmove(target, source, kept);
    target[kept] = L'\0';
    return kept == length ? kDone : kTooSmall;
}

int VoCharOp::numOfChars(const char* text) {
    if (text == nullptr) {
        return 0;
    }
    return static_cast<int>(std::min<std::size_t>(std::strlen(text), INT_MAX));
}
