#pragma once

#include "HINSTANCE.h"

#include <string>

namespace orvex {

// The path of a loaded module, UTF-8; empty for a handle that nobody knows.
std::string modulePath(HINSTANCE module);

// A fresh handle for a module file, valid until it is given up. Handles are never given twice.
HINSTANCE addModuleHandle(const std::string& path);
void dropModuleHandle(HINSTANCE module);

} // namespace orvex
