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

// Plays lines that were pasted, or typed while they couldn't be taken, as if they were typed, each
// as soon as something is asked. The first complaint ends it.
class PastedLines final : public QObject {
    Q_OBJECT

public:
    using Enter = std::function<void(const QString& line)>;

    // Both outlive it, as what `enter` needs does.
    PastedLines(QObject* parent, CommandRunner& runner, DeskPrompts& prompts, Enter enter);

    // After those that are left from before.
    void play(const QStringList& lines);
    [[nodiscard]] bool isPlaying() const { return !m_lines.isEmpty(); }
    // Forgets the lines that are left.
    void stop();
    // The same, and says how many there were.
    void breakOff();

signals:
    void complained(const QString& line);

private:
    void enterNext();

    CommandRunner& m_runner;
    DeskPrompts& m_prompts;
    Enter m_enter;
    QStringList m_lines;
    QTimer m_timer;
};

} // namespace orvex
