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

namespace {

namespace fs = std::filesystem;
using orvex::ModuleLoader;

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

TEST(Loading, registersServiceAndCommandsUntilTheUnloadMessage) {
    // A service that exists is kept, and commands are replaced.
    KdRxObject* const service = kdrxRegisterService(L"VoMLStyleApps");
    {
        ModuleLoader loader;
        ASSERT_FALSE(loader.load(moduleFile()));
        for (const int message : {static_cast<int>(kMessageLoad), 0, 3, 14, 99, -1}) {
            EXPECT_EQ(loader.send(moduleFile(), message), 0);
        }
        auto* const services = KdRxDictionary::cast(kdrxSysRegistry()->at(L"ServiceDictionary"));
        EXPECT_EQ(services->at(L"VoMLStyleApps"), service);
        EXPECT_EQ(commands().commands().size(), 3U);
        for (const wchar_t* name : {L"MLSTYLE", L"MLEDIT", L"-MLEDIT"}) {
            const KdEdCommand* const command = commands().lookUp(name);
            ASSERT_NE(command, nullptr);
            EXPECT_EQ(command->group, L"ORVEX_VOMLSTYLEGROUP");
            EXPECT_EQ(command->localName, name); // the English text
            EXPECT_EQ(command->flags, 2);
        }
    }
    EXPECT_FALSE(kdrxServiceIsRegistered(L"VoMLStyleApps"));
    EXPECT_TRUE(commands().commands().empty());
    ModuleLoader again;
    ASSERT_FALSE(again.load(moduleFile()));
    EXPECT_TRUE(kdrxServiceIsRegistered(L"VoMLStyleApps"));
}

class EditCommand : public testing::Test {
protected:
    EditCommand() {
        orvex::PromptSession::current().source = &m_script;
        EXPECT_FALSE(m_loader.load(moduleFile()));
        m_texts = loadResourceDll(L"OmxMLStyleRes.dll");
        releaseAll(m_texts); // known by its handle, not held
    }
    ~EditCommand() override {
        orvex::PromptSession::current().source = nullptr;
        AfxSetResourceHandle(nullptr);
    }
    // What is printed. The command leaves the texts as they were, and releases its own.
    std::vector<std::wstring> run(const std::string& script) {
        std::vector<std::wstring> printed;
        m_script =
            orvex::ScriptSource(script, [&](const std::wstring& line) { printed.push_back(line); });
        auto* const before = reinterpret_cast<HINSTANCE>(this);
        AfxSetResourceHandle(before);
        commands().lookUp(L"-MLEDIT")->function();
        EXPECT_EQ(AfxGetResourceHandle(), before);
        EXPECT_EQ(releaseAll(m_texts), 0) << script;
        return printed;
    }
    orvex::ScriptSource m_script{"", [](const std::wstring&) {}};
    ModuleLoader m_loader;
    HINSTANCE m_texts = nullptr;
};

TEST_F(EditCommand, offersEachToolWithItsOwnPrompts) {
    for (const char* keyword :
         {"CC", "OC", "MC", "CT", "OT", "MT", "CJ", "AV", "DV", "CS", "CA", "wa"}) {
        const auto printed = run(keyword);
        ASSERT_EQ(printed.size(), 2U) << keyword;
        EXPECT_THAT(printed[0], testing::EndsWith(L' ' + fs::path(keyword).wstring()));
        EXPECT_THAT(printed[1], testing::EndsWith(L" *CANCEL*"));
    }
    EXPECT_EQ(run("CA")[1], run("WA")[1]); // cut all asks as weld all does
    EXPECT_NE(run("CA")[1], run("CC")[1]);
}

TEST_F(EditCommand, runsNoToolWithoutAKeyword) {
    for (const char* answer : {"*CANCEL*\n", "\n", "ZZ"}) {
        EXPECT_EQ(run(answer).size(), 1U) << answer;
    }
}

} // namespace
