#pragma once

#include <functional>

// One beep; silent while an exchange that has failed is on its way.
bool MessageBeep(unsigned kind);

namespace orvex {

// Who makes the sound, and returns the one before; empty: Qt.
std::function<void()> setBeeper(std::function<void()> beeper);

} // namespace orvex
