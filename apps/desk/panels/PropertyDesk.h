#pragma once

#include <QObject>

class QAction;
class QDockWidget;
class QMainWindow;

namespace orvex {

class PropertyPanel;
class SelectDesk;
class Session;

// The panel of properties beside the canvas: shows what the selected multilines have in common, and
// plays MLCHANGE for what is edited there. The selection stays.
class PropertyDesk final : public QObject {
    Q_OBJECT

public:
    // Both outlive it.
    PropertyDesk(QMainWindow& window, SelectDesk& select);

    void setSession(Session& session);
    void dropSession() { m_session = nullptr; } // before it goes
    [[nodiscard]] QAction* toggleAction() const;

signals:
    // The focus isn't needed there any more.
    void left();

private:
    void show();

    SelectDesk& m_select;
    QDockWidget* m_dock;
    PropertyPanel* m_panel;
    Session* m_session = nullptr;
};

} // namespace orvex
