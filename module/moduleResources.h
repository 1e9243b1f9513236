#pragma once

#include "CStdStr.h"
#include "HINSTANCE.h"

// A text of the resource library opened at load; before that, of the current one. A missing text
// is empty.
CStdStr<wchar_t> LoadLocalCmdStr(unsigned int number);

// Opens the library that is named after the file of `module`; null without one or for an unknown
// module. The commands name their library outright.
HINSTANCE _loadResLib(HINSTANCE module);

namespace mledit {

constexpr const wchar_t* kResourceLibrary = L"OmxMLStyleRes.dll";

// The resource library's name made of a module's path: what stands between the last "\" and the
// last ".", followed by "Res.dll". A path of four characters or fewer is the name as it is.
CStdStr<wchar_t> resourceLibraryName(const CStdStr<wchar_t>& modulePath);

// The resource library for the time of one command: opened once more, and the current one. When it
// can't be opened the handle is null and nothing is changed.
class CommandResources {
public:
    CommandResources();
    ~CommandResources(); // makes the previous handle current again and releases the library
    CommandResources(const CommandResources&) = delete;
    CommandResources& operator=(const CommandResources&) = delete;

    [[nodiscard]] HINSTANCE handle() const { return m_library; }

private:
    HINSTANCE m_library;
    HINSTANCE m_before = nullptr;
};

} // namespace mledit
