#include "JoinDesk.h"

#include "Canvas.h"
#include "CommandRunner.h"
#include "DeskPrompts.h"
#include "JoinPanel.h"
#include "Session.h"
#include "panelScroll.h"

#include <QDockWidget>
#include <QMainWindow>

#include <cstddef>

namespace orvex {

namespace {

constexpr const char* kCommand = "MLJOIN";

} // namespace

JoinDesk::JoinDesk(QMainWindow& window, Canvas& canvas, CommandRunner& runner, DeskPrompts& prompts)
    : QObject(&window), m_canvas(canvas), m_prompts(prompts), m_panel(new JoinPanel(&window)) {
    auto* const dock = new QDockWidget(tr("Join plan"), &window);
    dock->setObjectName(QStringLiteral("joinDock"));
    dock->setWidget(panelScroll(m_panel));
    window.addDockWidget(Qt::RightDockWidgetArea, dock);
    dock->hide();
    m_toggle = dock->toggleViewAction();

    connect(m_panel, &JoinPanel::started, &runner,
            [&runner] { runner.start(QLatin1String(kCommand)); });
    connect(m_panel, &JoinPanel::answered, &m_prompts, &DeskPrompts::answerLines);
    connect(m_panel, &JoinPanel::cancelled, &m_prompts, &DeskPrompts::cancel);
    connect(m_panel, &JoinPanel::placeChosen, this, &JoinDesk::lookAt);
    connect(&m_prompts, &DeskPrompts::asked, this, [this, dock] {
        if (m_isJoining) {
            dock->show();
            showQuestion();
        }
    });
    connect(&runner, &CommandRunner::commandStarted, this, &JoinDesk::commandStarted);
    connect(&runner, &CommandRunner::commandEnded, this, &JoinDesk::commandEnded);
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
    m_isPreview = !report.isPlayed;
    m_panel->showReport(report);
    m_canvas.setMarks(joinMarks(report));
}

// Marks of places that were left stay until something else is done.
void JoinDesk::commandStarted(const QString& name) {
    m_isJoining = name.compare(QLatin1String(kCommand), Qt::CaseInsensitive) == 0;
    m_canvas.setMarks({});
}

void JoinDesk::commandEnded() {
    if (m_isPreview) { // it was cancelled
        m_isPreview = false;
        m_canvas.setMarks({});
        m_panel->clearReport();
    }
    m_isJoining = false;
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
