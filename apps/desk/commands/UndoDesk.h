#pragma once

#include <QObject>
#include <QString>

#include <functional>
#include <vector>

class QMainWindow;

namespace orvex {

class Canvas;
class CommandRunner;
class DeskPrompts;
class DeskSettings;
class Session;
struct PromptRequest;

// What undo and redo mean in each state of the window, by key, button or typed as U or REDO:
//
// | state                              | undo                                                    |
// |------------------------------------|---------------------------------------------------------|
// | a window is being drawn            | it ends                                                 |
// | something is held, such as a grip  | it is let go                                            |
// | a question that offers Undo        | that is the answer                                      |
// | the first pick of an editing tool  | the last cycle is taken back, the tool goes on; where   |
// |                                    | none is left, the command is cancelled                  |
// | its second pick                    | the first one is dropped, the tool goes on              |
// | any other question                 | the command is cancelled                                |
// | no command runs                    | the last command is taken back                          |
//
// Redo brings back the last command, or during a tool its last cycle, until something new is done.
// What was finished before a command began is never touched while that runs.
//
// All of it is answered by lines that a script has, too: 'U and 'REDO in a tool.
class UndoDesk final : public QObject {
    Q_OBJECT

public:
    // All outlive it.
    UndoDesk(QMainWindow& window, Canvas& canvas, CommandRunner& runner, DeskPrompts& prompts,
             DeskSettings& settings);

    void setSession(Session& session);
    // Asked before anything of a command is taken back: lets go what is held; false for nothing.
    void addHold(std::function<bool()> letGo) { m_holds.push_back(std::move(letGo)); }

    void undo();
    void redo();
    // A line that was typed. False when it isn't for undo.
    bool takeLine(const QString& line);
    // Asks for the memory that steps may hold.
    void askMemory();

signals:
    void printed(const QString& line);

private:
    void undoAtQuestion(const PromptRequest& request);
    [[nodiscard]] bool redoesCycles(const PromptRequest& request) const;
    void commandEnded();
    void showNames();
    void applyMemory();

    QMainWindow& m_window;
    Canvas& m_canvas;
    CommandRunner& m_runner;
    DeskPrompts& m_prompts;
    DeskSettings& m_settings;
    Session* m_session = nullptr;
    std::vector<std::function<bool()>> m_holds;
    bool m_areDroppedTold = false;
};

} // namespace orvex
