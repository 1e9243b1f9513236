#pragma once

#include "HICON.h"

class QIcon;

namespace orvex {

// The icon behind a handle; null for null and for what isn't a handle.
const QIcon* iconOf(HICON icon);

} // namespace orvex
