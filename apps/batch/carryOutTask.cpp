#include "carryOutTask.h"

#include "batchFiles.h"

#include <exception>
#include <new>

namespace orvex {

namespace {

// No exception is part of a plan that reaches the program's end.
std::optional<Failure> guarded(const std::function<std::optional<Failure>()>& action) {
    try {
        auto failure = action();
        return failure ? failure : flushOutput();
    } catch (const std::bad_alloc&) {
        // Where a result is made or saved, withMemory knows better.
        return Failure{FailureCause::unreadableInput, {}, 0, "not enough memory"};
    } catch (const std::exception& error) {
        return Failure{FailureCause::programFault, {}, 0, error.what()};
    } catch (...) {
        return Failure{FailureCause::programFault, {}, 0, "an unknown exception"};
    }
}

} // namespace

ExitStatus reported(const std::function<std::optional<Failure>()>& action) {
    const auto failure = guarded(action);
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

ExitStatus carryOutTask(Verb& verb, const DrawingTask& task, Counts& counts) {
    return reported([&] { return verb.carryOut(task, counts); });
}

} // namespace orvex
