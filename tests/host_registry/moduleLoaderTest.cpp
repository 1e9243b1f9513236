#include "ModuleLoader.h"

#include "KdEdCommandStack.h"
#include "KdRxDictionary.h"
#include "TestPaths.h"
#include "kdrxRegistry.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace {

namespace fs = std::filesystem;
using orvex::ModuleLoader;

KdEdCommandStack& commands() {
    return *KdEdCommandStack::cast(kdrxSysRegistry()->at(L"RVEX_REGISTERED_COMMANDS"));
}

class Loader : public testing::Test {
protected:
    void SetUp() override {
        m_log = fs::temp_directory_path() / "orvexModuleLog";
        fs::remove(m_log);
        setenv("ORVEX_TEST_LOG", m_log.c_str(), 1);
    }
    void TearDown() override {
        unsetenv("ORVEX_TEST_FAIL");
        fs::remove(m_log);
    }
    [[nodiscard]] std::string told() const {
        std::string line;
        std::ifstream stream(m_log);
        std::getline(stream, line);
        return line;
    }
    static std::string file(const std::string& name) {
        return (orvex::testing::binDir().parent_path() / "tests" / name).string();
    }
    fs::path m_log;
    const std::string m_module = file("tellingModule.omx");
};

TEST_F(Loader, callsTheEntriesInOrderAndClosesTheFileAtItsEnd) {
    {
        ModuleLoader loader;
        EXPECT_FALSE(loader.load(m_module));
        EXPECT_FALSE(loader.load(m_module));
        ASSERT_NE(commands().lookUp(L"tell"), nullptr);
        commands().lookUp(L"tell")->function();
        EXPECT_EQ(loader.send(m_module, 14), 0);
    }
    EXPECT_EQ(told(), "constructed attach message1 command message14 message2 detach destroyed ");
    EXPECT_EQ(commands().lookUp(L"TELL"), nullptr);
}

TEST_F(Loader, owesNoUnloadMessageToAModuleThatFailsToLoad) {
    setenv("ORVEX_TEST_FAIL", "1", 1);
    {
        ModuleLoader loader;
        const auto failure = loader.load(m_module);
        ASSERT_TRUE(failure);
        EXPECT_EQ(failure->cause, orvex::FailureCause::unloadableModule);
        EXPECT_EQ(failure->file, m_module);
        EXPECT_FALSE(loader.isLoaded(m_module));
        EXPECT_EQ(loader.send(m_module, 2), std::nullopt);
    }
    EXPECT_EQ(told(), "constructed attach message1 detach destroyed ");
    EXPECT_EQ(commands().lookUp(L"TELL"), nullptr);
}

TEST_F(Loader, unloadsNothingWhileACommandRuns) {
    ModuleLoader loader;
    ASSERT_FALSE(loader.load(m_module));
    {
        const ModuleLoader::Use use(loader);
        EXPECT_FALSE(loader.unloadAll());
        EXPECT_TRUE(loader.isLoaded(m_module));
    }
    EXPECT_TRUE(loader.unloadAll());
    EXPECT_FALSE(loader.isLoaded(m_module));
}

TEST_F(Loader, refusesWhatIsNoModule) {
    ModuleLoader loader;
    EXPECT_TRUE(loader.load(file("noModule.omx")));
    EXPECT_TRUE(loader.load(file("nowhere.omx")));
    EXPECT_TRUE(loader.load(fs::temp_directory_path().string()));
    EXPECT_EQ(told(), "");
}

TEST_F(Loader, refusesAModuleThatIsCutShortAnywhere) {
    const fs::path part = fs::temp_directory_path() / "part.omx";
    const auto whole = fs::file_size(m_module);
    for (unsigned eighths = 0; eighths < 8; ++eighths) {
        fs::copy_file(m_module, part, fs::copy_options::overwrite_existing);
        fs::resize_file(part, whole * eighths / 8);
        EXPECT_TRUE(ModuleLoader().load(part.string())) << eighths << " eighths";
    }
    fs::copy_file(m_module, part, fs::copy_options::overwrite_existing);
    fs::resize_file(part, whole - 1);
    EXPECT_TRUE(ModuleLoader().load(part.string())) << "all but a byte";
    EXPECT_EQ(told(), "");
}

} // namespace
