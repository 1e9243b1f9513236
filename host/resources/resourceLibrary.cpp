#include "resourceLibrary.h"

#include "ResourceLibraries.h"
#include "resourceSearch.h"
#include "textCodec.h"

#include <algorithm>
#include <cwchar>

using orvex::ResourceLibraries;

// The caller's code says which module asks, so the address has to be the one of the real call.
[[gnu::noinline]] HINSTANCE loadResourceDll(const wchar_t* name) {
    if (name == nullptr) {
        return nullptr;
    }
    const std::string moduleFolder = orvex::folderOfCode(__builtin_return_address(0));
    const std::string path =
        orvex::findInFolders(orvex::resourceFolders(moduleFolder), orvex::narrow(name));
    return path.empty() ? nullptr : ResourceLibraries::instance().open(path);
}

int AfxFreeLibrary(HINSTANCE library) {
    return ResourceLibraries::instance().release(library) ? 1 : 0;
}

HINSTANCE AfxGetResourceHandle() {
    return ResourceLibraries::instance().current();
}

void AfxSetResourceHandle(HINSTANCE library) {
    ResourceLibraries::instance().setCurrent(library);
}

int LoadStringW(HINSTANCE library, unsigned number, wchar_t* buffer, int size) {
    if (buffer == nullptr || size <= 0) {
        return 0;
    }
    const std::wstring* const text = ResourceLibraries::instance().text(library, number);
    const std::size_t length =
        text == nullptr ? 0 : std::min(text->size(), static_cast<std::size_t>(size) - 1);
    if (length > 0) {
        std::wmemcpy(buffer, text->data(), length);
    }
    buffer[length] = L'\0';
    return static_cast<int>(length);
}

const wchar_t* velaManagerResourceString(unsigned number, const wchar_t* defaultText) {
    static const HINSTANCE hostLibrary = loadResourceDll(L"ORVEXRes.dll");
    static std::wstring result;
    const std::wstring* const text =
        hostLibrary == nullptr ? nullptr : ResourceLibraries::instance().text(hostLibrary, number);
    result = text != nullptr ? *text : defaultText != nullptr ? defaultText : L"";
    return result.c_str();
}
