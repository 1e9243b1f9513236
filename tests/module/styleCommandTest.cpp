// MLSTYLE as a user has it: the style manager of the loaded module, with the dialogs on top of it.

#include "DrawingFile.h"
#include "ModuleLoader.h"
#include "PromptSource.h"
#include "ScriptSource.h"
#include "Session.h"
#include "TestPaths.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QTextEdit>
#include <QTimer>

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <functional>

namespace {

namespace fs = std::filesystem;
using orvex::Session;

// Does something to the next dialog when it is there.
void inNextDialog(const std::function<void(QWidget&)>& act) {
    QTimer::singleShot(0, qApp, [act] {
        QWidget* const dialog = QApplication::activeModalWidget();
        ASSERT_NE(dialog, nullptr);
        act(*dialog);
    });
}

template <class Widget>
Widget& child(QWidget& dialog, const char* name) {
    auto* const widget = dialog.findChild<Widget*>(name);
    EXPECT_NE(widget, nullptr) << name;
    return *widget;
}

void press(QWidget& dialog, const char* button) {
    child<QPushButton>(dialog, button).click();
}

void select(QWidget& dialog, const char* list, const char* name) {
    auto& widget = child<QListWidget>(dialog, list);
    const auto items = widget.findItems(name, Qt::MatchExactly);
    ASSERT_EQ(items.size(), 1) << name;
    widget.setCurrentItem(items.front());
    emit widget.itemClicked(items.front());
}

// Plays a script and, where a dialog asks for a file, gives the one that it is told.
class User final : public orvex::PromptSource {
public:
    explicit User(std::string file) : m_file(std::move(file)) {}
    orvex::PromptAnswer ask(const orvex::PromptRequest& request) override {
        return script->ask(request);
    }
    void print(const std::wstring& /*line*/) override {}
    std::optional<std::wstring> chooseFile(const std::wstring& /*title*/,
                                           const std::wstring& /*start*/,
                                           const std::wstring& /*extension*/,
                                           int /*flags*/) override {
        return fs::path(m_file).wstring();
    }
    std::unique_ptr<orvex::ScriptSource> script;

private:
    std::string m_file;
};

class StyleCommand : public testing::Test {
protected:
    StyleCommand() {
        orvex::SessionSetup setup;
        setup.drawing = orvex::DrawingFile::create();
        setup.source = &m_user;
        setup.hasWindow = true;
        setup.moduleFiles = {(orvex::testing::binDir() / "libOmxMLStyle.omx").string()};
        m_session = std::make_unique<Session>(std::move(setup), m_modules);
    }

    void play(const std::string& text) {
        m_user.script =
            std::make_unique<orvex::ScriptSource>(text, [](const std::wstring& /*line*/) {});
        while (!m_user.script->atEnd()) {
            const std::wstring name = m_session->askCommand();
            if (!name.empty()) {
                EXPECT_EQ(m_session->run(name).outcome, Session::Outcome::done);
            }
        }
        EXPECT_FALSE(m_user.script->failure());
    }
    // One MLSTYLE; the manager is closed at the end.
    void manage(const std::function<void(QWidget&)>& act) {
        inNextDialog([&](QWidget& manager) {
            act(manager);
            press(manager, "pBtnClose");
        });
        play("MLSTYLE\n");
    }

    // What a program that reads drawings finds: audit and all styles, a line each.
    std::string report() {
        const fs::path file = m_folder / "styles.dxf";
        EXPECT_FALSE(m_session->drawing().save(file.string()));
        QProcess python;
        python.start(ORVEX_PYTHON,
                     {QString::fromStdString(
                          (orvex::testing::sourceDir() / "tests/module/tellStyles.py").string()),
                      QString::fromStdString(file.string())});
        EXPECT_TRUE(python.waitForFinished());
        return (python.readAllStandardOutput() + python.readAllStandardError()).toStdString();
    }

