// MLEDIT and MLSTYLE as a user has them: the dialogs of the loaded module, and what is left of them
// in the drawing.

#include "DrawingFile.h"
#include "ModuleLoader.h"
#include "PromptSource.h"
#include "ScriptSource.h"
#include "Session.h"
#include "TestPaths.h"
#include "dialogRun.h"

#include <QLineEdit>
#include <QProcess>

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

namespace {

namespace fs = std::filesystem;
using orvex::Session;
using namespace orvex::testing;

// Plays a script and gives a dialog that asks for a file the one that is set.
class User final : public orvex::PromptSource {
public:
    orvex::PromptAnswer ask(const orvex::PromptRequest& request) override {
        return script->ask(request);
    }
    void print(const std::wstring& /*line*/) override {}
    std::optional<std::wstring> chooseFile(const std::wstring& /*title*/,
                                           const std::wstring& /*start*/,
                                           const std::wstring& /*extension*/,
                                           int /*flags*/) override {
        return file.wstring();
    }

    std::unique_ptr<orvex::ScriptSource> script;
    fs::path file = fs::temp_directory_path() / "own.mln";
};

class WindowCommands : public testing::Test {
protected:
    WindowCommands() {
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
                EXPECT_FALSE(m_session->run(name));
            }
        }
        EXPECT_FALSE(m_user.script->failure());
    }
    // One MLSTYLE; the manager is closed at the end.
    template <class Act>
    void manage(Act act) {
        inNextDialog([&](const QWidget& manager) {
            act(manager);
            press(manager, "pBtnClose");
        });
        play("MLSTYLE\n");
    }
    [[nodiscard]] std::string drawing() const { return m_session->drawing().bytes(); }

    // What a program that reads drawings finds: audit and all styles, a line each.
    std::string report() {
        const fs::path file = fs::temp_directory_path() / "styles.dxf";
        EXPECT_FALSE(m_session->drawing().save(file.string()));
        const fs::path script = orvex::testing::sourceDir() / "tests/module/listStyles.py";
        QProcess python;
        python.start(ORVEX_PYTHON, {script.c_str(), file.c_str()});
        EXPECT_TRUE(python.waitForFinished());
        return (python.readAllStandardOutput() + python.readAllStandardError()).toStdString();
    }

    User m_user;
    orvex::ModuleLoader m_modules;
    std::unique_ptr<Session> m_session;
};

TEST_F(WindowCommands, thePaletteRunsTheToolOfItsButtonAfterItHasClosed) {
    play("SETVAR\nCMLSCALE\n1\nMLINE\n0,0\n10,0\n\nMLINE\n5,-5\n5,5\n\nZOOM\nE\n");
    const std::string picks = "2,0\n5,-3\n\n"; // justification top: an element lies on the chain
    const std::string untouched = drawing();
    for (const auto& [button, keyword] :
         {std::pair{"closedCrossBtn", "CC"}, {"cornerJointBtn", "CJ"}}) {
        inNextDialog([name = button](const QWidget& palette) { press(palette, name); });
        play("MLEDIT\n" + picks);
        const std::string byPalette = drawing();
        EXPECT_NE(byPalette, untouched);
        play("U\n-MLEDIT\n" + (keyword + ("\n" + picks)));
        EXPECT_EQ(drawing(), byPalette);
        play("U\n");
    }
    inNextDialog([](const QWidget& palette) { press(palette, "closeBtn"); });
    play("MLEDIT\nZOOM\nE\n"); // no tool asks
    EXPECT_EQ(drawing(), untouched);
}

void makeStyle(const QWidget& manager, const char* name, const char* description) {
    inNextDialog([=](const QWidget& naming) {
        child<QLineEdit>(naming, "lineEditNewStyleName").setText(name);
        inNextDialog([=](const QWidget& making) {
            child<QLineEdit>(making, "lEditDescription").setText(description);
            press(making, "pBtnAdd"); // a third element
            press(making, "pBtnOK");
        });
        press(naming, "pBtnContinue");
    });
    press(manager, "pBtnNew");
}

TEST_F(WindowCommands, stylesAreLeftAsOthersReadThemAndOneUndoTakesThemBack) {
    const std::string before = drawing();
    EXPECT_EQ(report(), "current STANDARD\nSTANDARD, 2 elements, \n");
    manage([](const QWidget& manager) {
        const auto& styles = child<QListWidget>(manager, "listWidgetStyles");
        makeStyle(manager, "WALL", "brick");
        makeStyle(manager, "TEMP", ""); // starts with the one before

        clickText(styles, "TEMP");
        inNextDialog([](const QWidget& naming) {
            child<QLineEdit>(naming, "lineEditNewStyleName").setText("KERB");
            press(naming, "pBtnOK");
        });
        press(manager, "pBtnRename");

        inNextDialog([](const QWidget& loading) {
            clickText(child<QListWidget>(loading, "listWidget"), "RAILWAY");
            press(loading, "pBtnOK");
        });
        press(manager, "pBtnLoad");

        clickText(styles, "WALL");
        press(manager, "pBtnSetCurrent");
        press(manager, "pBtnSave");
    });
    EXPECT_EQ(report(), "current WALL\nSTANDARD, 2 elements, \nWALL, 3 elements, brick\n"
                        "KERB, 4 elements, \nRAILWAY, 5 elements, Track of 1435 mm: rail heads of "
                        "70 mm and the centre line\n");
    std::string line;
    std::getline(std::ifstream(m_user.file) >> std::ws, line);
    EXPECT_EQ(line, "MLSTYLE");

    play("MLINE\n0,0\n10,0\n\n");
    EXPECT_THAT(report(), testing::EndsWith("multiline of WALL\n"));
    play("U\nU\n");
    EXPECT_EQ(drawing(), before);
}

} // namespace
