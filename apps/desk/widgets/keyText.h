#pragma once

#include <QKeyEvent>

namespace orvex {

// Whether a key types something that is seen. AltGr, which many keyboards need for "@", comes as
// Ctrl with Alt, as a switch of the group, or not at all; Ctrl or Alt alone are for menus and
// shortcuts.
inline bool typesText(const QKeyEvent& key) {
    const QString text = key.text();
    const Qt::KeyboardModifiers held = key.modifiers() & (Qt::ControlModifier | Qt::AltModifier);
    return !text.isEmpty() && text.at(0).isPrint() &&
           (held == Qt::NoModifier || held == (Qt::ControlModifier | Qt::AltModifier) ||
            (key.modifiers() & Qt::GroupSwitchModifier) != 0);
}

// The keypad's decimal key of some keyboards types a comma. Numbers have a point here; a comma
// parts coordinates.
inline bool isKeypadComma(const QKeyEvent& key) {
    return (key.modifiers() & Qt::KeypadModifier) != 0 && key.text() == QLatin1String(",");
}

} // namespace orvex
