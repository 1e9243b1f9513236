#pragma once

#include <QObject>

class QMenu;

namespace orvex {

class Canvas;
class DeskSettings;

// How the canvas looks, as the user last chose: dark or light.
class LookDesk final : public QObject {
    Q_OBJECT

public:
    // Adds its entry to the menu. All outlive it.
    LookDesk(QMenu& menu, Canvas& canvas, DeskSettings& settings);

private:
    void setLight(bool isLight);

    Canvas& m_canvas;
    DeskSettings& m_settings;
};

} // namespace orvex
