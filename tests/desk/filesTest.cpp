#include "DeskFixture.h"

#include "PlayScript.h"
#include "fileQuestion.h"

#include <QDropEvent>
#include <QFileDialog>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QProgressDialog>
#include <QPushButton>
#include <QUrl>

#include <fstream>

#include <sys/stat.h>

namespace orvex::testing {

namespace {

namespace fs = std::filesystem;

QString titleOf(const QWidget& window) {
    return window.windowTitle().section('[', 0, 0);
}

class FilesOfDesk : public DeskFixture {
protected:
    Step choose(const fs::path& path) {
        return inDialog<QFileDialog>([path](QFileDialog& dialog) {
            dialog.selectFile(QString::fromStdString(path.string()));
            QMetaObject::invokeMethod(&dialog, "accept");
        });
    }
    QMenu* recentMenu() const { return window->findChild<QAction*>("recent")->menu(); }
};

TEST_F(FilesOfDesk, aDrawingThatCannotBeOpenedLeavesTheOneThatIsThere) {
    const fs::path broken = fs::temp_directory_path() / "broken.dxf";
    writeFile(broken, "  0\nSECTION\nno code\nHEADER\n");
    QString told;
    play({
        openPlan(),
        edit(),
        [&] { window->open(QString::fromStdString(broken.string())); },
        answer(QMessageBox::Discard),
        inDialog<QMessageBox>([&](QMessageBox& box) {
            told = box.text();
            box.accept();
        }),
        [this] {
            EXPECT_EQ(titleOf(*window), "plan.dxf");
            EXPECT_TRUE(window->isWindowModified());
            EXPECT_EQ(recentMenu()->actions().size(), 1);
        },
        trigger("undo"),
        trigger("save"),
    });
    EXPECT_TRUE(told.contains(QString::fromStdString(broken.string()) + ":3: "))
        << told.toStdString();
    EXPECT_EQ(readFile(plan), original);
}

TEST_F(FilesOfDesk, whatIsNoFileIsRefusedWithItsName) {
    const fs::path pipe = fs::temp_directory_path() / "pipe.dxf";
    fs::remove(pipe);
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    for (const auto& [path, word] : {std::pair{pipe, "a pipe"},
                                     {fs::path("/dev/zero"), "a device"},
                                     {fs::temp_directory_path(), "a folder"}}) {
        QString told;
        play({
            [this, name = path] { window->open(QString::fromStdString(name.string())); },
            inDialog<QMessageBox>([&](QMessageBox& box) {
                told = box.text();
                box.accept();
            }),
        });
        EXPECT_THAT(told.toStdString(), ::testing::HasSubstr(word));
    }
    fs::remove(pipe);
}

class OpeningLargeFiles : public FilesOfDesk {
protected:
    OpeningLargeFiles() {
        std::string comments;
        while (comments.size() < (std::size_t{40} << 20U)) {
            comments += "999\nnothing of note\n";
        }
        writeFile(large, comments + original);
    }
    ~OpeningLargeFiles() override { fs::remove(large); }

    Step openLarge() {
        return [this] { window->open(QString::fromStdString(large.string())); };
    }

