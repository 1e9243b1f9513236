// orvex-batch: the host without a window.

#include "BatchCall.h"
#include "ManyDrawings.h"
#include "batchFiles.h"
#include "carryOutTask.h"
#include "endingSignals.h"
#include "leftBehind.h"
#include "memoryEnd.h"
#include "planTasks.h"
#include "workThreads.h"

#include <cstdio>
#include <filesystem>
#include <set>

namespace orvex {

namespace {

// First of all: the parser of options makes its constants before main, and gives up in functions
// that may not throw.
[[gnu::constructor(101)]] void prepareForMemoryEnd() {
    sayWhenMemoryEnds("orvex-batch", static_cast<int>(ExitStatus::unreadable));
}

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

// What saves left where the results go, that were killed. Once for all of them: a folder may be
// large.
void tidyFolders(const std::vector<DrawingTask>& tasks) {
    std::set<std::string> folders;
    for (const DrawingTask& task : tasks) {
        if (task.output && !task.printsResult()) {
            const std::string folder = std::filesystem::path(*task.output).parent_path().string();
            folders.insert(folder.empty() ? "." : folder);
        }
    }
    for (const std::string& folder : folders) {
        removeLeftBehind(folder);
    }
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
    tidyFolders(*tasks);
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
