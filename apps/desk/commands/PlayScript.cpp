#include "PlayScript.h"

#include "AtomicFile.h"
#include "CommandRunner.h"
#include "DeskSettings.h"
#include "ScriptSource.h"
#include "Session.h"
#include "hostText.h"
#include "printableText.h"
#include "qtWide.h"
#include "readFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

namespace orvex {

namespace {

// The session asks another source, and shows no dialog, while one lives.
class SourceScope {
public:
    SourceScope(Session& session, PromptSource& source)
        : m_session(session), m_before(session.source()) {
        m_session.setSource(&source);
        m_session.setHasWindow(false);
    }
    ~SourceScope() {
        m_session.setSource(m_before);
        m_session.setHasWindow(true);
    }
    SourceScope(const SourceScope&) = delete;
    SourceScope& operator=(const SourceScope&) = delete;

private:
    Session& m_session;
    PromptSource* m_before;
};

QString located(Failure failure, const QString& path, std::size_t line) {
    failure.file = path.toStdString();
    failure.line = line;
    return QString::fromStdString(messageOf(failure));
}

} // namespace

void PlayScript::askAndPlay() {
    if (m_runner.isBusy()) {
        emit complained(tr("A script can be played at the command prompt only."));
        return;
    }
    const QString path = QFileDialog::getOpenFileName(&m_window, tr("Play a script"),
                                                      m_settings.text(DeskSettings::kScriptFolder),
                                                      tr("Scripts (*.scr *.SCR);;All files (*)"));
    if (!path.isEmpty()) {
        m_settings.setText(DeskSettings::kScriptFolder, QFileInfo(path).absolutePath());
        play(path);
    }
}

void PlayScript::askAndSave(Session& session, const QString& drawing) {
    const QString name = QFileInfo(drawing).completeBaseName() + QLatin1String(".scr");
    const QString path = QFileDialog::getSaveFileName(
        &m_window, tr("Save the history as a script"),
        QDir(m_settings.text(DeskSettings::kScriptFolder)).filePath(name),
        tr("Scripts (*.scr *.SCR);;All files (*)"));
    if (!path.isEmpty()) {
        m_settings.setText(DeskSettings::kScriptFolder, QFileInfo(path).absolutePath());
        save(session, drawing, path);
    }
}

void PlayScript::save(Session& session, const QString& drawing, const QString& path) {
    const ScriptRecord& record = session.record();
    const std::string text =
        "; what was done to " + printableText(drawing.toStdString()) + '\n' + record.text();
    if (const auto failure = saveFile(path.toStdString(), text)) {
        emit complained(QString::fromStdString(messageOf(*failure)));
        return;
    }
    emit printed(tr("Written into %1").arg(path));
    if (!record.isWhole()) {
        emit complained(tr("What was changed in dialogs of styles is in no script: played, it "
                           "won't give the same drawing."));
    }
}

void PlayScript::play(const QString& path) {
    m_runner.postCommands([this, path](Session& session) { playFile(session, path); });
}

void PlayScript::playFile(Session& session, const QString& path) {
    const auto text = readRegularFile(path.toStdString());
    if (!text) {
        emit complained(QString::fromStdString(messageOf(text.failure())));
        return;
    }
    if (const auto line = ScriptSource::firstLineThatIsNoUtf8(*text)) {
        emit complained(
            located({FailureCause::unreadableInput, {}, 0, hostText("the script isn't UTF-8")},
                    path, *line));
        return;
    }
    playText(session, *text, path);
}

void PlayScript::playText(Session& session, const std::string& text, const QString& path) {
    m_isPlaying = true;
    m_isStopped = false;
    emit printed(tr("Playing %1").arg(path));
    // A script selects by its own lines.
    session.selectionMemory().chosen.clear();
    session.selectionMemory().chosenLines.clear();
    ScriptSource script(text, [this](const std::wstring& line) { emit printed(toQt(line)); });
    {
        const SourceScope scope(session, script);
        playCommands(session, script, path);
    }
    m_isPlaying = false;
}

void PlayScript::playCommands(Session& session, ScriptSource& script, const QString& path) {
    while (!script.atEnd()) {
        QCoreApplication::processEvents(); // Escape may come, or another command
        if (m_isStopped || m_runner.isAwaited()) {
            emit complained(tr("The script was stopped after line %1.").arg(script.line()));
            return;
        }
        const std::wstring command = session.askCommand();
        const std::size_t line = script.line();
        if (command.empty()) {
            continue;
        }
        if (const auto failure = session.run(command)) {
            emit complained(located(*failure, path, line));
            return;
        }
    }
    if (const auto& failure = script.failure()) {
        emit complained(located(*failure, path, failure->line));
    }
}

} // namespace orvex
