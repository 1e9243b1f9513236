#include "PastedLines.h"

#include "CommandRunner.h"
#include "DeskPrompts.h"

#include <chrono>

namespace orvex {

namespace {

constexpr std::chrono::milliseconds kPause{1};
const QChar kLineEnd(0x21B5); // an arrow down and to the left

} // namespace

QString onOneLine(const QString& pasted) {
    QString text = pasted;
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    text.replace('\r', '\n');
    if (text.count('\n') == 1 && text.endsWith('\n')) {
        text.chop(1); // a whole line, chosen with its end
    }
    return text.replace('\n', kLineEnd);
}

QStringList linesIn(const QString& shown) {
    QStringList lines = shown.split(kLineEnd);
    if (lines.size() > 1 && lines.back().trimmed().isEmpty()) {
        lines.removeLast(); // nothing follows the last end
    }
    QStringList played;
    for (const QString& line : lines) {
        if (lines.size() == 1 || !line.trimmed().startsWith(';')) {
            played.append(line.trimmed());
        }
    }
    return played;
}

PastedLines::PastedLines(QObject* parent, CommandRunner& runner, DeskPrompts& prompts, Enter enter)
    : QObject(parent), m_runner(runner), m_prompts(prompts), m_enter(std::move(enter)) {
    m_timer.setInterval(kPause);
    connect(&m_timer, &QTimer::timeout, this, &PastedLines::enterNext);
    connect(&prompts, &DeskPrompts::complained, this, &PastedLines::breakOff);
}

void PastedLines::play(const QStringList& lines) {
    m_lines += lines;
    if (!m_lines.isEmpty()) {
        m_timer.start();
    }
}

void PastedLines::stop() {
    m_lines.clear();
    m_timer.stop();
}

// One a turn of the event loop: a question that was answered is there until its loop has ended.
void PastedLines::enterNext() {
    const bool isIdle = !m_runner.isBusy() && !m_runner.isAwaited();
    if (!isIdle && m_prompts.request() == nullptr) {
        return; // a command works, or a dialog is open
    }
    const QString line = m_lines.takeFirst();
    if (m_lines.isEmpty()) {
        m_timer.stop();
    }
    m_enter(line);
}

void PastedLines::breakOff() {
    const int left = m_lines.size();
    stop();
    if (left > 0) {
        const QString text = tr("The lines that follow are left out: %1.").arg(left);
        // After the reason, whoever listens first.
        QMetaObject::invokeMethod(
            this, [this, text] { emit complained(text); }, Qt::QueuedConnection);
    }
}

} // namespace orvex
