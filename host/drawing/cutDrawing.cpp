// Cutting a drawing into records, by two threads where it is large.

#include "RecordCutter.h"
#include "workThreads.h"

#include <atomic>
#include <future>
#include <system_error>

namespace orvex {

namespace {

constexpr std::size_t kLeastForTwo = std::size_t{1} << 20U; // bytes; fewer are cut at once anyway

// The first line from `from` on that looks like the code 0 of a record: its value is a name, which
// no group code can be. The end of `bytes` when there is none.
std::size_t likelyRecord(std::string_view bytes, std::size_t from) {
    for (std::size_t line = bytes.find('\n', from); line != std::string_view::npos;) {
        const std::size_t next = bytes.find('\n', line + 1);
        if (next == std::string_view::npos || next + 1 >= bytes.size()) {
            break;
        }
        const std::size_t begin = bytes.find_first_not_of(" \t", line + 1);
        const std::size_t end = bytes[next - 1] == '\r' ? next - 1 : next;
        const char after = bytes[next + 1];
        if (begin + 1 == end && bytes[begin] == '0' && after >= 'A' && after <= 'Z') {
            return line + 1;
        }
        line = next;
    }
    return bytes.size();
}

enum class Outcome : std::uint8_t { cut, interrupted, toBeCutInOne };

// The second half in a thread of its own. Where the middle is turns out by counting lines in pairs
// from the start: when the first half ends there with a whole tag, the second began at one.
Outcome cutInTwo(std::string_view bytes, std::size_t start, const Progress& progress,
                 CutDrawing& result) {
    const std::size_t middle = likelyRecord(bytes, start + (bytes.size() - start) / 2);
    if (middle == bytes.size()) {
        return Outcome::toBeCutInOne;
    }
    CutDrawing rest;
    std::atomic<bool> isGivenUp = false;
    const auto cutRest = [&] {
        return RecordCutter(bytes, middle, bytes.size(), rest).run([&](double) {
            return !isGivenUp;
        });
    };
    std::future<std::optional<Failure>> ofRest;
    try {
        ofRest = std::async(std::launch::async, cutRest);
    } catch (const std::system_error&) {
        return Outcome::toBeCutInOne; // the system has no thread to give
    }
    std::optional<Failure> failure;
    try {
        failure = RecordCutter(bytes, start, middle, result).run(progress);
    } catch (...) {
        isGivenUp = true;
        throw; // which waits for the thread
    }
    isGivenUp = failure || result.hasEnd;
    const std::optional<Failure> failureOfRest = ofRest.get();
    if (failure && failure->cause == FailureCause::interrupted) {
        return Outcome::interrupted;
    }
    if (!failure && result.hasEnd) {
        return Outcome::cut;
    }
    // What is wrong is told with its line, which takes counting from the start.
    if (failure || failureOfRest) {
        return Outcome::toBeCutInOne;
    }
    result.append(std::move(rest));
    return Outcome::cut;
}

} // namespace

std::optional<Failure> cutDrawing(std::string_view bytes, std::size_t start,
                                  const Progress& progress, CutDrawing& result) {
    if (workThreads() > 1 && bytes.size() >= kLeastForTwo) {
        switch (cutInTwo(bytes, start, progress, result)) {
        case Outcome::cut:
            return std::nullopt;
        case Outcome::interrupted:
            return Failure{FailureCause::interrupted, {}, 0, "interrupted"};
        case Outcome::toBeCutInOne:
            result = {};
            break;
        }
    }
    return RecordCutter(bytes, start, bytes.size(), result).run(progress);
}

} // namespace orvex
