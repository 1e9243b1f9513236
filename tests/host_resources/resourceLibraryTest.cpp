#include "resourceLibrary.h"

#include "CStdStr.h"
#include "ResourceLibraries.h"
#include "resourceSearch.h"
#include "userLanguage.h"

#include <QFile>
#include <QResource>

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

namespace {

constexpr const wchar_t* kName = L"hostResourcesTest.dll";

// Every test leaves no current library.
class ResourceLibrary : public testing::Test {
protected:
    void TearDown() override { AfxSetResourceHandle(nullptr); }

    static std::wstring load(HINSTANCE library, unsigned number, int size = 64) {
        std::vector<wchar_t> buffer(64, L'#');
        const int length = LoadStringW(library, number, buffer.data(), size);
        std::wstring text = buffer.data();
        EXPECT_EQ(static_cast<std::size_t>(length), text.size());
        return text;
    }
};

TEST_F(ResourceLibrary, isFoundBesideTheCallerAndHasOneHandle) {
    const HINSTANCE first = loadResourceDll(kName);
    const HINSTANCE second = loadResourceDll(kName);
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(first, second);
    EXPECT_EQ(load(first, 7), L"Pick a wall: 100 % of it");
    EXPECT_EQ(load(first, 8), L"Zwei W\u00F6rter");
    EXPECT_TRUE(QFile::exists(":/picture.bin"));

    EXPECT_NE(AfxFreeLibrary(first), 0);
    EXPECT_EQ(load(second, 7), L"Pick a wall: 100 % of it");
    EXPECT_NE(AfxFreeLibrary(second), 0);
    EXPECT_EQ(load(second, 7), L"");
    EXPECT_FALSE(QFile::exists(":/picture.bin"));
    EXPECT_EQ(AfxFreeLibrary(second), 0);
}

TEST_F(ResourceLibrary, cutsAndTerminatesTextsAndClearsTheBufferOfAMissingOne) {
    const HINSTANCE library = loadResourceDll(kName);
    EXPECT_EQ(load(library, 7, 5), L"Pick");
    EXPECT_EQ(load(library, 7, 1), L"");
    EXPECT_EQ(load(library, 9), L"");
    EXPECT_EQ(load(library, 12345), L"");
    AfxFreeLibrary(library);
}

TEST_F(ResourceLibrary, standsForANullHandleWhileItIsCurrent) {
    const HINSTANCE library = loadResourceDll(kName);
    EXPECT_EQ(load(nullptr, 7), L"");
    AfxSetResourceHandle(library);
    EXPECT_EQ(load(nullptr, 8), L"Zwei W\u00F6rter");

    CStdStr<wchar_t> text(L"before");
    EXPECT_TRUE(text.LoadStringW(8U));
    EXPECT_EQ(text, L"Zwei W\u00F6rter");
    EXPECT_FALSE(text.LoadStringW(library, 12345));
    EXPECT_TRUE(text.IsEmpty());

    AfxFreeLibrary(library);
    EXPECT_EQ(AfxGetResourceHandle(), library);
    EXPECT_EQ(load(nullptr, 8), L"");
}

TEST_F(ResourceLibrary, isNullWhenItIsMissingOrNoLibrary) {
    EXPECT_EQ(loadResourceDll(nullptr), nullptr);
    EXPECT_EQ(loadResourceDll(L"nowhere.dll"), nullptr);
    EXPECT_EQ(loadResourceDll(L"../tests/hostResourcesTest.dll"), nullptr);
    EXPECT_EQ(AfxFreeLibrary(nullptr), 0);

    const auto broken = std::filesystem::temp_directory_path() / "orvexBroken.dll";
    std::ofstream(broken) << "not a resource file";
    EXPECT_EQ(orvex::ResourceLibraries::instance().open(broken.string()), nullptr);
    std::filesystem::remove(broken);
}

TEST(ResourceFolders, putTheLanguageBeforeThePlainFolder) {
    // A program that says nothing is an English one, wherever it runs.
    setenv("LANG", "de_DE.UTF-8", 1);
    EXPECT_EQ(orvex::resourceFolders("/some/module").front(), "/some/module");

    orvex::setUserLanguage("de_AT");
    const auto folders = orvex::resourceFolders("/some/module");
    ASSERT_GE(folders.size(), 3U);
    EXPECT_EQ(folders[0], "/some/module/de_AT");
    EXPECT_EQ(folders[1], "/some/module/de");
    EXPECT_EQ(folders[2], "/some/module");
    orvex::setUserLanguage({});
}

TEST(HostText, isTheDefaultWhereTheHostHasNone) {
    EXPECT_STREQ(velaManagerResourceString(987654, L"default"), L"default");
    EXPECT_STREQ(velaManagerResourceString(987654, nullptr), L"");
}

} // namespace
