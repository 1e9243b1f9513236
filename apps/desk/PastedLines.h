#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <functional>

namespace orvex {

class CommandRunner;
class DeskPrompts;

// Lines as the field of the command line shows them: one after the other, each end as a sign.
QString onOneLine(const QString& pasted);
// What `onOneLine` made one of; a single line is a list of it. Comments of a script are left out.
QStringList linesIn(const QString& shown);

// Plays several lines that were pasted as if they were typed, each as soon as something is asked.
// The first complaint ends it.
class PastedLines final : public QObject {
    Q_OBJECT

public:
    using Enter = std::function<void(const QString& line)>;

    // Both outlive it, as what `enter` needs does.
    PastedLines(QObject* parent, CommandRunner& runner, DeskPrompts& prompts, Enter enter);

    void play(const QStringList& lines);
    // Forgets the lines that are left.
    void stop();

signals:
    void complained(const QString& line);

private:
    void enterNext();
    void breakOff();

    CommandRunner& m_runner;
    DeskPrompts& m_prompts;
    Enter m_enter;
    QStringList m_lines;
    QTimer m_timer;
};

} // namespace orvex
