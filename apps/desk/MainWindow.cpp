#include "MainWindow.h"

#include "Canvas.h"
#include "CommandDock.h"
#include "CommandLine.h"
#include "FileDrop.h"
#include "KdDbEntity.h"
#include "KdDbStub.h"
#include "KeypadPoint.h"
#include "LanguageDesk.h"
#include "LookDesk.h"
#include "PastedLines.h"
#include "PlayScript.h"
#include "PointTyping.h"
#include "aimOf.h"
#include "clickedPoint.h"
#include "commandNames.h"
#include "partlyDrawnText.h"
#include "questionLine.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QScreen>
#include <QStatusBar>
#include <QToolBar>

#include <filesystem>

namespace orvex {

namespace {

constexpr QSize kFirstSize(1200, 800);
constexpr QSize kLeastOfPlan(200, 100); // pixels; panels and command line give way to it
constexpr double kMostOfScreen = 0.9;   // the rest is left to the window's frame

} // namespace

MainWindow::MainWindow(ModuleLoader& modules, const std::vector<std::string>& moduleFiles)
    : m_modules(modules), m_prompts(*this), m_runner(m_prompts),
      m_drawing(modules, m_prompts, moduleFiles),
      m_files(*this, m_drawing, m_settings,
              [this](std::unique_ptr<DrawingFile> file, const QString& path) {
                  takeDrawing(std::move(file), path);
              }),
      m_leave(m_files, m_runner, m_prompts), m_canvas(new Canvas(this)),
      m_commandLine(new CommandLine(this)),
      m_menus(*this, [this](const DeskAct& act) { perform(act); }),
      m_join(new JoinDesk(*this, *m_canvas, m_runner, m_prompts)),
      m_autosave(
          new AutosaveDesk(*this, m_drawing, m_files, m_leave, m_runner, m_prompts, m_settings)),
      m_undo(new UndoDesk(*this, *m_canvas, m_runner, m_prompts, m_settings)),
      m_play(new PlayScript(*this, m_runner, m_settings)),
      m_pasted(new PastedLines(this, m_runner, m_prompts,
                               [this](const QString& line) { enterLine(line); })),
      m_drawBar(new DrawBar(*this, m_runner, m_prompts)),
      m_select(new SelectDesk(*this, *m_canvas, m_runner, m_prompts)),
      m_grips(new GripDesk(*this, *m_canvas, m_runner, *m_select, m_settings)),
      m_properties(new PropertyDesk(*this, *m_select)), m_status(*statusBar()),
      m_tool(new ToolDesk(*this, *m_canvas, m_runner, m_prompts, m_status)),
      m_snap(new SnapDesk(*this, *m_canvas, m_prompts, m_settings)),
      m_help(new HelpDesk(*this, m_runner)), m_mark(new ChangeMark(*this, m_drawing, m_runner)),
      m_focus(new FocusRing(*this, *m_canvas, *m_commandLine, *m_drawBar->bar())),
      m_recent(*m_menus.recent, m_settings) {
    setCentralWidget(m_canvas);
    m_canvas->setMinimumSize(kLeastOfPlan);
    makeCommandDock();
    connectCommandLine();
    connectCanvas();
    new KeypadPoint(this);
    new PointTyping(*m_canvas, *m_commandLine, m_prompts);
    m_select->setPicker([this](PlanPoint place) { return m_tool->take(place); });
    m_select->fillMenus(*m_menus.styles, *m_menus.layers);
    connectFiles();
    restorePlace();
    takeDrawing(DrawingFile::create(), QString());
    loadModule(moduleFiles);
    showIdle();
    m_commandLine->setFocus();
}

MainWindow::~MainWindow() {
    hide(); // the canvas tells that it loses the focus, as long as those live whom it tells
    m_canvas->setSession(nullptr); // the session goes first
}

void MainWindow::makeCommandDock() {
    const auto* const dock = new CommandDock(*this, *m_commandLine);
    m_menus.view->addSeparator();
    new LookDesk(*m_menus.view, *m_canvas, m_settings);
    const auto* const language = new LanguageDesk(*m_menus.view, m_settings);
    connect(language, &LanguageDesk::printed, m_commandLine, &CommandLine::print);
    m_menus.view->addAction(dock->toggleViewAction());
    m_menus.view->addAction(m_menus.tools->toggleViewAction());
    m_menus.view->addAction(m_menus.editTools.bar->toggleViewAction());
    m_menus.view->addAction(m_drawBar->bar()->toggleViewAction());
    m_menus.view->addAction(m_join->toggleAction());
    m_menus.view->addAction(m_properties->toggleAction());
    m_menus.view->addSeparator();
    m_menus.view->addActions(m_snap->actions());
    m_menus.view->addSeparator();
    m_menus.view->addActions(m_focus->actions());
}

void MainWindow::connectCommandLine() {
    connect(m_commandLine, &CommandLine::entered, this, &MainWindow::enterLine);
    connect(m_commandLine, &CommandLine::cancelled, this, &MainWindow::escape);
    connect(m_drawBar, &DrawBar::complained, m_commandLine, &CommandLine::complain);
    connect(m_drawBar, &DrawBar::left, m_commandLine, [this] { m_commandLine->setFocus(); });
    connect(m_join, &JoinDesk::left, m_commandLine, [this] { m_commandLine->setFocus(); });
    connect(m_properties, &PropertyDesk::left, m_commandLine,
            [this] { m_commandLine->setFocus(); });
    connect(m_tool, &ToolDesk::complained, m_commandLine, &CommandLine::complain);
    connect(m_autosave, &AutosaveDesk::complained, m_commandLine, &CommandLine::complain);
    connect(m_undo, &UndoDesk::printed, m_commandLine, &CommandLine::print);
    connect(&m_prompts, &DeskPrompts::printed, m_commandLine, &CommandLine::print);
    connect(m_play, &PlayScript::printed, m_commandLine, &CommandLine::print);
    connect(m_play, &PlayScript::complained, m_commandLine, &CommandLine::complain);
    connect(m_pasted, &PastedLines::complained, m_commandLine, &CommandLine::complain);
    connect(m_commandLine, &CommandLine::linesEntered, m_pasted, &PastedLines::play);
    connect(&m_prompts, &DeskPrompts::complained, m_commandLine, &CommandLine::complain);
    connect(&m_prompts, &DeskPrompts::asked, this, &MainWindow::showQuestion);
    connect(&m_prompts, &DeskPrompts::answered, this, &MainWindow::showIdle);
    connect(&m_runner, &CommandRunner::commandStarted, this, [this](const QString& name) {
        if (!ToolDesk::announces(name)) {
            m_commandLine->print(tr("Command: %1").arg(name));
        }
    });
    connect(&m_prompts, &DeskPrompts::toolChosen, &m_runner, [this](const QString& keyword) {
        m_runner.repeatAs(QStringLiteral("-MLEDIT"), {keyword});
    });
    connect(&m_runner, &CommandRunner::commandEnded, this, [this] {
        m_canvas->viewChanged();
        m_canvas->refresh();
        showIdle();
        showChange();
    });
}

void MainWindow::connectCanvas() {
    connect(m_canvas, &Canvas::clicked, this, [this](double x, double y, bool isExact) {
        if (m_tool->answerPick({x, y})) {
            return;
        }
        m_prompts.answerPoint(isExact ? exactPoint(x, y)
                                      : clickedPoint(x, y, session()->view().unitsPerPixel()));
    });
    connect(m_canvas, &Canvas::rightClicked, this, [this] {
        if (m_select->showContextMenu(QCursor::pos())) {
            return;
        }
        m_commandLine->takeKey(QKeyEvent(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier));
    });
    connect(m_canvas, &Canvas::menuWanted, m_select, &SelectDesk::showContextMenu);
    connect(m_canvas, &Canvas::keyTyped, this,
            [this](QKeyEvent* event) { m_commandLine->takeKey(*event); });
    connect(m_canvas, &Canvas::cursorMoved, this, [this](double x, double y) {
        m_status.showCursor(x, y, session()->view().unitsPerPixel());
    });
    connect(m_canvas, &Canvas::zoomCornerAwaited, this, [this](int corner) {
        m_commandLine->setNotice(corner == 0   ? QString()
                                 : corner == 1 ? tr("(first corner of the zoom window)")
                                               : tr("(opposite corner of the zoom window)"));
    });
    connect(m_canvas, &Canvas::cursorLeft, &m_status, &StatusLine::clearCursor);
    connect(m_canvas, &Canvas::settled, this, &MainWindow::reportPartlyDrawn);
}

void MainWindow::connectFiles() {
    connect(&m_files, &DeskFiles::printed, m_commandLine, &CommandLine::print);
    connect(&m_files, &DeskFiles::complained, m_commandLine, &CommandLine::complain);
    connect(&m_files, &DeskFiles::used, &m_recent, &RecentFiles::add);
    connect(&m_files, &DeskFiles::missing, &m_recent, &RecentFiles::remove);
    connect(&m_files, &DeskFiles::saved, this, &MainWindow::showChange);
    connect(&m_files, &DeskFiles::openingEnded, this, [this](bool isOpen) {
        showIdle();
        if (!isOpen) {
            m_pasted->breakOff(); // what was typed meanwhile was for that drawing
        }
    });
    m_files.opener().setKeyTaker([this](const QKeyEvent& key) {
        CommandLine::Question question; // which completes nothing
        question.text = tr("Command, once the drawing is open:");
        m_commandLine->setQuestion(question);
        m_commandLine->takeKey(key);
    });
    connect(&m_recent, &RecentFiles::chosen, this, &MainWindow::open);
    connect(new FileDrop(*this, m_files.opener()), &FileDrop::dropped, this, &MainWindow::open);
}

void MainWindow::loadModule(const std::vector<std::string>& files) {
    for (const std::string& file : files) {
        std::error_code ignored;
        if (std::filesystem::exists(file, ignored)) {
            if (const auto failure = m_modules.load(file)) {
                m_commandLine->complain(QString::fromStdString(messageOf(*failure)));
            }
            return;
        }
    }
    m_commandLine->complain(tr("The module of the multiline commands can't be found."));
}

void MainWindow::open(const QString& path) {
    m_leave.then([this, path] { m_files.open(path); });
}

void MainWindow::start(const QString& command, const QStringList& answers) {
    if (!m_files.opener().isOpening()) {
        m_runner.start(command, answers);
    }
}

// While a drawing is being opened, nothing else can be started.
void MainWindow::post(std::function<void()> task) {
    if (!m_files.opener().isOpening()) {
        m_runner.post(std::move(task));
    }
}

void MainWindow::takeDrawing(std::unique_ptr<DrawingFile> file, const QString& path) {
    m_autosave->drop();
    m_canvas->setSession(nullptr);
    m_runner.setSession(nullptr);
    m_properties->dropSession();
    m_drawing.replace(std::move(file), path);
    m_join->setSession(*session());
    m_snap->setSession(*session());
    m_drawBar->setSession(*session());
    m_tool->setSession(*session());
    m_undo->setSession(*session());
    m_select->setSession(*session());
    m_grips->setSession(*session());
    m_properties->setSession(*session());
    session()->display().setRepaint([this] { m_canvas->refresh(); });
    m_runner.setSession(session());
    m_canvas->setSession(session());
    m_isPartlyDrawnReported = false;
    showChange();
}

// Once for each drawing.
void MainWindow::reportPartlyDrawn() {
    if (m_isPartlyDrawnReported || session() == nullptr) {
        return;
    }
    const std::vector<std::uint64_t> handles = session()->scene().partlyDrawn();
    if (!handles.empty()) {
        m_isPartlyDrawnReported = true;
        m_commandLine->print(
            tr("Warning: %1").arg(QString::fromStdString(partlyDrawnText(handles))));
    }
}

void MainWindow::perform(const DeskAct& act) {
    if (const auto* const typed = std::get_if<TypedCommand>(&act)) {
        start(QString::fromLatin1(typed->command),
              typed->answer != nullptr ? QStringList{QString::fromLatin1(typed->answer)}
                                       : QStringList());
    } else if (const auto* const own = std::get_if<WindowAct>(&act)) {
        perform(*own);
    } else if (const auto* const select = std::get_if<SelectAct>(&act)) {
        m_select->perform(*select);
    }
}

// What has to do with files waits until no command runs; the rest doesn't disturb a command.
void MainWindow::perform(WindowAct act) {
    constexpr double kZoomStep = 1.5;
    switch (act) {
    case WindowAct::newDrawing:
        return m_leave.then([this] { m_files.newDrawing(); });
    case WindowAct::open:
        return m_leave.then([this] { m_files.askAndOpen(); });
    case WindowAct::save:
        return post([this] { m_files.save(); });
    case WindowAct::saveAs:
        return post([this] { m_files.saveAs(); });
    case WindowAct::exportPicture:
        return post([this] { m_files.exportPicture(); });
    case WindowAct::recover:
        return m_autosave->offerOrSayNone();
    case WindowAct::autosave:
        return m_autosave->askPause();
    case WindowAct::playScript:
        return m_play->askAndPlay();
    case WindowAct::saveHistory:
        return post([this] { m_play->askAndSave(*session(), m_drawing.name()); });
    case WindowAct::exit:
        close();
        return;
    case WindowAct::undo:
        return m_undo->undo();
    case WindowAct::redo:
        return m_undo->redo();
    case WindowAct::undoMemory:
        return m_undo->askMemory();
    case WindowAct::zoomExtents:
        return m_canvas->zoomExtents();
    case WindowAct::zoomWindow:
        return m_canvas->startZoomWindow();
    case WindowAct::zoomPrevious:
        return m_canvas->zoomPrevious();
    case WindowAct::zoomIn:
        return m_canvas->zoomBy(kZoomStep);
    case WindowAct::zoomOut:
        return m_canvas->zoomBy(1.0 / kZoomStep);
    case WindowAct::help:
        return m_help->show();
    case WindowAct::about:
        return m_help->about();
    }
}

void MainWindow::enterLine(const QString& line) {
    if (m_files.opener().isOpening()) {
        if (!line.isEmpty() || m_pasted->isPlaying()) {
            m_commandLine->print(tr("%1 waits until the drawing is open.").arg(line));
            m_pasted->play({line});
        }
        return;
    }
    if (m_undo->takeLine(line)) {
        return;
    }
    if (m_prompts.request() != nullptr) {
        if (!m_snap->takeWord(line)) {
            m_prompts.answerText(line);
        }
    } else if (m_runner.isBusy() || m_runner.isAwaited()) {
        // Before it asks, a command may have to look through a large drawing.
        const bool isUnderDialog = QApplication::activeModalWidget() != nullptr;
        if (!isUnderDialog && (!line.isEmpty() || m_pasted->isPlaying())) {
            m_pasted->play({line});
        }
    } else if (line.isEmpty()) {
        m_runner.repeat();
    } else {
        start(line);
    }
}

void MainWindow::escape() {
    m_pasted->stop();
    if (m_canvas->dropWindow() || m_snap->dropWord()) {
        return;
    }
    if (m_prompts.request() != nullptr) {
        m_prompts.cancel();
    } else if (m_play->isPlaying()) {
        m_play->stop();
    } else if (!m_runner.isBusy()) {
        m_select->clear();
    }
}

void MainWindow::showQuestion() {
    const PromptRequest& request = *m_prompts.request();
    m_commandLine->setQuestion(questionLine(request, m_tool->promptPrefix(), palette()));
    showDuringCommand();
    const auto& progress = session()->selectionMemory().progress;
    Aim aim = aimOf(request, session()->scene(), progress);
    if (aim.kind == AimKind::point) {
        aim.guide = m_snap->guide({.base = aim.base});
    }
    m_canvas->setAim(std::move(aim));
    m_select->show();
}

void MainWindow::showIdle() {
    m_canvas->setAim({.pickBox = PromptSession::current().pickBox});
    CommandLine::Question question;
    if (!m_runner.isBusy() || m_prompts.request() == nullptr) {
        question.text = tr("Command:");
        question.completions = commandNames();
    }
    m_commandLine->setQuestion(question);
}

void MainWindow::showChange() {
    m_mark->show();
    m_drawBar->showValues();
    m_status.showStyle(m_drawing.currentStyle());
}

// What a command changes shows at its next question.
void MainWindow::showDuringCommand() {
    m_status.showStyle(m_drawing.currentStyle());
    m_mark->look();
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (m_mayClose || (!m_runner.isBusy() && m_files.mayLeave())) {
        m_autosave->drop();
        storePlace();
        event->accept();
        return;
    }
    event->ignore();
    if (!m_runner.isBusy()) {
        return; // the user changed his mind
    }
    m_files.opener().cancel();
    const auto leave = [this] {
        m_mayClose = true;
        close();
        m_mayClose = false;
    };
    if (m_files.opener().isOpening()) {
        m_runner.post([this, leave] {
            if (m_files.mayLeave()) {
                leave();
            }
        });
    } else {
        m_leave.then(leave);
    }
}

// Whatever has the focus, one types into the command line.
void MainWindow::keyPressEvent(QKeyEvent* event) {
    m_commandLine->takeKey(*event);
}

void MainWindow::restorePlace() {
    resize(kFirstSize.boundedTo(screen()->availableSize() * kMostOfScreen));
    restoreGeometry(m_settings.bytes(DeskSettings::kGeometry));
    restoreState(m_settings.bytes(DeskSettings::kState));
}

void MainWindow::storePlace() {
    m_settings.setBytes(DeskSettings::kGeometry, saveGeometry());
    m_settings.setBytes(DeskSettings::kState, saveState());
}

} // namespace orvex
