// orvex-batch: the host without a window.

#include "BatchCall.h"
#include "exitStatus.h"
#include "openDrawing.h"
#include "verbs.h"

#include <cstdio>
#include <exception>

namespace orvex {

namespace {

std::optional<BatchFailure> carryOut(const BatchCall& call) {
    if (const auto* const run = std::get_if<RunCall>(&call)) {
        return runScript(*run);
    }
    if (const auto* const show = std::get_if<ShowCall>(&call)) {
        return showDrawing(*show);
    }
    if (const auto* const list = std::get_if<ListCall>(&call)) {
        return listDrawing(*list);
    }
    const auto& answered = std::get<AnsweredCall>(call);
    if (answered.isWrong) {
        return BatchFailure{BatchFailure::Cause::call, answered.text + " (see orvex-batch --help)"};
    }
    std::fputs(answered.text.c_str(), stdout);
    return std::nullopt;
}

ExitStatus runProgram(int argc, char** argv) {
    std::optional<BatchFailure> failure = carryOut(parseBatchCall(argc, argv));
    if (!failure) {
        failure = flushOutput();
    }
    if (!failure) {
        return ExitStatus::done;
    }
    complain(failure->text);
    return exitStatus(*failure);
}

} // namespace

} // namespace orvex

int main(int argc, char** argv) {
    try {
        return static_cast<int>(orvex::runProgram(argc, argv));
    } catch (const std::exception& error) {
        orvex::complain(error.what());
        return static_cast<int>(orvex::ExitStatus::unreadable);
    }
}