    const fs::path large = fs::temp_directory_path() / "large.dxf";
};

TEST_F(OpeningLargeFiles, takesCommandsForAfterwards) {
    play({
        openLarge(),
        inDialog<QProgressDialog>([](QProgressDialog& dialog) {
            QTest::keyClicks(&dialog, "mline");
            QTest::keyClick(&dialog, Qt::Key_Space); // which presses no button
            QTest::keyClicks(&dialog, "0,0");
            QTest::keyClick(&dialog, Qt::Key_Return);
        }),
        until([this] { return prompt().startsWith("Next point"); }),
        [this] { EXPECT_EQ(titleOf(*window), "large.dxf"); },
        key(Qt::Key_Escape),
    });
}

TEST_F(OpeningLargeFiles, leavesTheDrawingThatIsThereWhenItIsCancelled) {
    play({
        openPlan(),
        edit(),
        openLarge(),
        answer(QMessageBox::Discard),
        inDialog<QProgressDialog>([&](QProgressDialog& dialog) {
            QTest::keyClicks(&dialog, "U"); // for a drawing that doesn't come
            QTest::keyClick(&dialog, Qt::Key_Return);
            trigger("undo")();
            trigger("new")();
            dialog.cancel();
        }),
        [this] {
            EXPECT_THAT(history().toStdString(), ::testing::HasSubstr("was cancelled."));
            EXPECT_TRUE(lastLine().endsWith("left out: 1."));
            EXPECT_EQ(titleOf(*window), "plan.dxf");
            EXPECT_TRUE(window->isWindowModified());
        },
    });
}

TEST_F(FilesOfDesk, changesAreAskedAboutBeforeTheyAreLost) {
    play({
        openPlan(),
        edit(),
        trigger("new"),
        answer(QMessageBox::Cancel),
        [this] { EXPECT_EQ(titleOf(*window), "plan.dxf"); },
        // Closing while a command asks: it waits for the answer.
        trigger("toolCC"),
        trigger("exit"),
        answer(QMessageBox::Cancel),
        [this] {
            EXPECT_TRUE(window->isVisible());
            EXPECT_EQ(canvas()->aim().kind, AimKind::entity);
        },
        trigger("exit"),
        answer(QMessageBox::Save),
        [this] { EXPECT_FALSE(window->isVisible()); },
    });
    const std::string saved = readFile(plan);
    EXPECT_NE(saved, original);

    makeWindow();
    play({
        openPlan(),
        edit(),
        trigger("new"),
        answer(QMessageBox::Discard),
        [this] {
            EXPECT_EQ(titleOf(*window), "Unnamed drawing");
            EXPECT_FALSE(window->isWindowModified());
        },
    });
    EXPECT_EQ(readFile(plan), saved);
}

TEST_F(FilesOfDesk, aFileThatSomebodyElseWroteIsNotOverwrittenUnasked) {
    const auto writeElsewhere = [this] { std::ofstream(plan, std::ios::app) << "more"; };
    play({
        openPlan(),
        edit(),
        trigger("save"),
        [this] { EXPECT_FALSE(window->isWindowModified()); },
        edit(),
        writeElsewhere,
        trigger("save"),
        answer(QMessageBox::Cancel),
        [this] {
            EXPECT_TRUE(window->isWindowModified());
            EXPECT_TRUE(QString::fromStdString(readFile(plan)).endsWith("more"));
        },
        trigger("save"),
        answer(QMessageBox::Save),
        [this] { EXPECT_FALSE(window->isWindowModified()); },
    });
    EXPECT_FALSE(QString::fromStdString(readFile(plan)).endsWith("more"));
}

TEST_F(FilesOfDesk, savingAsAndExportingAskForAFileAndTellWhatFails) {
    const fs::path copy = fs::temp_directory_path() / "copy.dxf";
    const fs::path picture = fs::temp_directory_path() / "copy.svg";
    play({
        openPlan(),
        trigger("saveAs"),
        choose(copy),
        [this] { EXPECT_EQ(titleOf(*window), "copy.dxf"); },
        [&] {
            fs::remove(copy);
            fs::create_directory(copy); // nothing can be saved there
        },
        edit(),
        trigger("save"),
        inDialog<QMessageBox>([](QMessageBox& box) { box.accept(); }),
        [&] {
            EXPECT_TRUE(window->isWindowModified());
            fs::remove(copy);
        },
        trigger("save"),
        [this] { EXPECT_FALSE(window->isWindowModified()); },
        trigger("export"),
        choose(picture),
        trigger("saveAs"),
        choose(fs::temp_directory_path() / "plan.v2"),
        [this] { EXPECT_EQ(titleOf(*window), "plan.v2.dxf"); },
    });
    EXPECT_NE(readFile(copy), original);
    EXPECT_THAT(readFile(picture), ::testing::HasSubstr("<svg"));
    EXPECT_EQ(readFile(plan), original);
}

TEST_F(FilesOfDesk, aDroppedDrawingOpensUnlessItsSourceIsGone) {
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(QString::fromStdString(plan.string()))});
    const QMimeData gone;
    const auto drop = [this, &data](const QMimeData& dropped) {
        return [this, &data, &dropped] {
            QDragEnterEvent enter({50, 50}, Qt::CopyAction, &data, Qt::LeftButton, {});
            QCoreApplication::sendEvent(window.get(), &enter);
            EXPECT_TRUE(enter.isAccepted());
            QDropEvent end({50, 50}, Qt::CopyAction, &dropped, Qt::LeftButton, {});
            QCoreApplication::sendEvent(window.get(), &end);
        };
    };
    play({
        drop(gone),
        [this] { EXPECT_EQ(titleOf(*window), "Unnamed drawing"); },
        drop(data),
        [this] { EXPECT_EQ(titleOf(*window), "plan.dxf"); },
    });
}

