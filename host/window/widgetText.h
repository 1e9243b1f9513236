#pragma once

#include "CStdStr.h"

class QWidget;

namespace orvex {

// What a widget shows as its text: a label's, a field's, a button's, the chosen one of a combo box,
// the title of a group or window. Empty for null and for widgets that have none.
CStdStr<wchar_t> widgetText(const QWidget* widget);

// Silently, as plain text. Null text is empty; null widgets, and combo boxes that can't be typed
// into, stay as they are.
void setWidgetText(QWidget* widget, const wchar_t* text);

// Of buttons; silently.
void setChecked(QWidget* widget, bool on);
bool isChecked(const QWidget* widget);

} // namespace orvex
