#include "exitStatus.h"

namespace orvex {

ExitStatus exitStatus(FailureCause cause) {
    switch (cause) {
    case FailureCause::wrongCall:
        return ExitStatus::wrongCall;
    case FailureCause::unreadableInput:
        return ExitStatus::unreadable;
    case FailureCause::unwritableOutput:
        return ExitStatus::unwritable;
    case FailureCause::unplayableScript:
    case FailureCause::unloadableModule:
    case FailureCause::impossibleEdit:
        return ExitStatus::unplayable;
    case FailureCause::missedPick:
        return ExitStatus::missedPick;
    case FailureCause::interrupted:
        return ExitStatus::interrupted;
    case FailureCause::programFault:
        break;
    }
    return ExitStatus::programFault;
}

} // namespace orvex
