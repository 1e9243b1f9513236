#pragma once

#include <QObject>
#include <QStringList>

#include <vector>

class QAction;
class QMainWindow;
class QPoint;
struct KdDbStub;

namespace orvex {

class Canvas;
class CommandRunner;
class DeskSettings;
class SelectDesk;
class Session;

// Grips on the vertices of selected multilines. Taking hold of one starts MLVERTEX, with the
// answers that name the vertex; its menu adds and removes vertices the same way.
// A drag of a selected entity is a MOVE from the grip nearest to where it began.
class GripDesk final : public QObject {
    Q_OBJECT

public:
    // All outlive it.
    GripDesk(QMainWindow& window, Canvas& canvas, CommandRunner& runner, SelectDesk& select,
             DeskSettings& settings);

    void setSession(Session& session);

private:
    struct Vertex {
        KdDbStub* mline = nullptr;
        unsigned index = 0;
    };
    using Grip = std::vector<Vertex>; // all in one place of the plan

    void makeGrips();
    void start(int grip, const QString& act);
    void moveSelection(double x, double y);
    void showMenu(int grip, const QPoint& at);

    QMainWindow& m_window;
    Canvas& m_canvas;
    CommandRunner& m_runner;
    SelectDesk& m_select;
    DeskSettings& m_settings;
    QAction* m_together; // vertices in one place move as one
    Session* m_session = nullptr;
    std::vector<Grip> m_grips; // in the order of the canvas's
};

} // namespace orvex
