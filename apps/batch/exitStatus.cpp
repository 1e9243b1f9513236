#include "exitStatus.h"

namespace orvex {

ExitStatus exitStatus(const BatchFailure& failure) {
    switch (failure.cause) {
    case BatchFailure::Cause::call:
        return ExitStatus::wrongCall;
    case BatchFailure::Cause::reading:
        return ExitStatus::unreadable;
    case BatchFailure::Cause::writing:
        return ExitStatus::unwritable;
    case BatchFailure::Cause::playing:
        break;
    }
    return ExitStatus::unplayable;
}

} // namespace orvex
