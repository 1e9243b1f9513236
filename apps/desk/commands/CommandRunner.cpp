#include "CommandRunner.h"

#include "DeskPrompts.h"
#include "Session.h"
#include "qtWide.h"
#include "textCodec.h"

#include <QCoreApplication>

#include <chrono>
#include <utility>

namespace orvex {

void CommandRunner::start(const QString& name, const QStringList& answers, Repeat repeat) {
    post([this, name, answers, repeat] { run(name, answers, repeat); });
}

void CommandRunner::repeat() {
    if (!m_last.name.isEmpty()) {
        start(m_last.name, m_last.answers);
    }
}

void CommandRunner::post(std::function<void()> task) {
    m_task = std::move(task);
    if (m_working) {
        m_prompts.cancelAll();
    } else {
        QMetaObject::invokeMethod(this, &CommandRunner::work, Qt::QueuedConnection);
    }
}

void CommandRunner::postCommands(std::function<void(Session&)> task) {
    post([this, task = std::move(task)] {
        if (m_session == nullptr) {
            return;
        }
        waitForPickIndex();
        if (!m_task) {
            task(*m_session);
            emit commandEnded();
        }
    });
}

void CommandRunner::work() {
    if (m_working) {
        return; // whoever works goes on with it
    }
    m_working = true;
    while (m_task) {
        m_prompts.allow();
        std::exchange(m_task, nullptr)();
    }
    m_prompts.allow();
    m_working = false;
}

void CommandRunner::run(const QString& name, const QStringList& answers, Repeat repeat) {
    if (m_session == nullptr) {
        return;
    }
    waitForPickIndex();
    if (m_task) {
        return; // something else was started meanwhile
    }
    m_running = {name, {}};
    emit commandStarted(name);
    m_prompts.answerAhead(answers);
    const auto failure = m_session->run(toWide(name));
    m_prompts.answerAhead({});
    if (!failure && repeat == Repeat::itself) {
        m_last = m_running;
    }
    m_running = {};
    if (failure) {
        m_prompts.reject(widen(messageOf(*failure)));
    }
    emit commandEnded();
}

// A command needs the view, and so the extents of the drawing. In a large one they take a while, in
// which the window lives on.
void CommandRunner::waitForPickIndex() {
    constexpr std::chrono::milliseconds kSlice{8};
    while (!m_task && !m_session->isViewStarted() && !m_session->scene().prepareSome(kSlice)) {
        QCoreApplication::processEvents();
    }
}

} // namespace orvex
