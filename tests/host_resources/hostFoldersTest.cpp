#include "hostFolders.h"

#include "TestPaths.h"
#include "dataFolder.h"

#include <gmock/gmock.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace {

namespace fs = std::filesystem;

class HostFolders : public testing::Test {
protected:
    void SetUp() override {
        m_root = fs::temp_directory_path() / "orvexHostFolders";
        fs::create_directories(m_root / "Support");
        std::ofstream(m_root / "Support" / "walls.lin") << "*A,\n";
    }
    void TearDown() override {
        unsetenv("ORVEX_ROOT");
        fs::remove_all(m_root);
    }
    fs::path m_root;
};

TEST_F(HostFolders, rootIsTheDataFolderUnlessTheEnvironmentNamesAnother) {
    unsetenv("ORVEX_ROOT");
    EXPECT_EQ(orvex::rootFolder(), orvex::testing::binDir().wstring() + L"/");

    setenv("ORVEX_ROOT", (m_root.string() + "//").c_str(), 1);
    EXPECT_EQ(orvex::rootFolder(), m_root.wstring() + L"/");
    EXPECT_EQ(kddbHostApplicationServices()->rootFolder(), m_root.wstring() + L"/");
}

TEST_F(HostFolders, supportFilesAreFoundByBareName) {
    setenv("ORVEX_ROOT", m_root.c_str(), 1);
    EXPECT_EQ(orvex::findSupportFile(L"walls.lin"), m_root.wstring() + L"/Support/walls.lin");
    EXPECT_EQ(orvex::findSupportFile(L"nowhere.lin"), L"");
    EXPECT_EQ(orvex::findSupportFile(L"../Support/walls.lin"), L"");
    EXPECT_EQ(orvex::findSupportFile(L""), L"");
}

} // namespace
