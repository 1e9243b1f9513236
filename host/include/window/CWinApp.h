#pragma once

#include "CStdStr.h"

// The application, with its profile: settings by section and key. Null names are empty. A missing
// key or a value of another kind reads as the default.
class CWinApp {
public:
    CWinApp() = default;
    CWinApp(const CWinApp&) = delete;
    CWinApp& operator=(const CWinApp&) = delete;

    virtual int GetProfileInt(const wchar_t* section, const wchar_t* key, int fallback);
    virtual bool WriteProfileInt(const wchar_t* section, const wchar_t* key, int value);
    virtual CStdStr<wchar_t> GetProfileString(const wchar_t* section, const wchar_t* key,
                                              const wchar_t* fallback = nullptr);
    virtual bool WriteProfileString(const wchar_t* section, const wchar_t* key,
                                    const wchar_t* value);
    // On success *data is new memory that the caller releases with delete[]; on failure, and where
    // nothing is stored, *data is null and *size 0.
    virtual bool GetProfileBinary(const wchar_t* section, const wchar_t* key, unsigned char** data,
                                  unsigned* size);
    virtual bool WriteProfileBinary(const wchar_t* section, const wchar_t* key,
                                    const unsigned char* data, unsigned size);

    virtual ~CWinApp() = default;
};

// Never null.
CWinApp* AfxGetApp();
