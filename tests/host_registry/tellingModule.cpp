// Appends a word for each of its calls to the file that ORVEX_TEST_LOG names. Fails to load where
// ORVEX_TEST_FAIL is set.

#include "KdEdCommandStack.h"
#include "KdRxDictionary.h"
#include "kdrxRegistry.h"
#include "moduleEntry.h"

#include <cstdlib>
#include <fstream>
#include <string>

namespace {

void tell(const std::string& word) {
    if (const char* const file = std::getenv("ORVEX_TEST_LOG")) {
        std::ofstream(file, std::ios::app) << word << ' ';
    }
}

struct Static {
    Static() { tell("constructed"); }
    ~Static() { tell("destroyed"); }
};
const Static staticObject;

KdEdCommandStack* commands() {
    return KdEdCommandStack::cast(kdrxSysRegistry()->at(L"RVEX_REGISTERED_COMMANDS"));
}

} // namespace

extern "C" {

[[gnu::visibility("default")]] int DllMain(HINSTANCE module, int reason, void* /*reserved*/) {
    wchar_t path[1024];
    const bool isNamed = GetModuleFileNameW(module, path, 1024) > 0;
    tell((reason == kReasonAttach ? "attach" : "detach") + std::string(isNamed ? "" : "-unnamed"));
    return 1;
}

[[gnu::visibility("default")]] int kdrxEntryPoint(int message, void* application) {
    tell("message" + std::to_string(message) + (application != nullptr ? "" : "-null"));
    if (message == kMessageLoad && std::getenv("ORVEX_TEST_FAIL") != nullptr) {
        return kLoadFailed;
    }
    if (message == kMessageLoad) {
        commands()->addCommand(
            L"TELLING", L"TELL", L"", 2, [] { tell("command"); }, nullptr, -1, nullptr, nullptr);
    } else if (message == kMessageUnload) {
        commands()->removeGroup(L"TELLING");
    }
    return kEntryDone;
}

[[gnu::visibility("default")]] int kdrxGetApiVersion(int /*unused*/) {
    return kApiVersion;
}
}
