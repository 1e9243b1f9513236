#include "resourceLibraryName.h"

#include "kdrxRegistry.h"
#include "resourceLibrary.h"

CStdStr<wchar_t> resourceLibraryName(const CStdStr<wchar_t>& modulePath) {
    constexpr int kShortestPath = 5;
    if (modulePath.GetLength() < kShortestPath) {
        return modulePath;
    }
    const int start = modulePath.ReverseFind(L'\\') + 1;
    const int dot = modulePath.ReverseFind(L'.');
    // A "." before the stem isn't the stem's.
    const int end = dot >= start ? dot : modulePath.GetLength();
    return modulePath.Mid(start, end - start) + L"Res" + L".dll";
}

HINSTANCE _loadResLib(HINSTANCE module) {
    constexpr unsigned kPathSize = 1024;
    wchar_t path[kPathSize] = L"";
    if (GetModuleFileNameW(module, path, kPathSize) < 1) {
        return nullptr;
    }
    return loadResourceDll(resourceLibraryName(path));
}
