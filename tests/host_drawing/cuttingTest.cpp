// Cutting a drawing by several threads, compared with cutting it by one.

#include "RecordTable.h"
#include "sampleDrawing.h"
#include "workThreads.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

using namespace orvex;
using namespace orvex::testing;

constexpr std::size_t kLargeEnough = std::size_t{5} << 18U; // for two threads

// More than the room gives to a single thread, with handles, styles and faults all over.
std::string largeDrawing(const std::string& lineEnd) {
    constexpr int kMultilines = 20'000;
    std::string text = "  0\nSECTION\n  2\nENTITIES\n";
    for (int i = 0; i < kMultilines; ++i) {
        const int handle = 100 + (i * 7919) % kMultilines;
        const std::string count = i % 1000 == 17 ? "7" : "0"; // which is then not what comes
        text += "  0\nMLINE\n  5\n" + std::to_string(handle) + "\n340\n" +
                std::to_string(i % 5000) + "\n 72\n" + count +
                "\n 73\n0\n  1\n0\n  0\nTEXT\n  1\n  0\n  2\n  0\n";
        text += i % 3 == 0 ? " 67\n1\n" : "";
    }
    text += "  0\nENDSEC\n  0\nEOF\n";
    if (lineEnd == "\n") {
        return text;
    }
    std::string other;
    for (const char c : text) {
        other += c == '\n' ? lineEnd : std::string(1, c);
    }
    return other;
}

struct Cut {
    std::optional<Failure> failure;
    CutDrawing drawing;
};

Cut cutBy(int threads, const std::string& bytes) {
    setWorkThreads(threads);
    Cut cut;
    cut.failure = cutDrawing(bytes, 0, {}, cut.drawing);
    return cut;
}

void expectSame(const std::string& bytes) {
    const auto [failure, one] = cutBy(1, bytes);
    const auto [otherFailure, two] = cutBy(2, bytes);
    ASSERT_EQ(failure.has_value(), otherFailure.has_value());
    if (failure) {
        EXPECT_EQ(failure->line, otherFailure->line);
        EXPECT_EQ(failure->text, otherFailure->text);
        return;
    }
    ASSERT_EQ(one.records.size(), two.records.size());
    std::size_t different = 0;
    for (std::uint32_t i = 0; i <= one.records.size(); ++i) {
        const Record& a = one.records[i];
        const Record& b = two.records[i];
        different += a.offset != b.offset || a.handle != b.handle || a.kind != b.kind ||
                     a.inPaperSpace != b.inPaperSpace || a.opaque != b.opaque ||
                     a.namedStyle != b.namedStyle;
    }
    EXPECT_EQ(different, 0U);
    const auto lines = [](const auto& list) {
        std::vector<std::size_t> result(list.size());
        std::ranges::transform(list, result.begin(), [](const auto& each) { return each.line; });
        return result;
    };
    EXPECT_EQ(lines(one.namedStyles), lines(two.namedStyles));
    EXPECT_EQ(lines(one.warnings), lines(two.warnings));
    EXPECT_EQ(one.lineEnds.lineFeeds, two.lineEnds.lineFeeds);
    EXPECT_EQ(one.lineEnds.carriageReturns, two.lineEnds.carriageReturns);
    EXPECT_EQ(one.lineCount, two.lineCount);
    EXPECT_EQ(one.highestHandle, two.highestHandle);
    EXPECT_EQ(one.hasEnd, two.hasEnd);
}

TEST(Cutting, doesNotDependOnThreads) {
    const std::string whole = largeDrawing("\n");
    ASSERT_GT(whole.size(), kLargeEnough);
    const std::size_t half = whole.size() / 2;
    const auto with = [&](std::size_t at, const std::string& put) {
        const std::size_t place = whole.find("  0\nMLINE\n", at);
        return whole.substr(0, place) + put + whole.substr(place);
    };
    const std::size_t quarter = half / 2;
    expectSame(whole);
    expectSame(largeDrawing("\r\n"));
    expectSame(whole.substr(0, whole.size() - 9)); // no EOF
    expectSame(with(quarter, "  0\nEOF\n"));       // the rest isn't read
    expectSame(with(quarter, "no code\nvalue\n")); // faults in either half
    expectSame(with(half + quarter, "x\nvalue\n"));
    expectSame(with(quarter, "one line more\n"));
    expectSame(with(half + quarter, "  0\nTEXT\n  5\nFFFF0\n")); // the highest handle
    expectSame(whole + " 12");
    // Every value looks like the beginning of a record: only counting from the start tells.
    std::string pairs;
    while (pairs.size() < kLargeEnough) {
        pairs += "  1\n  0\n  0\nA\n";
    }
    expectSame(pairs);
    expectSame("  0\nA\n" + pairs + "  1\n");
}

TEST(Cutting, canBeGivenUp) {
    setWorkThreads(2);
    CutDrawing drawing;
    std::string bytes;
    while (bytes.size() < (std::size_t{9} << 20U)) { // asked every four megabytes
        bytes += "  0\nTEXT\n  1\nwords\n";
    }
    const auto failure = cutDrawing(
        bytes, 0, [](double) { return false; }, drawing);
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(failure->cause, FailureCause::interrupted);
    EXPECT_EQ(failure->line, 0U); // no line is to blame
}

} // namespace
