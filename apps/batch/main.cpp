// orvex-batch: the host without a window.

#include "BatchCall.h"
#include "batchFiles.h"
#include "exitStatus.h"
#include "verbs.h"

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

std::optional<Failure> carryOut(const BatchCall& call) {
    if (const auto* const run = std::get_if<RunCall>(&call)) {
        return runScript(*run);
    }
    if (const auto* const show = std::get_if<ShowCall>(&call)) {
        return showDrawing(*show);
    }
    if (const auto* const list = std::get_if<ListCall>(&call)) {
        return listDrawing(*list);
    }
    if (const auto* const join = std::get_if<JoinCall>(&call)) {
        return joinDrawing(*join);
    }
    if (const auto* const audit = std::get_if<AuditCall>(&call)) {
        return auditDrawing(*audit);
    }
    if (const auto* const convert = std::get_if<ConvertCall>(&call)) {
        return convertDrawing(*convert);
    }
    return answer(std::get<AnsweredCall>(call));
}

// No exception is part of a plan that reaches the program's end.
std::optional<Failure> carryOutGuarded(int argc, char** argv) {
    try {
        auto failure = carryOut(parseBatchCall(argc, argv));
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
