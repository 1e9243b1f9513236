// MLEDIT as a user has it: the palette of the loaded module, then the prompts of the tool.

#include "DrawingFile.h"
#include "ModuleLoader.h"
#include "ScriptSource.h"
#include "Session.h"
#include "TestPaths.h"
#include "resourceLibrary.h"

#include <QApplication>
#include <QPushButton>
#include <QTimer>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace {

namespace fs = std::filesystem;

const std::string kCrossing =
    "SETVAR\nCMLSCALE\n1\nMLINE\n0,0\n10,0\n\nMLINE\n5,-5\n5,5\n\nZOOM\nE\n";
const std::string kPicks = "2,0\n5,-3\n\n"; // justification top: an element lies on the chain

struct Result {
    std::string drawing;
    std::size_t lines = 0; // that were printed
};

// What a script makes of a new drawing.
Result play(const std::string& script) {
    Result result;
    orvex::ScriptSource source(script, [&](const std::wstring&) { ++result.lines; });
    orvex::ModuleLoader modules;
    orvex::SessionSetup setup;
    setup.drawing = orvex::DrawingFile::create();
    setup.source = &source;
    setup.hasWindow = true;
    setup.moduleFiles = {(orvex::testing::binDir() / "libOmxMLStyle.omx").string()};
    orvex::Session session(std::move(setup), modules);
    while (!source.atEnd()) {
        const std::wstring name = session.askCommand();
        if (!name.empty()) {
            EXPECT_EQ(session.run(name).outcome, orvex::Session::Outcome::done);
        }
    }
    EXPECT_FALSE(source.failure());
    const fs::path file = fs::temp_directory_path() / "result.dxf";
    EXPECT_FALSE(session.drawing().save(file.string()));
    std::ifstream stream(file, std::ios::binary);
    result.drawing.assign(std::istreambuf_iterator<char>(stream), {});
    return result;
}

// Does something to the next dialog when it is there.
template <class Act>
void whenADialogOpens(Act act) {
    QTimer::singleShot(0, qApp, [act] {
        QWidget* const dialog = QApplication::activeModalWidget();
        ASSERT_NE(dialog, nullptr);
        act(*dialog);
    });
}

TEST(PaletteCommand, runsTheToolOfTheButtonAfterThePaletteHasClosed) {
    const std::string untouched = play(kCrossing).drawing;
    const std::pair<const char*, const char*> tools[] = {{"closedCrossBtn", "CC"},
                                                         {"cornerJointBtn", "CJ"}};
    for (const auto& [button, keyword] : tools) {
        whenADialogOpens(
            [name = button](QWidget& dialog) { dialog.findChild<QPushButton*>(name)->click(); });
        const std::string byPalette = play(kCrossing + "MLEDIT\n" + kPicks).drawing;
        EXPECT_EQ(byPalette, play(kCrossing + "-MLEDIT\n" + keyword + "\n" + kPicks).drawing);
        EXPECT_NE(byPalette, untouched);
    }
}

TEST(PaletteCommand, closedWithoutAToolAsksNothingAndRestoresTheTexts) {
    int marker = 0;
    auto* const before = reinterpret_cast<HINSTANCE>(&marker);
    AfxSetResourceHandle(before);
    const std::size_t lines = play(kCrossing).lines;
    whenADialogOpens([](QWidget& dialog) { dialog.close(); });
    EXPECT_EQ(play(kCrossing + "MLEDIT\n").lines, lines + 1); // the command's name
    whenADialogOpens([](QWidget& dialog) { dialog.findChild<QPushButton*>("closeBtn")->click(); });
    EXPECT_EQ(play(kCrossing + "MLEDIT\n").lines, lines + 1);
    EXPECT_EQ(AfxGetResourceHandle(), before);
}

} // namespace
