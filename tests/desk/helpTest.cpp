#include "DeskFixture.h"
#include "HelpTables.h"

#include "commandNames.h"
#include "editTools.h"
#include "helpPages.h"

#include <QPushButton>
#include <QTextBrowser>
#include <QTextCursor>
#include <QTextDocument>

namespace orvex::testing {

namespace {

const char* const kCommands = "help/commands.md";

TEST(Help, linksAndPicturesLeadToWhatIsThere) {
    expectLinksLeadSomewhere();
}

TEST_F(DeskFixture, theHelpHasWhatTheTablesHave) {
    EXPECT_EQ(firstCells(kCommands, "command"),
              commandNames()); // the window has loaded the module's
    QTextDocument tools;
    tools.setMarkdown(helpText("help/tools.md"));
    for (const EditTool& tool : editTools()) {
        EXPECT_GE(topicPlace(tools, tool.keyword), 0) << tool.keyword;
    }
    const QStringList keys = firstCells("help/keys.md", "key");
    for (const QAction* const action : window->findChildren<QAction*>()) {
        for (const QKeySequence& key : action->shortcuts()) {
            const QString shown = key.toString(QKeySequence::PortableText);
            EXPECT_TRUE(keys.contains(shown)) << shown.toStdString();
        }
    }
}

TEST_F(DeskFixture, theHelpOpensAtTheToolThatRunsAndIsSearchedThroughAllPages) {
    auto* const browser = window->findChild<QTextBrowser*>("helpBrowser");
    const auto place = [browser] { return browser->textCursor().block().text(); };
    auto* const words = window->findChild<QLineEdit*>("helpSearch");
    play({
        trigger("help"),
        [&] { EXPECT_EQ(browser->source(), helpAddress(helpPages().front())); },
        type("-mledit"),
        type("ot"),
        trigger("help"),
        [&] { EXPECT_THAT(place().toStdString(), ::testing::StartsWith("OT ")); },
        key(Qt::Key_Escape),
        type("rotate"),
        trigger("help"),
        [&] { EXPECT_EQ(place(), "ROTATE"); },
        key(Qt::Key_Escape),
        [&] {
            words->setText("PICKBOX");
            QSet<QUrl> found;
            for (int i = 0; i < 12; ++i) {
                QTest::keyClick(words, Qt::Key_Return);
                EXPECT_EQ(browser->textCursor().selectedText(), "PICKBOX");
                found << browser->source();
            }
            EXPECT_TRUE(found.contains(helpAddress(kCommands)));
            EXPECT_TRUE(found.contains(helpAddress("glossary.md")));
            window->findChild<QPushButton*>("helpContents")->click();
            emit browser->anchorClicked(helpAddress("help/keys.md"));
            EXPECT_EQ(browser->source(), helpAddress("help/keys.md"));
            window->findChild<QPushButton*>("helpBack")->click();
            EXPECT_EQ(browser->source(), helpAddress(helpPages().front()));
            EXPECT_TRUE(browser->toPlainText().contains("twelve tools"));
        },
    });
}

} // namespace

} // namespace orvex::testing
