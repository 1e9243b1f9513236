#include "JoinDesk.h"

#include "Canvas.h"
#include "CommandRunner.h"
#include "DeskPrompts.h"
#include "JoinPanel.h"
#include "Session.h"
#include "panelScroll.h"

#include <QAction>
#include <QDockWidget>
#include <QMainWindow>

#include <cstddef>
#include <utility>

namespace orvex {

namespace {

constexpr const char* kCommand = "MLJOIN";

} // namespace

JoinDesk::JoinDesk(QMainWindow& window, Canvas& canvas, CommandRunner& runner, DeskPrompts& prompts)
    : QObject(&window), m_canvas(canvas), m_prompts(prompts), m_panel(new JoinPanel(&window)),
      m_dock(new QDockWidget(tr("Join plan"), &window)) {
    m_dock->setObjectName(QStringLiteral("joinDock"));
    m_dock->setWidget(panelScroll(m_panel));
    window.addDockWidget(Qt::RightDockWidgetArea, m_dock);
    m_dock->hide();

    connect(m_panel, &JoinPanel::started, &runner,
            [&runner] { runner.start(QLatin1String(kCommand)); });
    connect(m_panel, &JoinPanel::answered, &m_prompts, &DeskPrompts::answerLines);
    connect(m_panel, &JoinPanel::cancelled, &m_prompts, &DeskPrompts::cancel);
    connect(m_panel, &JoinPanel::placeChosen, this, &JoinDesk::lookAt);
    connect(&m_prompts, &DeskPrompts::asked, this, [this] {
        if (m_isJoining) {
            open();
            showQuestion();
        }
    });
    connect(&runner, &CommandRunner::commandStarted, this, &JoinDesk::commandStarted);
    connect(&runner, &CommandRunner::commandEnded, this, &JoinDesk::commandEnded);
}

QAction* JoinDesk::toggleAction() const {
    return m_dock->toggleViewAction();
}

void JoinDesk::open() {
    if (m_dock->isHidden()) {
        m_isOpener = true;
        m_dock->show();
    }
}

// What the command opened and has no use for.
void JoinDesk::close() {
    const bool hadFocus = m_dock->isAncestorOf(m_dock->window()->focusWidget());
    m_dock->hide();
    if (hadFocus) {
        emit left();
    }
}

void JoinDesk::setSession(Session& session) {
    m_session = &session;
    m_session->setJoinWatcher([this](const JoinReport& report) { take(report); });
    m_panel->clearReport();
}

void JoinDesk::showQuestion() {
    if (const auto& progress = m_session->selectionMemory().progress) {
        m_panel->showSelection(*progress);
    } else if (m_isPreview) {
        m_panel->showOptions();
    }
}

void JoinDesk::take(const JoinReport& report) {
    m_isPlayed = report.isPlayed;
    m_isPreview = !m_isPlayed;
    m_panel->showReport(report);
    m_canvas.setMarks(joinMarks(report));
}

// Marks of places that were left stay until something else is done.
void JoinDesk::commandStarted(const QString& name) {
    m_isJoining = name.compare(QLatin1String(kCommand), Qt::CaseInsensitive) == 0;
    m_canvas.setMarks({});
    m_isOpener = false;
    m_isPlayed = false;
}

void JoinDesk::commandEnded() {
    if (m_isPreview) { // it was cancelled
        m_isPreview = false;
        m_canvas.setMarks({});
        m_panel->clearReport();
    }
    m_isJoining = false;
    if (std::exchange(m_isOpener, false) && !m_isPlayed) {
        close(); // before a button that has the focus is disabled
    }
    m_panel->showIdle();
}

void JoinDesk::lookAt(int left) {
    const LeftPlace& place = m_panel->left()[static_cast<std::size_t>(left)];
    m_canvas.lookAt(place.at, place.size);
    if (m_canvas.marks().empty()) { // a command was run since
        m_canvas.setMarks({{place.at, MarkKind::left}});
    }
}

} // namespace orvex
