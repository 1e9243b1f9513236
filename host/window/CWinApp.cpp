#include "CWinApp.h"

#include "ProfileStore.h"
#include "currentStore.h"

#include <algorithm>

namespace {

std::wstring nameOf(const wchar_t* text) {
    return text != nullptr ? text : L"";
}

} // namespace

int CWinApp::GetProfileInt(const wchar_t* section, const wchar_t* key, int fallback) {
    return orvex::currentStore().integer(nameOf(section), nameOf(key), fallback);
}

bool CWinApp::WriteProfileInt(const wchar_t* section, const wchar_t* key, int value) {
    orvex::currentStore().setInteger(nameOf(section), nameOf(key), value);
    return true;
}

CStdStr<wchar_t> CWinApp::GetProfileString(const wchar_t* section, const wchar_t* key,
                                           const wchar_t* fallback) {
    return CStdStr<wchar_t>(
        orvex::currentStore().text(nameOf(section), nameOf(key), nameOf(fallback)));
}

bool CWinApp::WriteProfileString(const wchar_t* section, const wchar_t* key, const wchar_t* value) {
    orvex::currentStore().setText(nameOf(section), nameOf(key), nameOf(value));
    return true;
}

bool CWinApp::GetProfileBinary(const wchar_t* section, const wchar_t* key, unsigned char** data,
                               unsigned* size) {
    if (data == nullptr || size == nullptr) {
        return false;
    }
    *data = nullptr;
    *size = 0;
    const auto bytes = orvex::currentStore().bytes(nameOf(section), nameOf(key));
    if (bytes.empty()) {
        return false;
    }
    *data = new unsigned char[bytes.size()];
    std::copy(bytes.begin(), bytes.end(), *data);
    *size = static_cast<unsigned>(bytes.size());
    return true;
}

bool CWinApp::WriteProfileBinary(const wchar_t* section, const wchar_t* key,
                                 const unsigned char* data, unsigned size) {
    std::vector<unsigned char> bytes;
    if (data != nullptr) {
        bytes.assign(data, data + size);
    }
    orvex::currentStore().setBytes(nameOf(section), nameOf(key), bytes);
    return true;
}

CWinApp* AfxGetApp() {
    static CWinApp application;
    return &application;
}
