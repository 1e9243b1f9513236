#pragma once

#include "AutosaveDesk.h"
#include "ChangeMark.h"
#include "CommandRunner.h"
#include "DeskDrawing.h"
#include "DeskFiles.h"
#include "DeskLeave.h"
#include "DeskMenus.h"
#include "DeskPrompts.h"
#include "DeskSettings.h"
#include "DrawBar.h"
#include "FocusRing.h"
#include "GripDesk.h"
#include "HelpDesk.h"
#include "JoinDesk.h"
#include "PropertyDesk.h"
#include "RecentFiles.h"
#include "SelectDesk.h"
#include "SessionChoices.h"
#include "SnapDesk.h"
#include "StatusLine.h"
#include "ToolDesk.h"
#include "UndoDesk.h"

#include <QMainWindow>

#include <memory>
#include <string>
#include <vector>

namespace orvex {

class Canvas;
class CommandLine;
class PastedLines;
class PlayScript;

// The window of orvex-desk: a drawing on a canvas, a command line below it, menus around.
class MainWindow final : public QMainWindow {
    Q_OBJECT

public:
    // The module's commands are there from the start. `modules` outlives the window.
    MainWindow(ModuleLoader& modules, const std::vector<std::string>& moduleFiles);
    ~MainWindow() override;

    // Opens a drawing as soon as nothing else runs, and changes to the one before were asked about.
    void open(const QString& path);
    // Asks about what windows that died left unsaved, as soon as this one is shown.
    void offerAutosaves() { QTimer::singleShot(0, m_autosave, &AutosaveDesk::offer); }
    // Starts a command as if it was typed.
    void start(const QString& command, const QStringList& answers = {});

    [[nodiscard]] Session* session() const { return m_drawing.session(); }
    [[nodiscard]] bool isBusy() const { return m_runner.isBusy(); }
    // Nothing runs, or a command asks something.
    [[nodiscard]] bool waitsForUser() const {
        return !m_runner.isBusy() || m_prompts.request() != nullptr;
    }

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void makeCommandDock();
    void connectCommandLine();
    void connectCanvas();
    void connectFiles();
    void loadModule(const std::vector<std::string>& files);
    void restorePlace();
    void storePlace();

    void perform(const DeskAct& act);
    void perform(WindowAct act);
    void post(std::function<void()> task);
    void takeDrawing(std::unique_ptr<DrawingFile> file, const QString& path);
    void enterLine(const QString& line);
    void escape();
    void showQuestion();
    void showIdle();
    void showDuringCommand();
    void showChange(); // after a command, an opening or a save
    void reportPartlyDrawn();

    DeskSettings m_settings;
    HostProfileStore m_profile;
    SessionChoices m_choices;
    ModuleLoader& m_modules;
    DeskPrompts m_prompts;
    CommandRunner m_runner;
    DeskDrawing m_drawing;
    DeskFiles m_files;
    DeskLeave m_leave;
    Canvas* m_canvas;
    CommandLine* m_commandLine;
    DeskMenus m_menus;
    JoinDesk* m_join;
    AutosaveDesk* m_autosave;
    UndoDesk* m_undo;
    PlayScript* m_play;
    PastedLines* m_pasted;
    DrawBar* m_drawBar;
    SelectDesk* m_select;
    GripDesk* m_grips;
    PropertyDesk* m_properties;
    StatusLine m_status;
    ToolDesk* m_tool;
    SnapDesk* m_snap;
    HelpDesk* m_help;
    ChangeMark* m_mark;
    FocusRing* m_focus;
    RecentFiles m_recent;
    bool m_mayClose = false;
    bool m_isPartlyDrawnReported = false;
};

} // namespace orvex
