#pragma once

#include <functional>

namespace orvex {

// Notified of each push button that a user presses in a dialog of a module, after the module was:
// the dialog's resource number and the button's. So that a program can say what was chosen.
using ButtonListener = std::function<void(unsigned dialog, int button)>;

// Null for nobody. Gives back the one before.
ButtonListener setButtonListener(ButtonListener listener);

} // namespace orvex
