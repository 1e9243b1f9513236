// A save is whole or not at all.

#include "ChangeLog.h"
#include "DatabaseCore.h"
#include "sampleDrawing.h"

#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <iterator>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using namespace orvex;
using namespace orvex::testing;
namespace fs = std::filesystem;

class Saving : public ::testing::Test {
protected:
    void SetUp() override {
        std::string pattern = (fs::temp_directory_path() / "saving-XXXXXX").string();
        ASSERT_NE(mkdtemp(pattern.data()), nullptr);
        folder = pattern;
        file = openDrawing(sampleDrawing());
    }
    void TearDown() override {
        fs::permissions(folder, fs::perms::owner_all);
        fs::remove_all(folder);
    }
    static std::string read(const fs::path& path) {
        std::ifstream stream(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }
    static void write(const fs::path& path, const std::string& bytes) {
        std::ofstream(path, std::ios::binary) << bytes;
    }
    [[nodiscard]] std::vector<std::string> names() const {
        std::vector<std::string> result;
        for (const auto& entry : fs::directory_iterator(folder)) {
            result.push_back(entry.path().filename().string());
        }
        std::ranges::sort(result);
        return result;
    }

    fs::path folder;
    std::unique_ptr<DrawingFile> file;
};

using ::testing::ElementsAre;

TEST_F(Saving, writesTheBytesAndKeepsTheOldFilesMode) {
    const fs::path path = folder / "plan.dxf";
    EXPECT_FALSE(file->save(path.string()));
    EXPECT_TRUE(sameText(read(path), sampleDrawing()));
    write(path, "old");
    chmod(path.c_str(), 0640);
    EXPECT_FALSE(file->save(path.string()));
    EXPECT_TRUE(sameText(read(path), sampleDrawing()));
    struct stat status {};
    stat(path.c_str(), &status);
    EXPECT_EQ(status.st_mode & 0777U, 0640U);
    EXPECT_THAT(names(), ElementsAre("plan.dxf"));
}

TEST_F(Saving, writesOverItsOwnInputAgainAndAgain) {
    const fs::path path = folder / "plan.dxf";
    write(path, sampleDrawing());
    auto opened = DrawingFile::open(path.string());
    ASSERT_TRUE(opened);
    DrawingFile& drawing = **opened;
    DatabaseCore& core = drawing.database().core();
    core.changes().beginCommand();
    core.setVariable("CMLSCALE", 3.0);
    core.changes().endCommand();
    EXPECT_FALSE(drawing.save(path.string()));
    EXPECT_TRUE(sameText(read(path), replaced(sampleDrawing(), "20.00", "3.0")));
    core.changes().beginCommand();
    core.setVariable("CMLJUST", 2);
    core.changes().endCommand();
    EXPECT_FALSE(drawing.save(path.string()));
    EXPECT_THAT(read(path), ::testing::HasSubstr("$CMLJUST"));
    core.changes().undo();
    core.changes().undo();
    EXPECT_FALSE(drawing.save(path.string()));
    EXPECT_TRUE(sameText(read(path), sampleDrawing()));
}

TEST_F(Saving, followsLinks) {
    write(folder / "plan.dxf", "old");
    fs::create_symlink("plan.dxf", folder / "link.dxf");
    fs::create_symlink("new.dxf", folder / "dangling.dxf");
    EXPECT_FALSE(file->save((folder / "link.dxf").string()));
    EXPECT_FALSE(file->save((folder / "dangling.dxf").string()));
    EXPECT_TRUE(fs::is_symlink(folder / "link.dxf"));
    EXPECT_TRUE(sameText(read(folder / "plan.dxf"), sampleDrawing()));
    EXPECT_TRUE(sameText(read(folder / "new.dxf"), sampleDrawing()));
    fs::create_symlink("ring.dxf", folder / "ring.dxf");
    EXPECT_TRUE(file->save((folder / "ring.dxf").string()));
}

TEST_F(Saving, failsWithoutATraceWhereNothingCanBeWritten) {
    EXPECT_TRUE(file->save((folder / "missing" / "plan.dxf").string()));
    EXPECT_TRUE(file->save(folder.string()));
    EXPECT_TRUE(file->save(""));
    fs::create_symlink("/dev/full", folder / "full.dxf");
    for (const std::string& full : {std::string("/dev/full"), (folder / "full.dxf").string()}) {
        const auto failure = file->save(full);
        ASSERT_TRUE(failure);
        EXPECT_EQ(failure->cause, FailureCause::unwritableOutput);
        EXPECT_EQ(messageOf(*failure), full + ": No space left on device");
    }
    fs::remove(folder / "full.dxf");
    EXPECT_FALSE(file->save("/dev/null"));
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
    if (geteuid() != 0) { // nothing is forbidden to root
        fs::permissions(folder, fs::perms::owner_read | fs::perms::owner_exec);
        EXPECT_TRUE(file->save((folder / "plan.dxf").string()));
    }
    EXPECT_TRUE(names().empty());
}

TEST_F(Saving, leavesTheOldFileWhenTheDiskIsFull) {
    const fs::path path = folder / "plan.dxf";
    write(path, "old");
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    rlimit small = before;
    small.rlim_cur = 1000;
    setrlimit(RLIMIT_FSIZE, &small);
    const auto failure = file->save(path.string());
    setrlimit(RLIMIT_FSIZE, &before);
    ASSERT_TRUE(failure);
    EXPECT_EQ(read(path), "old");
    EXPECT_THAT(names(), ElementsAre("plan.dxf"));
}

} // namespace
