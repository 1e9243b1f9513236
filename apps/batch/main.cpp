// orvex-batch: the host without a window.

#include "BatchCall.h"
#include "batchFiles.h"
#include "exitStatus.h"

#include <cstdio>
#include <exception>

namespace orvex {

namespace {

std::optional<Failure> answer(const AnsweredCall& call) {
    if (call.isWrong) {
        return Failure{FailureCause::wrongCall, {}, 0, call.text + " (see orvex-batch --help)"};
    }
    std::fputs(call.text.c_str(), stdout);
    return std::nullopt;
}

std::optional<Failure> carryOut(const VerbCall& call) {
    if (auto failure = call.verb->check(call.task)) {
        return failure;
    }
    if (auto failure = call.verb->prepare()) {
        return failure;
    }
    Counts counts;
    return call.verb->carryOut(call.task, counts);
}

// No exception is part of a plan that reaches the program's end.
std::optional<Failure> carryOutGuarded(int argc, char** argv) {
    try {
        const BatchCall call = parseBatchCall(argc, argv);
        const auto* const verb = std::get_if<VerbCall>(&call);
        auto failure = verb != nullptr ? carryOut(*verb) : answer(std::get<AnsweredCall>(call));
        return failure ? failure : flushOutput();
    } catch (const std::exception& error) {
        return Failure{FailureCause::programFault, {}, 0, error.what()};
    } catch (...) {
        return Failure{FailureCause::programFault, {}, 0, "an unknown exception"};
    }
}

ExitStatus report(const std::optional<Failure>& failure) {
    if (!failure) {
        return ExitStatus::done;
    }
    complain(messageOf(*failure));
    if (failure->cause == FailureCause::programFault) {
        complain("this is a fault of the program; please report it with the call, the drawing, the "
                 "script and the version " ORVEX_VERSION);
    }
    return exitStatus(failure->cause);
}

} // namespace

} // namespace orvex

int main(int argc, char** argv) {
    return static_cast<int>(orvex::report(orvex::carryOutGuarded(argc, argv)));
}
