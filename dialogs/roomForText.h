#pragma once

class QComboBox;
class QString;
class QWidget;

namespace mledit {

// Layouts are drawn for a usual font. Where a larger one needs more, the least and greatest sizes
// of the widgets, and of the dialog, give way; where it doesn't, they stay as drawn.
void makeRoomForText(QWidget& dialog);

// So wide at least that a choice shows whole, with its picture; pixels.
void makeRoomForChoice(QComboBox& combo, const QString& text, int pictureWidth);

} // namespace mledit
