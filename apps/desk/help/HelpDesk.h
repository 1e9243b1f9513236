#pragma once

#include <QObject>

class QMainWindow;

namespace orvex {

class CommandRunner;
class HelpWindow;

// F1: the help at the tool or command that runs. A dialog has a help window of its own, since it
// shuts all others out; the two close together.
class HelpDesk final : public QObject {
    Q_OBJECT

public:
    // Both outlive it.
    HelpDesk(QMainWindow& window, const CommandRunner& runner);

    void show();
    void about(); // this program

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QMainWindow& m_window;
    const CommandRunner& m_runner;
    HelpWindow* m_help;
};

} // namespace orvex
