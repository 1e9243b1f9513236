#include "ChangeMark.h"

#include "CommandRunner.h"
#include "DeskDrawing.h"

#include <QMainWindow>

#include <chrono>

namespace orvex {

namespace {

constexpr std::chrono::milliseconds kPause{150};

} // namespace

ChangeMark::ChangeMark(QMainWindow& window, DeskDrawing& drawing, CommandRunner& runner)
    : QObject(&window), m_window(window), m_drawing(drawing) {
    m_timer.setInterval(kPause);
    connect(&m_timer, &QTimer::timeout, this, &ChangeMark::look);
    connect(&runner, &CommandRunner::commandStarted, &m_timer, qOverload<>(&QTimer::start));
    connect(&runner, &CommandRunner::commandEnded, &m_timer, &QTimer::stop);
}

void ChangeMark::show() {
    m_window.setWindowTitle(m_drawing.name() + tr("[*] \u2014 Orvex"));
    m_window.setWindowModified(m_drawing.isChanged());
    m_window.setWindowFilePath(m_drawing.path());
}

void ChangeMark::look() {
    if (m_drawing.wasEdited()) {
        m_window.setWindowModified(m_drawing.isChanged());
    }
}

} // namespace orvex
