#include "KdEdCommandStack.h"
#include "KdRxDictionary.h"
#include "KdRxDynamicLinker.h"
#include "ModuleLoader.h"
#include "PromptSession.h"
#include "ScriptSource.h"
#include "TestPaths.h"
#include "kdrxRegistry.h"
#include "moduleEntry.h"
#include "resourceLibrary.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

#include <dlfcn.h>

namespace {

namespace fs = std::filesystem;
using orvex::ModuleLoader;

constexpr const wchar_t* kNames[] = {L"MLSTYLE", L"MLEDIT", L"-MLEDIT"};

KdEdCommandStack& commands() {
    return *KdEdCommandStack::cast(kdrxSysRegistry()->at(L"RVEX_REGISTERED_COMMANDS"));
}

std::string moduleFile() {
    return (orvex::testing::binDir() / "libOmxMLStyle.omx").string();
}

// Openings that are left; all are released.
int releaseAll(HINSTANCE library) {
    int count = 0;
    while (AfxFreeLibrary(library) != 0) {
        ++count;
    }
    return count;
}

TEST(Loading, registersServiceAndCommandsTillTheUnloadMessage) {
    {
        ModuleLoader loader;
        ASSERT_EQ(loader.load(moduleFile()), std::nullopt);
        EXPECT_TRUE(kdrxServiceIsRegistered(L"VoMLStyleApps"));
        for (const wchar_t* name : kNames) {
            const KdEdCommand* const command = commands().lookUp(name);
            ASSERT_NE(command, nullptr);
            EXPECT_EQ(command->group, L"ORVEX_VOMLSTYLEGROUP");
            EXPECT_EQ(command->localName, name); // the English text
            EXPECT_EQ(command->flags, 2);
        }
    }
    EXPECT_FALSE(kdrxServiceIsRegistered(L"VoMLStyleApps"));
    EXPECT_TRUE(commands().commands().empty());
}

TEST(Loading, otherMessagesChangeNothing) {
    ModuleLoader loader;
    ASSERT_EQ(loader.load(moduleFile()), std::nullopt);
    for (const int message : {0, 3, 14, 99, -1}) {
        EXPECT_EQ(loader.send(moduleFile(), message), 0);
    }
    EXPECT_EQ(commands().commands().size(), 3U);
    EXPECT_TRUE(kdrxServiceIsRegistered(L"VoMLStyleApps"));
}

TEST(Loading, keepsAServiceThatExistsAndReplacesCommands) {
    KdRxObject* const service = kdrxRegisterService(L"VoMLStyleApps");
    ModuleLoader loader;
    ASSERT_EQ(loader.load(moduleFile()), std::nullopt);
    EXPECT_EQ(loader.send(moduleFile(), kMessageLoad), 0);
    auto* const services = KdRxDictionary::cast(kdrxSysRegistry()->at(L"ServiceDictionary"));
    EXPECT_EQ(services->at(L"VoMLStyleApps"), service);
    EXPECT_EQ(commands().commands().size(), 3U);
}

TEST(Loading, failsWithoutTextsAndLeavesNoCommand) {
    const fs::path folder = fs::temp_directory_path() / "moduleWithoutTexts";
    fs::create_directories(folder);
    const fs::path copy = folder / "libOmxMLStyle.omx";
    fs::copy_file(moduleFile(), copy, fs::copy_options::overwrite_existing);
    // The library beside the module is found first, and isn't one.
    std::ofstream(folder / "OmxMLStyleRes.dll") << "nothing";

    ModuleLoader loader;
    EXPECT_THAT(loader.load(copy.string()).value_or(""), testing::HasSubstr(copy.string()));
    EXPECT_TRUE(commands().commands().empty());
    EXPECT_FALSE(kdrxServiceIsRegistered(L"VoMLStyleApps"));
    fs::remove_all(folder);
}

TEST(Loading, apiVersionIsOneForAnyArgument) {
    void* const library = dlopen(moduleFile().c_str(), RTLD_NOW | RTLD_LOCAL);
    ASSERT_NE(library, nullptr);
    const auto version = reinterpret_cast<int (*)(int)>(dlsym(library, "kdrxGetApiVersion"));
    EXPECT_EQ(version(0), 1);
    EXPECT_EQ(version(-77), 1);
    dlclose(library);
}

class EditCommand : public testing::Test {
protected:
    EditCommand() {
        orvex::PromptSession::current().source = &m_script;
        EXPECT_EQ(m_loader.load(moduleFile()), std::nullopt);
        m_texts = loadResourceDll(L"OmxMLStyleRes.dll");
        AfxFreeLibrary(m_texts); // known by its handle, not held
    }
    ~EditCommand() override {
        orvex::PromptSession::current().source = nullptr;
        AfxSetResourceHandle(nullptr);
        releaseAll(m_texts);
    }
    void run(const char* script) {
        m_printed.clear();
        m_script = orvex::ScriptSource(script, printer());
        commands().lookUp(L"-MLEDIT")->function();
    }
    orvex::ScriptSource::Printer printer() {
        return [this](const std::wstring& line) { m_printed.push_back(line); };
    }
    std::vector<std::wstring> m_printed;
    orvex::ScriptSource m_script{"", printer()};
    ModuleLoader m_loader;
    HINSTANCE m_texts = nullptr;
};

TEST_F(EditCommand, restoresTheResourceHandleAndReleasesItsOpening) {
    releaseAll(m_texts);
    for (const char* script : {"", "\n", "wa\n"}) {
        AfxSetResourceHandle(reinterpret_cast<HINSTANCE>(this));
        run(script);
        EXPECT_EQ(AfxGetResourceHandle(), reinterpret_cast<HINSTANCE>(this));
        EXPECT_EQ(releaseAll(m_texts), 0);
    }
}

TEST_F(EditCommand, runsTheToolOfItsKeywordWithItsOwnPrompts) {
    run("wa\n");
    ASSERT_EQ(m_printed.size(), 2U);
    EXPECT_THAT(m_printed[0], testing::EndsWith(L" wa"));
    EXPECT_THAT(m_printed[1], testing::EndsWith(L" *CANCEL*"));
    const std::wstring weld = m_printed[1];
    run("CA\n");
    EXPECT_EQ(m_printed[1], weld); // cut all asks as weld all does
    run("CC\n");
    EXPECT_NE(m_printed[1], weld);
}

TEST_F(EditCommand, runsNoToolWithoutAKeyword) {
    run("*CANCEL*\n");
    EXPECT_EQ(m_printed.size(), 1U);
    run("\n");
    EXPECT_EQ(m_printed.size(), 1U);
}

TEST_F(EditCommand, offersEachToolAndOnlyThose) {
    for (const char* keyword :
         {"CC", "OC", "MC", "CT", "OT", "MT", "CJ", "AV", "DV", "CS", "CA", "WA"}) {
        run(keyword);
        EXPECT_EQ(m_printed.size(), 2U) << keyword;
    }
    run("ZZ");
    EXPECT_EQ(m_printed.size(), 1U);
    EXPECT_TRUE(m_script.failure());
}

} // namespace
