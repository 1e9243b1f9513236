#include "UndoDesk.h"

#include "Canvas.h"
#include "ChangeLog.h"
#include "CommandRunner.h"
#include "DatabaseCore.h"
#include "DeskPrompts.h"
#include "DeskSettings.h"
#include "KdDbDatabase.h"
#include "Session.h"
#include "UndoLog.h"
#include "qtWide.h"

#include <QAction>
#include <QInputDialog>
#include <QMainWindow>

#include <algorithm>
#include <cstddef>

namespace orvex {

namespace {

using Stage = ToolWatch::Stage;

constexpr const wchar_t* kUndo = L"Undo";
constexpr int kMebibyte = 20;                                             // a power of two
constexpr int kDefaultMemory = UndoLog::kDefaultMemoryLimit >> kMebibyte; // MiB
constexpr int kLeastMemory = 1;
constexpr int kMostMemory = 1 << 20;

bool offers(const PromptRequest& request, const wchar_t* keyword) {
    return std::find(request.keywords.begin(), request.keywords.end(), keyword) !=
           request.keywords.end();
}

ChangeLog& changesOf(Session& session) {
    return session.database().core().changes();
}

QString counted(std::size_t count, const QString& one, const QString& many) {
    return count == 1 ? one : many.arg(count);
}

// "Undo MOVE, 12 multilines", with the access key.
QString nameOf(const QString& verb, const StepName* step) {
    if (step == nullptr || step->command.empty()) {
        return verb;
    }
    QString name = verb + ' ' + toQt(step->command).replace('&', QLatin1String("&&"));
    if (step->multilines > 0) {
        name += QLatin1String(", ") + counted(step->multilines, UndoDesk::tr("1 multiline"),
                                              UndoDesk::tr("%1 multilines"));
    } else if (step->entities > 0) {
        name += QLatin1String(", ") +
                counted(step->entities, UndoDesk::tr("1 entity"), UndoDesk::tr("%1 entities"));
    }
    return name;
}

} // namespace

UndoDesk::UndoDesk(QMainWindow& window, Canvas& canvas, CommandRunner& runner, DeskPrompts& prompts,
                   DeskSettings& settings)
    : QObject(&window), m_window(window), m_canvas(canvas), m_runner(runner), m_prompts(prompts),
      m_settings(settings) {
    connect(&m_runner, &CommandRunner::commandEnded, this, &UndoDesk::commandEnded);
}

void UndoDesk::setSession(Session& session) {
    m_session = &session;
    m_areDroppedTold = false;
    applyMemory();
    showNames();
}

void UndoDesk::undo() {
    if (m_canvas.dropWindow() ||
        std::any_of(m_holds.begin(), m_holds.end(), [](const auto& letGo) { return letGo(); })) {
        return;
    }
    if (const PromptRequest* const request = m_prompts.request()) {
        undoAtQuestion(*request);
    } else if (!m_runner.isBusy()) {
        m_runner.start(QStringLiteral("U"), {}, CommandRunner::Repeat::before);
    }
}

void UndoDesk::redo() {
    if (const PromptRequest* const request = m_prompts.request()) {
        if (redoesCycles(*request)) {
            m_prompts.answerText(QStringLiteral("'REDO"));
        }
    } else if (!m_runner.isBusy()) {
        m_runner.start(QStringLiteral("REDO"), {}, CommandRunner::Repeat::before);
    }
}

bool UndoDesk::redoesCycles(const PromptRequest& request) const {
    return !request.isWithin && m_session->toolWatch().stage() == Stage::first;
}

bool UndoDesk::takeLine(const QString& line) {
    const QString word = line.trimmed().toUpper();
    const bool isUndo = word == QLatin1String("U");
    const PromptRequest* const request = m_prompts.request();
    if (!isUndo &&
        (word != QLatin1String("REDO") || request == nullptr || !redoesCycles(*request))) {
        return false;
    }
    if (request != nullptr && (request->kind == PromptKind::text ||
                               matchKeyword(request->keywords, toWide(word)).has_value())) {
        return false; // an answer like any other
    }
    isUndo ? undo() : redo();
    return true;
}

void UndoDesk::undoAtQuestion(const PromptRequest& request) {
    if (request.isWithin) {
        m_prompts.cancel(); // the transparent command only
    } else if (offers(request, kUndo)) {
        m_prompts.answerText(toQt(std::wstring(kUndo)));
    } else if (m_session->toolWatch().stage() != Stage::none) {
        m_prompts.answerText(QStringLiteral("'U"));
    } else {
        m_prompts.cancelAll();
    }
}

void UndoDesk::commandEnded() {
    showNames();
    const std::size_t dropped = changesOf(*m_session).steps().droppedSteps();
    if (dropped > 0 && !m_areDroppedTold) {
        m_areDroppedTold = true;
        emit printed(tr("The memory for undo is used up; the oldest steps can't be taken back any "
                        "more (Edit, Undo Memory)."));
    }
}

void UndoDesk::showNames() {
    const ChangeLog& changes = changesOf(*m_session);
    for (const auto& [action, verb, step] : {std::tuple("undo", tr("&Undo"), changes.nextUndo()),
                                             std::tuple("redo", tr("&Redo"), changes.nextRedo())}) {
        if (auto* const entry = m_window.findChild<QAction*>(QLatin1String(action))) {
            entry->setText(nameOf(verb, step));
        }
    }
}

void UndoDesk::applyMemory() {
    const int mebibytes = std::clamp(m_settings.integer(DeskSettings::kUndoMemory, kDefaultMemory),
                                     kLeastMemory, kMostMemory);
    changesOf(*m_session).steps().setMemoryLimit(static_cast<std::size_t>(mebibytes) << kMebibyte);
}

void UndoDesk::askMemory() {
    bool isChosen = false;
    const int now = m_settings.integer(DeskSettings::kUndoMemory, kDefaultMemory);
    const int mebibytes = QInputDialog::getInt(
        &m_window, tr("Undo memory"), tr("Memory that steps may hold until the oldest go, in MiB:"),
        now, kLeastMemory, kMostMemory, 1, &isChosen);
    if (isChosen) {
        m_settings.setInteger(DeskSettings::kUndoMemory, mebibytes);
        applyMemory();
    }
}

} // namespace orvex
