#include "DeskFixture.h"

#include "editTools.h"
#include "resourceLibrary.h"

#include <QDialog>
#include <QPushButton>

#include <algorithm>
#include <fstream>
#include <map>

namespace orvex::testing {

namespace {

TEST_F(DeskFixture, typedClickedAndPickedEditsSaveWhatTheirScriptSaves) {
    play({
        openPlan(),
        type("zoom\nc\n9000,2000\n400\n-mledit"),
        clickKeyword("CA"),
        pick(2200, 0),
        pick(4210, 0),
        // The right button ends as Enter does, and Enter repeats the tool that was used.
        [this] { QTest::mouseClick(canvas(), Qt::RightButton); },
        key(Qt::Key_Return),
        type("10500,7500 #7A\n10500,9510 #7A"),
        pick(6500, 0),
        pick(7510, 0),
        clickKeyword("UNDO"),
        key(Qt::Key_Space),
        key(Qt::Key_Space),
        [this] { EXPECT_FALSE(prompt().startsWith("Enter an editing tool")); },
        key(Qt::Key_Escape),
        [this] { EXPECT_TRUE(window->isWindowModified()); },
        trigger("save"),
        [this] { EXPECT_FALSE(window->isWindowModified()); },
    });
    expectSavedByScript();
}

TEST_F(DeskFixture, theToolsAreThoseOfTheModuleInItsOrder) {
    wchar_t keywords[100];
    LoadStringW(loadResourceDll(L"OmxMLStyleRes.dll"), 4000, keywords, 100);
    QString shown;
    for (const EditTool& tool : editTools()) {
        shown += (shown.isEmpty() ? "" : " ") + QString(tool.keyword);
    }
    EXPECT_EQ(shown, QString::fromWCharArray(keywords));
}

// A step for each line of a script: points by the mouse, tools by their captions in the palette.
TEST_F(DeskFixture, allTwelveToolsFromThePaletteSaveWhatTheirScriptSaves) {
    std::map<std::string, QString> captions;
    std::map<QString, QString> hints;
    for (const EditTool& tool : editTools()) {
        captions[tool.keyword] = toolName(tool);
        hints[toolName(tool)] = toolHelp(tool);
    }
    std::deque<Step> all{openPlan()};
    std::map<std::string, int> runs;
    std::ifstream tour(sourceDir() / "samples/tour.scr");
    for (std::string line; std::getline(tour, line);) {
        const QStringList point = QString::fromStdString(line).split(',');
        if (line.starts_with(';')) {
            continue;
        }
        if (line == "-MLEDIT") {
            all.push_back(type("MLEDIT"));
        } else if (const auto caption = captions.find(line); caption != captions.end()) {
            ++runs[line];
            all.push_back(inDialog<QDialog>([&hints, shown = caption->second](QDialog& palette) {
                const auto buttons = palette.findChildren<QPushButton*>();
                const auto found =
                    std::find_if(buttons.begin(), buttons.end(), [&](const QPushButton* button) {
                        return button->accessibleName() == shown;
                    });
                ASSERT_NE(found, buttons.end()) << shown.toStdString();
                EXPECT_EQ((*found)->toolTip(), hints.at(shown));
                (*found)->click();
            }));
        } else if (point.size() == 2 && line.find('#') == std::string::npos && !runs.empty()) {
            all.push_back(pick(point[0].toDouble(), point[1].toDouble()));
        } else {
            all.push_back(type(QString::fromStdString(line)));
        }
    }
    all.push_back(trigger("save"));
    play(std::move(all));
    EXPECT_EQ(runs.size(), captions.size());
    expectSavedByScript();
}

TEST_F(DeskFixture, whatIsEditedAndUndoneIsNotChanged) {
    play({
        openPlan(),
        type("-MLEDIT\nCA\n2200,0 #7A\n4210,0 #7A"),
        key(Qt::Key_Return),
        [this] { EXPECT_TRUE(window->isWindowModified()); },
        trigger("undo"),
        [this] { EXPECT_FALSE(window->isWindowModified()); },
        type("MLINE\n0,0\n1000,0"),
        key(Qt::Key_Return),
        [this] { EXPECT_TRUE(window->isWindowModified()); },
        trigger("save"),
        trigger("undo"),
        [this] { EXPECT_TRUE(window->isWindowModified()); }, // the file has the multiline
        trigger("save"),
        [this] { EXPECT_FALSE(window->isWindowModified()); },
    });
    EXPECT_EQ(readFile(plan), original);
}

TEST_F(DeskFixture, aCommandStartedMeanwhileCancelsTheOneThatRuns) {
    play({
        openPlan(),
        trigger("toolCA"),
        [this] { EXPECT_EQ(canvas()->aim().kind, AimKind::entity); },
        pick(2200, 0),
        trigger("mline"),
        [this] {
            EXPECT_TRUE(history().contains("*CANCEL*\nCommand: MLINE"));
            EXPECT_EQ(canvas()->aim().kind, AimKind::point);
        },
        trigger("zoomIn"), // looks closer while the command goes on
        [this] { EXPECT_EQ(canvas()->aim().kind, AimKind::point); },
        trigger("save"),
        [this] {
            EXPECT_EQ(prompt(), "Command:");
            EXPECT_EQ(canvas()->aim().kind, AimKind::none);
        },
    });
    EXPECT_EQ(readFile(plan), original);
}

} // namespace

} // namespace orvex::testing
