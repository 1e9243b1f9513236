#pragma once

class QWidget;

namespace orvex {

// A panel of a dock that scrolls where the window has too little height for it. Takes it over.
QWidget* panelScroll(QWidget* panel);

} // namespace orvex