TEST_F(FilesOfDesk, aScriptPlaysUntilItFailsOrIsStopped) {
    const fs::path path = fs::temp_directory_path() / "walls.scr";
    const std::string walls = "MLINE\n0,0\n1000,0\n\nMLINE\n0,500\n1000,500\n\n";
    writeFile(path, walls + "MLEDIT\n" + walls);
    play({
        openPlan(),
        type("MLINE"),
        trigger("playScript"),
        [this] { EXPECT_TRUE(lastLine().endsWith("at the command prompt only.")); },
        key(Qt::Key_Escape),
        trigger("playScript"),
        choose(path),
        [&] {
            EXPECT_THAT(lastLine().toStdString(),
                        ::testing::HasSubstr(path.string() + ":9: a script can't answer"));
            EXPECT_EQ(prompt(), "Command:");
        },
        trigger("undo"),
        [this] { EXPECT_TRUE(window->isWindowModified()) << "each command is a step"; },
        trigger("undo"),
        [this] { EXPECT_FALSE(window->isWindowModified()); },
        [this] {
            auto* const player = window->findChild<PlayScript*>();
            QObject::connect(player, &PlayScript::printed, &input(), [this](const QString& line) {
                if (line.endsWith(": 1000,0")) {
                    QTest::keyClick(&input(), Qt::Key_Escape);
                }
            });
        },
        trigger("playScript"),
        choose(path),
        [this] { EXPECT_TRUE(lastLine().endsWith("stopped after line 4.")) << "what runs ends"; },
        trigger("undo"),
        [this] { EXPECT_FALSE(window->isWindowModified()); },
        type("MLSTYLE"), // dialogs are allowed again
        inDialog<QDialog>([](QDialog& dialog) { dialog.reject(); }),
    });
}

// What the dialogs of styles ask for, and where they begin.
TEST_F(FilesOfDesk, commandsChooseFilesAsTheirFlagsSay) {
    const fs::path folder = fs::temp_directory_path() / "library";
    fs::create_directory(folder);
    const QString library = QString::fromStdString((folder / "walls.mln").string());
    writeFile(library.toStdString(), "old");
    struct Case {
        int flags;
        QString start;
        bool saves;
    };
    for (const Case& each :
         {Case{3, QString::fromStdString(folder.string()) + '/', true}, Case{64, library, false}}) {
        QTimer::singleShot(0, window.get(), [&] {
            auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            EXPECT_EQ(dialog->acceptMode() == QFileDialog::AcceptSave, each.saves);
            EXPECT_EQ(dialog->directory().path(), QString::fromStdString(folder.string()));
            if (each.saves) {
                dialog->selectFile("walls"); // which exists; nobody is asked about that
            }
            QMetaObject::invokeMethod(dialog, "accept");
        });
        EXPECT_EQ(askFile(*window, {"Styles", each.start, "mln", each.flags}), library);
    }
}

TEST_F(FilesOfDesk, recentDrawingsAndThePlaceOfTheWindowAreRemembered) {
    play({
        openPlan(),
        [this] { window->resize(900, 700); },
        trigger("exit"),
    });
    makeWindow();
    EXPECT_EQ(window->size(), QSize(900, 700));
    ASSERT_EQ(recentMenu()->actions().size(), 1);
    play({
        [this] { recentMenu()->actions().front()->trigger(); },
        [this] { EXPECT_EQ(titleOf(*window), "plan.dxf"); },
    });
}

} // namespace

} // namespace orvex::testing