    fs::path m_folder = fs::temp_directory_path();
    User m_user{(m_folder / "own.mln").string()};
    orvex::ModuleLoader m_modules;
    std::unique_ptr<Session> m_session;
};

void makeStyle(QWidget& manager, const char* name, const char* description) {
    inNextDialog([=](QWidget& naming) {
        child<QLineEdit>(naming, "lineEditNewStyleName").setText(name);
        inNextDialog([=](QWidget& making) {
            child<QLineEdit>(making, "lEditDescription").setText(description);
            press(making, "pBtnAdd"); // a third element
            press(making, "pBtnOK");
        });
        press(naming, "pBtnContinue");
    });
    press(manager, "pBtnNew");
}

void answerYes(QWidget& box) {
    dynamic_cast<QMessageBox&>(box).button(QMessageBox::Yes)->click();
}

TEST_F(StyleCommand, leavesADrawingThatOthersReadAndThatOneUndoTakesBack) {
    const std::string before = m_session->drawing().bytes();
    EXPECT_EQ(report(), "current STANDARD\nSTANDARD, 2 elements, \n");
    manage([](QWidget& manager) {
        makeStyle(manager, "WALL", "brick");
        makeStyle(manager, "TEMP", ""); // starts with the one before
        makeStyle(manager, "GONE", "");

        select(manager, "listWidgetStyles", "TEMP");
        inNextDialog([](QWidget& naming) {
            child<QLineEdit>(naming, "lineEditNewStyleName").setText("KERB");
            press(naming, "pBtnOK");
        });
        press(manager, "pBtnRename");

        select(manager, "listWidgetStyles", "GONE");
        inNextDialog(answerYes);
        press(manager, "pBtnDelete");

        select(manager, "listWidgetStyles", "WALL");
        inNextDialog([](QWidget& changing) {
            child<QLineEdit>(changing, "lEditDescription").setText("brick, 240 mm");
            press(changing, "pBtnOK");
        });
        press(manager, "pBtnModify");

        inNextDialog([](QWidget& loading) {
            select(loading, "listWidget", "RAILWAY");
            press(loading, "pBtnOK");
        });
        press(manager, "pBtnLoad");

        select(manager, "listWidgetStyles", "WALL");
        press(manager, "pBtnSetCurrent");
        press(manager, "pBtnSave");
    });
    EXPECT_EQ(report(), "current WALL\nSTANDARD, 2 elements, \nWALL, 3 elements, brick, 240 mm\n"
                        "KERB, 4 elements, \nRAILWAY, 5 elements, Track of 1435 mm: rail heads of "
                        "70 mm and the centre line\n");
    std::ifstream library(m_folder / "own.mln");
    std::string line;
    std::getline(library, line);
    EXPECT_EQ(line, "MLSTYLE");

    play("MLINE\n0,0\n10,0\n\n");
    EXPECT_THAT(report(), testing::EndsWith("multiline of WALL\n"));
    manage([](QWidget& manager) {
        select(manager, "listWidgetStyles", "WALL"); // in use now
        EXPECT_FALSE(child<QPushButton>(manager, "pBtnModify").isEnabled());
        EXPECT_FALSE(child<QPushButton>(manager, "pBtnRename").isEnabled());
    });
    play("U\nU\n");
    EXPECT_EQ(m_session->drawing().bytes(), before);
}

// What is cancelled is as if it had never been begun.
TEST_F(StyleCommand, changesNothingWhereEverythingIsCancelled) {
    const std::string before = m_session->drawing().bytes();
    manage([](QWidget& manager) {
        inNextDialog([](QWidget& naming) {
            child<QLineEdit>(naming, "lineEditNewStyleName").setText("WALL");
            inNextDialog([](QWidget& making) { press(making, "pBtnCancel"); });
            press(naming, "pBtnContinue");
        });
        press(manager, "pBtnNew");
        EXPECT_EQ(child<QListWidget>(manager, "listWidgetStyles").count(), 1);
        for (const char* const button : {"pBtnModify", "pBtnLoad"}) {
            inNextDialog([](QWidget& dialog) { press(dialog, "pBtnCancel"); });
            press(manager, button);
        }
    });
    EXPECT_EQ(m_session->drawing().bytes(), before);
}

} // namespace
