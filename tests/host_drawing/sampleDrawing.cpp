#include "sampleDrawing.h"

#include "DatabaseCore.h"
#include "ObjectTable.h"
#include "TestPaths.h"

#include <algorithm>
#include <fstream>
#include <iterator>

namespace orvex::testing {

std::string dxf(std::string_view tags) {
    std::string text;
    while (!tags.empty()) {
        const std::size_t end = std::min(tags.find('\n'), tags.size());
        const std::string_view line = tags.substr(0, end);
        tags.remove_prefix(std::min(end + 1, tags.size()));
        const std::size_t blank = std::min(line.find(' '), line.size());
        text += std::string(blank < 3 ? 3 - blank : 0, ' ');
        text += line.substr(0, blank);
        text += '\n';
        text += blank < line.size() ? line.substr(blank + 1) : std::string_view();
        text += '\n';
    }
    return text;
}

std::string sampleDrawing() {
    std::ifstream file(sourceDir() / "tests/host_drawing/corpus/sample.dxf", std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string withReturns(const std::string& bytes) {
    std::string result;
    for (const char byte : bytes) {
        result += byte == '\n' ? "\r\n" : std::string(1, byte);
    }
    return result;
}

std::string replaced(std::string text, std::string_view from, std::string_view to) {
    const std::size_t at = text.find(from);
    EXPECT_NE(at, std::string::npos) << from;
    return at == std::string::npos ? text : text.replace(at, from.size(), to);
}

std::unique_ptr<DrawingFile> openDrawing(const std::string& bytes) {
    auto opened = DrawingFile::openBytes(bytes);
    if (!opened) {
        ADD_FAILURE() << messageOf(opened.failure());
        return DrawingFile::create();
    }
    return std::move(*opened);
}

Failure openFailing(const std::string& bytes) {
    const auto opened = DrawingFile::openBytes(bytes);
    if (!opened) {
        return opened.failure();
    }
    ADD_FAILURE() << "it opens";
    return {};
}

std::string warningsOf(const std::string& bytes) {
    const auto file = openDrawing(bytes);
    std::string text;
    for (const DrawingWarning& warning : file->warnings()) {
        text += std::to_string(warning.line) + ": " + warning.text + "\n";
    }
    return text;
}

::testing::AssertionResult sameText(const std::string& actual, const std::string& expected) {
    if (actual == expected) {
        return ::testing::AssertionSuccess();
    }
    const auto [a, b] = std::ranges::mismatch(actual, expected);
    const auto at = static_cast<std::size_t>(a - actual.begin());
    const std::size_t from = at - std::min<std::size_t>(at, 60);
    return ::testing::AssertionFailure()
           << "line " << 1 + std::count(actual.begin(), a, '\n') << "\n--- actual\n"
           << actual.substr(from, 120) << "\n--- expected\n"
           << expected.substr(from, 120);
}

KdDbStub& stubOf(DrawingFile& file, std::uint64_t handle) {
    KdDbStub* const stub = file.database().core().objects().findHandle(handle);
    if (stub == nullptr) {
        ADD_FAILURE() << "no object has the handle " << handle;
        return file.database().core().objects().stubs().front();
    }
    return *stub;
}

} // namespace orvex::testing
