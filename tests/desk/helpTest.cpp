#include "DeskFixture.h"
#include "HelpTables.h"

#include <QMenu>
#include <QPushButton>
#include <QTextBrowser>
#include <QTextCursor>
#include <QTextDocument>

namespace orvex::testing {

namespace {

TEST(Help, linksAndPicturesLeadToWhatIsThere) {
    expectLinksLeadSomewhere();
}

TEST_F(DeskFixture, theHelpHasWhatTheTablesHave) {
    expectHelpHasAll(*window, "command", "key", [](const QKeySequence& key) {
        return key.toString(QKeySequence::PortableText);
    });
}

TEST_F(DeskFixture, theHelpOpensAtTheToolThatRunsAndIsSearchedThroughAllPages) {
    auto* const browser = window->findChild<QTextBrowser*>("helpBrowser");
    const auto place = [browser] { return browser->textCursor().block().text(); };
    auto* const words = window->findChild<QLineEdit*>("helpSearch");
    play({
        trigger("help"),
        [&] { EXPECT_EQ(browser->source(), helpAddress(helpPages().front())); },
        type("-mledit\not"),
        trigger("help"),
        [&] {
            EXPECT_THAT(place().toStdString(), ::testing::StartsWith("OT "));
            const QUrl address("qrc:/docs/pictures/ot.svg");
            const QVariant picture = browser->loadResource(QTextDocument::ImageResource, address);
            EXPECT_EQ(picture.value<QImage>().pixelColor(500, 200), QColor(Qt::white));
        },
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
            EXPECT_TRUE(found.contains(helpAddress("help/commands.md")));
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

TEST_F(DeskFixture, dialogsHaveAHelpThatCanBeUsed) {
    play({
        type("mlstyle"),
        inDialog<QDialog>([](QDialog& dialog) {
            QTest::keyClick(&dialog, Qt::Key_F1);
            auto* const help = dialog.findChild<HelpWindow*>();
            ASSERT_NE(help, nullptr);
            EXPECT_TRUE(help->isVisible());
            EXPECT_EQ(help->findChild<QTextBrowser*>()->textCursor().block().text(), "MLSTYLE");
            dialog.reject();
        }),
        [this] { EXPECT_EQ(prompt(), "Command:"); },
    });
}

TEST_F(DeskFixture, keysGoRoundTheWindow) {
    const auto focused = [this] { return window->focusWidget()->objectName().toStdString(); };
    play({
        [this] { QApplication::setActiveWindow(window.get()); },
        trigger("properties"), // which takes the focus, though nothing there can be changed yet
        trigger("nextArea"),
        [&] { EXPECT_EQ(focused(), "styleBox"); },
        trigger("nextArea"),
        [&] { EXPECT_EQ(focused(), "commandInput"); },
        trigger("nextArea"),
        [this] { EXPECT_TRUE(canvas()->isCrossOn()); },
        trigger("nextArea"),
        [&] { EXPECT_EQ(focused(), "styleBox") << "the panel has nothing to stop at"; },
        openPlan(),
        trigger("selectAll"),
        trigger("previousArea"),
        [&] { EXPECT_EQ(focused(), "propertyStyle"); },
        trigger("previousArea"),
        [this] {
            QTest::keyClick(canvas(), Qt::Key_F10, Qt::ShiftModifier);
            EXPECT_NE(window->findChild<QMenu*>("selectionMenu"), nullptr);
            QApplication::activePopupWidget()->close();
        },
        trigger("properties"),
        trigger("deselect"),
    });
}

} // namespace

} // namespace orvex::testing
