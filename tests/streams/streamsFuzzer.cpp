#include "crashRecorder.h"
#include "streamOperations.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    // Words about what can't be read would take most of the time.
    static CrashRecorder* const silenced = orvex::setCrashRecorder(nullptr);
    static_cast<void>(silenced);
    orvex::testing::Digest digest;
    orvex::testing::playOperations({data, size}, digest);
    return 0;
}
