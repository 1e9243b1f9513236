#pragma once

#include <QIcon>
#include <QPalette>

namespace orvex {

// The picture of an action by the action's name, in the palette's text colour; null where it has
// none.
QIcon deskIcon(const QString& name, const QPalette& palette);

} // namespace orvex
