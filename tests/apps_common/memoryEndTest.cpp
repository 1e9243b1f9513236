// How a program ends that is refused memory: each case in a process of its own.

#include "memoryEnd.h"

#include <gtest/gtest.h>

#include <new>
#include <unistd.h>

namespace {

using namespace orvex;

constexpr int kStatus = 7;
constexpr int kCaught = 3;

// As operator new does where there is no memory.
void refuse() {
    try {
        std::get_new_handler()();
    } catch (const std::bad_alloc&) {
        _exit(kCaught);
    }
}

TEST(MemoryEndDeathTest, isFinalOnlyAsLongAsALibraryNeedsIt) {
    const auto inside = [] {
        sayWhenMemoryEnds("program", kStatus);
        const MemoryEndIsFinal whileItStarts;
        refuse();
    };
    const auto after = [] {
        sayWhenMemoryEnds("program", kStatus);
        { const MemoryEndIsFinal whileItStarts; }
        refuse();
    };
    EXPECT_EXIT(inside(), ::testing::ExitedWithCode(kStatus), "^program: not enough memory\n$");
    EXPECT_EXIT(after(), ::testing::ExitedWithCode(kCaught), "^$");
}

} // namespace
