#pragma once

#include <QStringList>

namespace orvex {

// The names that can be typed at the command prompt, the host's own and those of loaded modules,
// sorted.
QStringList commandNames();

} // namespace orvex
