#include "moduleResources.h"

#include "entry.h"
#include "kdrxRegistry.h"
#include "resourceLibrary.h"

CStdStr<wchar_t> LoadLocalCmdStr(unsigned int number) {
    CStdStr<wchar_t> text;
    text.LoadStringW(hResModule, number);
    return text;
}

HINSTANCE _loadResLib(HINSTANCE module) {
    constexpr unsigned kPathSize = 1024;
    wchar_t path[kPathSize] = L"";
    if (GetModuleFileNameW(module, path, kPathSize) < 1) {
        return nullptr;
    }
    return loadResourceDll(mledit::resourceLibraryName(path));
}

namespace mledit {

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

CommandResources::CommandResources() : m_library(loadResourceDll(kResourceLibrary)) {
    if (m_library != nullptr) {
        m_before = AfxGetResourceHandle();
        AfxSetResourceHandle(m_library);
    }
}

CommandResources::~CommandResources() {
    if (m_library != nullptr) {
        AfxSetResourceHandle(m_before);
        AfxFreeLibrary(m_library);
    }
}

} // namespace mledit
