#pragma once

#include <QSize>

class QDialog;

namespace orvex {

// Before a dialog is shown: it becomes no larger than `room`, and where its layout needs more, what
// is in it scrolls. Pixels without the window's frame.
void fitInto(QDialog& dialog, QSize room);

} // namespace orvex
