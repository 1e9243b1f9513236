#include "AutosaveStore.h"
#include "DeskFixture.h"
#include "RecoverDialog.h"

#include <QMessageBox>
#include <QPushButton>

#include <sys/stat.h>

namespace orvex::testing {

namespace {

namespace fs = std::filesystem;

std::vector<std::string> filesIn(const fs::path& folder) {
    std::vector<std::string> names;
    for (const auto& file : fs::directory_iterator(folder)) {
        names.push_back(file.path().filename().string());
    }
    return names;
}

mode_t modeOf(const fs::path& path) {
    struct stat file {};
    return stat(path.c_str(), &file) == 0 ? file.st_mode & 07777U : 0;
}

// What a desk leaves that dies.
void leaveAutosave(const AutosavedDrawing& original, const std::string& bytes,
                   std::chrono::seconds age = {}) {
    auto entry = AutosaveEntry::make(autosaveFolder());
    ASSERT_TRUE(entry);
    EXPECT_FALSE((*entry).writeOriginal(original));
    const fs::path file = (*entry).drawingFile();
    writeFile(file, bytes);
    fs::last_write_time(file, fs::last_write_time(file) - age);
}

TEST(AutosaveStore, isTakenOverFromTheDeadAlone) {
    const fs::path folder = fs::temp_directory_path() / "state/a/b";
    {
        auto empty = AutosaveEntry::make(folder.string());
        auto living = AutosaveEntry::make(folder.string());
        ASSERT_TRUE(empty && living);
        EXPECT_EQ(modeOf(folder), 0700U);
        EXPECT_FALSE(
            (*living).writeOriginal({"/home/a\nb/\u00e4 plan.dxf", 1'700'000'000'123, 42}));
        writeFile((*living).drawingFile(), "drawing");
        EXPECT_TRUE(claimAutosaves(folder.string()).empty());
        EXPECT_EQ(filesIn(folder).size(), 4U);
    }
    EXPECT_EQ(filesIn(folder).size(), 3U);
    for (const char* const alien :
         {"notes.lock", "desk-ABCDEFGH.lock", "desk-abcdefghi.lock", "desk-abcdefgh.dxf"}) {
        writeFile(folder / alien, "mine");
    }
    fs::create_symlink("notes.lock", folder / "desk-linklink.lock");
    writeFile(folder / "desk-dieddied.lock", ""); // before it had anything to keep
    writeFile(folder / "desk-dieddied.of", "-1 0\n/x");
    auto claimed = claimAutosaves(folder.string());
    ASSERT_EQ(claimed.size(), 1U);
    EXPECT_EQ(filesIn(folder).size(), 8U);
    EXPECT_TRUE(claimAutosaves(folder.string()).empty()) << "it is held already";
    const AutosavedDrawing original = claimed[0].readOriginal();
    EXPECT_EQ(original.path, "/home/a\nb/\u00e4 plan.dxf");
    EXPECT_EQ(original.written, 1'700'000'000'123);
    EXPECT_EQ(original.size, 42);
    EXPECT_EQ(readFile(claimed[0].drawingFile()), "drawing");
    claimed[0].drop();
    claimed.clear();
    EXPECT_EQ(filesIn(folder).size(), 5U);

    const fs::path file = folder / "notes.lock";
    for (const std::string& refused : {file.string(), (file / "in").string(), std::string()}) {
        EXPECT_FALSE(AutosaveEntry::make(refused)) << refused;
    }
}

TEST(AutosaveStore, liesInTheStateFolder) {
    const std::string usual = fs::temp_directory_path().string() + "/orvex/autosave";
    EXPECT_EQ(autosaveFolder(), usual);
    setenv("XDG_STATE_HOME", "not/absolute", 1);
    setenv("HOME", "/home/somebody", 1);
    EXPECT_EQ(autosaveFolder(), "/home/somebody/.local/state/orvex/autosave");
    unsetenv("HOME");
    EXPECT_EQ(autosaveFolder(), "");
    setenv("XDG_STATE_HOME", fs::temp_directory_path().c_str(), 1);
}

class AutosaveOfDesk : public DeskFixture {
protected:
    AutosaveOfDesk() { DeskSettings().setInteger(DeskSettings::kAutosave, 1); }
    ~AutosaveOfDesk() override { DeskSettings().setInteger(DeskSettings::kAutosave, 60); }

