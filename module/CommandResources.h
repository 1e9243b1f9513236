#pragma once

#include "HINSTANCE.h"

// The resource library for the time of one command: an opening of its own, and the current one.
// When the library can't be opened it is null and nothing is changed.
class CommandResources {
public:
    CommandResources();
    ~CommandResources(); // the handle before is current again, the opening is released
    CommandResources(const CommandResources&) = delete;
    CommandResources& operator=(const CommandResources&) = delete;

    [[nodiscard]] HINSTANCE handle() const { return m_library; }

private:
    HINSTANCE m_library;
    HINSTANCE m_before = nullptr;
};
