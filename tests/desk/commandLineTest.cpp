#include "DeskFixture.h"

#include "InputHistory.h"

#include <QClipboard>
#include <QMenu>

namespace orvex::testing {

namespace {

TEST_F(DeskFixture, anAnswerThatFitsNoQuestionIsToldAndAskedAgain) {
    play({
        type("nonsense"),
        [this] { EXPECT_THAT(lastLine().toStdString(), ::testing::HasSubstr("no command")); },
        type("-MLEDIT\nXX"),
        [this] {
            EXPECT_THAT(lastLine().toStdString(), ::testing::HasSubstr("'XX' is not a keyword"));
            EXPECT_TRUE(prompt().startsWith("Enter an editing tool"));
        },
        key(Qt::Key_Escape),
        type("MLINE\n5;5"),
        [this] { EXPECT_THAT(history().toStdString(), ::testing::HasSubstr("/LAyer]: 5;5\n")); },
        key(Qt::Key_Escape),
        type("SETVAR\nNOTHING"),
        [this] {
            EXPECT_EQ(lastLine(), "There is no variable 'NOTHING'");
            EXPECT_EQ(prompt(), "Command:");
        },
    });
}

TEST_F(DeskFixture, blanksAreTypedWhereATextOrAHandleIsAsked) {
    play({
        type("SETVAR"),
        [this] {
            QTest::keyClicks(&input(), "a b");
            EXPECT_EQ(input().text(), "a b");
        },
        key(Qt::Key_Escape),
        type("-MLEDIT\nCC"),
        [this] {
            QTest::keyClicks(&input(), "1,2 #3");
            EXPECT_EQ(input().text(), "1,2 #3");
        },
        key(Qt::Key_Escape),
        [this] { EXPECT_TRUE(input().text().isEmpty()); },
        key(Qt::Key_F35), // wanted by nobody, the keys that the window sends here neither
        [this] { QTest::keyClick(window.get(), Qt::Key_F35, Qt::ControlModifier); },
    });
}

TEST_F(DeskFixture, theRightButtonEntersWhatWasTyped) {
    play({
        [this] { QTest::keyClicks(&input(), "ZOOM"); },
        [this] { QTest::mouseClick(canvas(), Qt::RightButton); },
        [this] {
            EXPECT_EQ(prompt(), "Extents or Center:");
            EXPECT_EQ(input().text(), "");
        },
        key(Qt::Key_Escape),
    });
}

// In an empty field, the window's own keys are the window's; letters with Alt always are.
TEST_F(DeskFixture, keysOfMenusWorkFromTheCommandLine) {
    QString menu;
    play({
        openPlan(),
        type("MLINE\n0,0\n1000,0"),
        key(Qt::Key_Return),
        [this] { QTest::keyClick(&input(), Qt::Key_Z, Qt::ControlModifier); },
        [this] { EXPECT_FALSE(window->isWindowModified()); },
        [this] {
            const auto belongsToField = [this] {
                QKeyEvent key(QEvent::ShortcutOverride, Qt::Key_A, Qt::ControlModifier);
                key.ignore();
                QCoreApplication::sendEvent(&input(), &key);
                return key.isAccepted();
            };
            EXPECT_FALSE(belongsToField());
            QTest::keyClicks(&input(), "U");
            EXPECT_TRUE(belongsToField());
            input().clear();
        },
        [&] {
            QTimer::singleShot(0, window.get(), [&menu] {
                if (QWidget* const popup = QApplication::activePopupWidget()) {
                    menu = qobject_cast<QMenu*>(popup)->title();
                    popup->close();
                }
            });
            QTest::keyClick(&input(), Qt::Key_F, Qt::AltModifier);
        },
        [this] {
            QTest::keyClick(&input(), Qt::Key_O, Qt::AltModifier); // of no menu
            EXPECT_EQ(input().text(), "");
        },
        [] {},
    });
    EXPECT_EQ(menu, "&File");
}

TEST_F(DeskFixture, namesAreCompletedAndFormerInputsFetched) {
    play({
        [this] {
            QTest::keyClicks(&input(), "-ml");
            QTest::keyClick(&input(), Qt::Key_Tab);
            EXPECT_EQ(input().text(), "-MLEDIT");
            input().clear();
        },
        type("ZOOM\nE"),
        [this] {
            QTest::keyClick(&input(), Qt::Key_Up);
            QTest::keyClick(&input(), Qt::Key_Up);
            EXPECT_EQ(input().text(), "ZOOM");
            QTest::keyClick(&input(), Qt::Key_Down);
            EXPECT_EQ(input().text(), "E");
            QTest::keyClick(&input(), Qt::Key_Down);
            EXPECT_EQ(input().text(), "");
        },
    });
}

TEST_F(DeskFixture, pastedLinesPlayAfterEnterUntilOneFails) {
    const auto paste = [this](const char* lines) {
        return [this, lines] {
            QApplication::clipboard()->setText(QString::fromLatin1(lines));
            input().paste();
        };
    };
    const auto count = [this] {
        const auto* const label = window->findChild<QLabel*>("lineCount");
        return label->isVisible() ? label->text().section(' ', 0, 0).toInt() : 1;
    };
    play({
        paste("MLINE\n"),
        [&] {
            EXPECT_EQ(input().text(), "MLINE");
            EXPECT_EQ(count(), 1);
            input().clear();
        },
        paste("MLINE\n0,0\n1000,0\n\nMLINE\r\n0,500\r\n; up\n1000,500\n\n"),
        [&] {
            EXPECT_EQ(count(), 8);
            EXPECT_EQ(prompt(), "Command:");
            QTest::keyClick(&input(), Qt::Key_Return);
        },
        until([this] { return prompt() == "Command:" && history().contains(": 1000,500\n"); }),
        trigger("undo"),
        [&] {
            EXPECT_EQ(count(), 1);
            EXPECT_TRUE(window->isWindowModified()) << "each command is a step";
        },
        trigger("undo"),
        [this] { EXPECT_FALSE(window->isWindowModified()); },
        paste("MLINE\nnonsense\n0,0\n1000,0\n"),
        [this] { QTest::keyClick(&input(), Qt::Key_Return); },
        until([this] { return lastLine().endsWith("left out: 2."); }),
        [this] { EXPECT_TRUE(prompt().startsWith("Start point")); },
        key(Qt::Key_Escape),
    });
}

TEST_F(DeskFixture, whatIsTypedBeforeACommandAsksAnswersIt) {
    play({
        [this] {
            for (const char* const line : {"MLINE", "0,0", "1000,0", ""}) {
                input().setText(line);
                QTest::keyClick(&input(), Qt::Key_Return);
            }
        },
        until([this] { return prompt() == "Command:" && history().contains(": 1000,0\n"); }),
    });
    EXPECT_EQ(script(), "MLINE\n0,0\n1000,0\n\n");
}

TEST(InputHistory, keepsTheLineThatWasBeingTypedAndStaysAtItsEnds) {
    InputHistory history;
    EXPECT_EQ(history.earlier("x"), "x");
    history.add("a");
    history.add("b");
    history.add("b");
    history.add("");
    EXPECT_EQ(history.earlier("typing"), "b");
    EXPECT_EQ(history.earlier("b"), "a");
    EXPECT_EQ(history.earlier("a"), "a");
    EXPECT_EQ(history.later("a"), "b");
    EXPECT_EQ(history.later("b"), "typing");
    EXPECT_EQ(history.later("typing"), "typing");
}

} // namespace

} // namespace orvex::testing
