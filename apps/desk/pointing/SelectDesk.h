#pragma once

#include "PlanView.h"
#include "deskActions.h"

#include <QObject>
#include <QStringList>

#include <functional>
#include <utility>
#include <vector>

class QLabel;
class QMainWindow;
class QMenu;
class QPoint;
struct KdDbStub;

namespace orvex {

class Canvas;
class CommandRunner;
class DeskPrompts;
class Session;

// Selecting by hand: answers a command's question for a selection by the lines that a script would
// have, and while no command runs keeps what is selected for the next one, which takes it without
// a question.
class SelectDesk final : public QObject {
    Q_OBJECT

public:
    // All outlive it.
    SelectDesk(QMainWindow& window, Canvas& canvas, CommandRunner& runner, DeskPrompts& prompts);

    void setSession(Session& session);
    // What a click takes.
    void setPicker(std::function<KdDbStub*(PlanPoint place)> picker) {
        m_picker = std::move(picker);
    }
    // Fills them with what the drawing has whenever they are shown.
    void fillMenus(QMenu& styles, QMenu& layers);
    // Selects for the question that stands, or outside of commands.
    void perform(SelectAct act);

    // Shows what is selected, or what the running command works on.
    void show();
    // False when nothing was selected.
    bool clear();
    // What can be done with what is selected; false when nothing is.
    bool showContextMenu(const QPoint& at);

    // What is selected while no command runs.
    [[nodiscard]] const std::vector<KdDbStub*>& chosen() const;
    void choose(std::vector<KdDbStub*> entities, const QStringList& lines = {});

    // Runs a command that takes what is selected, which stays selected.
    void startKeeping(const QString& command, const QStringList& answers);

signals:
    // What is selected while no command runs, or how it looks.
    void chosenChanged();

private:
    void pick(double x, double y, bool takesAway);
    void takeWindow(PlanPoint first, PlanPoint second, bool takesAway);
    void take(const std::vector<KdDbStub*>& entities, bool takesAway, const QStringList& lines);
    void takeNamed(const QString& keyword, const QString& name);
    void commandEnded();

    QMainWindow& m_window;
    Canvas& m_canvas;
    CommandRunner& m_runner;
    DeskPrompts& m_prompts;
    QLabel* m_count;
    std::function<KdDbStub*(PlanPoint)> m_picker;
    Session* m_session = nullptr;
    std::vector<KdDbStub*> m_kept; // for after the command
};

} // namespace orvex
