#pragma once

class QMessageBox;

namespace orvex {

// Captions with a key for Alt, which not every platform's own have.
void nameButtons(QMessageBox& box);

} // namespace orvex
