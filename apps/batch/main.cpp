// orvex-batch: the host without a window.

#include "BatchCall.h"
#include "ManyDrawings.h"
#include "batchFiles.h"
#include "carryOutTask.h"
#include "endingSignals.h"
#include "planTasks.h"
#include "workThreads.h"

#include <cstdio>

namespace orvex {

namespace {

std::optional<Failure> answer(const AnsweredCall& call) {
    if (call.isWrong) {
        return Failure{FailureCause::wrongCall, {}, 0, call.text + " (see orvex-batch --help)"};
    }
    std::fputs(call.text.c_str(), stdout);
    return std::nullopt;
}

std::optional<Failure> carryOutOne(Verb& verb, const DrawingTask& task) {
    if (task.printsResult()) {
        if (auto failure = claimStandardOutput()) {
            return failure;
        }
    }
    Counts counts;
    return verb.carryOut(task, counts);
}

// The exit status of a call of several drawings goes to `status`.
std::optional<Failure> carryOut(const VerbCall& call, int& status) {
    const auto tasks = planTasks(call);
    if (!tasks) {
        return tasks.failure();
    }
    if (auto failure = call.verb->prepare()) {
        return failure;
    }
    // Jobs share the processors.
    setWorkThreads(call.many.threads.value_or(workThreads() / call.many.jobs));
    if (!call.isOfMany) {
        return carryOutOne(*call.verb, tasks->front());
    }
    status = ManyDrawings(*call.verb, *tasks, call.many).run();
    return std::nullopt;
}

} // namespace

} // namespace orvex

int main(int argc, char** argv) {
    using namespace orvex;
    endCleanlyOnSignals();
    int status = 0;
    const ExitStatus reportedStatus = reported([&] {
        const BatchCall call = parseBatchCall(argc, argv);
        const auto* const verb = std::get_if<VerbCall>(&call);
        return verb != nullptr ? carryOut(*verb, status) : answer(std::get<AnsweredCall>(call));
    });
    return reportedStatus == ExitStatus::done ? status : static_cast<int>(reportedStatus);
}
