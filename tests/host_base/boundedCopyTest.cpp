#include "boundedCopy.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

namespace {

TEST(BoundedCopyTest, bytesAreCopiedWholeOrNotAtAll) {
    char target[4] = "xyz";
    EXPECT_NE(memcpy_s(target, 2, "abc", 3), 0);
    EXPECT_NE(memcpy_s(target, 4, nullptr, 3), 0);
    EXPECT_NE(memcpy_s(nullptr, 4, "abc", 3), 0);
    EXPECT_STREQ(target, "xyz");
    EXPECT_EQ(memcpy_s(target, 3, "abc", 3), 0);
    EXPECT_STREQ(target, "abc");
    EXPECT_EQ(memcpy_s(nullptr, 0, nullptr, 0), 0);
}

TEST(BoundedCopyTest, textIsCutAndAlwaysTerminated) {
    const struct {
        std::size_t capacity, count;
        const wchar_t* result;
        bool whole;
    } cases[] = {{6, 99, L"abcde", true}, {5, 99, L"abcd", false}, {1, 99, L"", false},
                 {6, 2, L"ab", true},     {3, 2, L"ab", true},     {2, 2, L"a", false}};
    for (const auto& each : cases) {
        std::wstring target(6, L'#');
        EXPECT_EQ(wcsncpy_s(target.data(), each.capacity, L"abcde", each.count) == 0, each.whole);
        EXPECT_STREQ(target.c_str(), each.result);
        for (std::size_t i = each.capacity; i < target.size(); ++i) {
            EXPECT_EQ(target[i], L'#');
        }
    }
    wchar_t target[3] = L"xy";
    EXPECT_NE(wcscpy_s(target, 0, L"cd"), 0);
    EXPECT_STREQ(target, L"xy");
    EXPECT_NE(wcscpy_s(target, 3, nullptr), 0);
    EXPECT_STREQ(target, L"");
}

} // namespace
