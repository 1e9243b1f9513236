// Two host functions that the tests answer themselves. The program's own definition goes before
// the library's.
//
// Texts read as their numbers, so that a test sees which one was shown; the host's own would need a
// resource library. ERRNO can be set to what only a closed input line gives.

#include "EngineWorld.h"
#include "boundedCopy.h"
#include "resourceLibrary.h"
#include "systemVariables.h"

#include <dlfcn.h>

#include <cwchar>
#include <string>

namespace orvex::testing {

HostSeams& HostSeams::current() {
    static HostSeams seams;
    return seams;
}

} // namespace orvex::testing

using orvex::testing::HostSeams;

int LoadStringW(HINSTANCE library, unsigned number, wchar_t* buffer, int size) {
    constexpr unsigned kKeywords = 4002;
    const std::wstring text = library != HostSeams::current().resources ? L""
                              : number == kKeywords                     ? L"UNDO"
                                                    : L"#" + std::to_wstring(number);
    wcscpy_s(buffer, static_cast<std::size_t>(size), text.c_str());
    return static_cast<int>(text.size());
}

int kdedGetVar(const wchar_t* name, resbuf* result) {
    if (HostSeams::current().errorNumber != 0 && std::wcscmp(name, L"ERRNO") == 0) {
        result->restype = kResultShort;
        result->resval.rint = static_cast<short>(HostSeams::current().errorNumber);
        return 5100;
    }
    using Function = int (*)(const wchar_t*, resbuf*);
    static const auto hosts =
        reinterpret_cast<Function>(dlsym(RTLD_NEXT, "_Z10kdedGetVarPKwP6resbuf"));
    return hosts(name, result);
}