    // Waits for an autosave, as a kill wouldn't.
    Step untilKept(std::string& bytes) {
        return until([&bytes] {
            if (!fs::exists(autosaveFolder())) {
                return false;
            }
            for (const std::string& name : filesIn(autosaveFolder())) {
                const fs::path path = fs::path(autosaveFolder()) / name;
                EXPECT_TRUE(modeOf(path) == 0600 || !fs::exists(path)) << name;
                if (path.extension() == ".dxf") {
                    bytes = readFile(path);
                }
            }
            return !bytes.empty();
        });
    }
    Step open() {
        return inDialog<RecoverDialog>(
            [](RecoverDialog& dialog) { dialog.findChild<QPushButton*>("openAutosave")->click(); });
    }
    [[nodiscard]] AutosavedDrawing ofPlan() const {
        const QFileInfo file(QString::fromStdString(plan.string()));
        return {plan.string(), file.lastModified().toMSecsSinceEpoch(), file.size()};
    }
};

TEST_F(AutosaveOfDesk, keepsWhatASaveWouldWriteUntilItIsSavedOrLeft) {
    std::string kept;
    std::string duringCommand;
    play({
        openPlan(),
        edit(),
        untilKept(kept),
        [&] { EXPECT_EQ(readFile(plan), original); },
        trigger("save"),
        [&] {
            EXPECT_EQ(kept, readFile(plan));
            EXPECT_TRUE(filesIn(autosaveFolder()).empty());
        },
        edit(),
        [this] { window->start("MLINE", {"0,5000"}); }, // goes on waiting
        untilKept(duringCommand),
        trigger("new"),
        answer(QMessageBox::Discard),
        [&] { EXPECT_TRUE(filesIn(autosaveFolder()).empty()); },
    });
    EXPECT_NE(kept, original);
    EXPECT_NE(duringCommand, kept);
}

TEST_F(AutosaveOfDesk, isOfferedAndOpensAsAnUnsavedChangeOfItsDrawing) {
    const std::string mine = original + "999\nas it was\n";
    leaveAutosave(ofPlan(), mine);
    play({
        [this] { window->offerAutosaves(); },
        inDialog<RecoverDialog>([](RecoverDialog& dialog) { dialog.reject(); }),
        [this] { EXPECT_FALSE(window->isWindowModified()); },
        trigger("recover"),
        open(),
        [this] {
            EXPECT_EQ(window->windowTitle().section('[', 0, 0), "plan.dxf");
            EXPECT_TRUE(window->isWindowModified());
            EXPECT_EQ(readFile(plan), original);
            EXPECT_EQ(filesIn(autosaveFolder()).size(), 3U);
        },
        edit(),
        trigger("undo"),
        [this] { EXPECT_TRUE(window->isWindowModified()); },
        trigger("save"),
        [&] {
            EXPECT_EQ(readFile(plan), mine);
            EXPECT_FALSE(window->isWindowModified());
            EXPECT_TRUE(filesIn(autosaveFolder()).empty());
        },
        trigger("recover"),
        [this] { EXPECT_EQ(lastLine(), "There is nothing to recover."); },
    });
}

TEST_F(AutosaveOfDesk, doesNotReplaceWithoutAWordWhatWasWrittenSince) {
    AutosavedDrawing before = ofPlan();
    before.written -= 5000;
    leaveAutosave(before, original + "999\nas it was\n", std::chrono::seconds(5));
    leaveAutosave({}, original);
    play({
        trigger("recover"),
        inDialog<RecoverDialog>([](RecoverDialog& dialog) { // the later one is the first
            dialog.findChild<QPushButton*>("discardAutosave")->click();
        }),
        answer(QMessageBox::Discard),
        open(),
        trigger("save"),
        answer(QMessageBox::Cancel),
        [this] { EXPECT_EQ(readFile(plan), original); },
    });
}

TEST_F(AutosaveOfDesk, tellsOnceThatItCanNotBeWritten) {
    const fs::path inTheWay = fs::temp_directory_path() / "inTheWay";
    writeFile(inTheWay, "");
    setenv("XDG_STATE_HOME", inTheWay.c_str(), 1);
    const auto count = [this] { return history().count("No autosave: "); };
    play({
        openPlan(),
        edit(),
        until([&] { return count() == 1; }),
        edit(),
        [] { QTest::qWait(1500); },
        [&] { EXPECT_EQ(count(), 1); },
        trigger("undo"),
        [this] { EXPECT_TRUE(window->isWindowModified()); },
    });
    setenv("XDG_STATE_HOME", fs::temp_directory_path().c_str(), 1);
}

} // namespace

} // namespace orvex::testing
