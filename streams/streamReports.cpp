#include "streamReports.h"

#include "crashRecorder.h"

namespace orvex {

void reportStatus(Status status) noexcept {
    if (CrashRecorder* const recorder = rvexGetCrashRecorder()) {
        recorder->take(VoErrorStatus(static_cast<int>(status)));
    }
}

} // namespace orvex
