#pragma once

#include "Appearance.h"
#include "GhostDesk.h"
#include "OverlapPicks.h"
#include "ToolWatch.h"

#include <QObject>
#include <QTimer>

class QMainWindow;

namespace orvex {

class Canvas;
class CommandRunner;
class DeskPrompts;
class Session;
class StatusLine;

// The multiline tools in the window: which one runs, what was picked for it, what a click would do,
// why a pick did nothing, and what lies under the cursor.
class ToolDesk final : public QObject {
    Q_OBJECT

public:
    // All outlive it.
    ToolDesk(QMainWindow& window, Canvas& canvas, CommandRunner& runner, DeskPrompts& prompts,
             StatusLine& status);
    ~ToolDesk() override;

    void setSession(Session& session);

    // "Closed Cross: " while that tool asks; empty otherwise.
    [[nodiscard]] QString promptPrefix() const;
    // Whether the command line shows this command in words that can be played, once it is known
    // what was chosen in its dialog.
    static bool announces(const QString& command);

    // What a click takes, the next each time in the same place.
    KdDbStub* take(PlanPoint place);
    // Answers a pick prompt, where several entities lie together by the one that is meant. False,
    // and nothing was answered, at any other question.
    bool answerPick(PlanPoint place);

signals:
    void complained(const QString& line); // of a pick that did nothing

private:
    void chosen(unsigned dialog, int button);
    void showQuestion();
    void commandEnded();
    void refused(const RefusedPick& refused);
    void showHints();
    [[nodiscard]] QString runningTool() const;

    Canvas& m_canvas;
    CommandRunner& m_runner;
    DeskPrompts& m_prompts;
    StatusLine& m_status;
    Session* m_session = nullptr;
    OverlapPicks m_overlaps;
    GhostDesk m_ghost;
    bool m_isPalette = false; // the command that shows it runs, and nothing was chosen yet
    QString m_refusal;
    QTimer m_words; // runs while the refusal is shown
    QTimer m_flash;
};

} // namespace orvex
