#include "LinetypeFile.h"
#include "ChangeLog.h"
#include "DatabaseCore.h"
#include "KdDbDatabase.h"
#include "KdDbLinetypeTable.h"
#include "WellKnownObjects.h"
#include "kddbObjects.h"
#include "supportFiles.h"
#include "textCodec.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>

namespace {

constexpr const char* kFile = "\xEF\xBB\xBF;; line types\r\n"
                              "\r\n"
                              "*DASHED,Dashed __ __ __\r\n"
                              "A, .5 ,-.25\r\n"
                              "*Divide , two dots, then a dash\n"
                              ";; a comment in between\n"
                              "a,+0.5,-0.25,0,-0.25,0,-0.25\n"
                              "*GAS,Gas line\n"
                              "A,.5,-.2,[\"G,A]S\",STANDARD,S=.1,X=-0.1],-.25\n"
                              "*SOLID\n"
                              "A\n"
                              "*BROKEN,no number\n"
                              "A,.5,x\n"
                              "*UNALIGNED,what is B\n"
                              "B,.5\n"
                              "*HUGE,too much\n"
                              "A,1e999\n"
                              "*H\xC3\xB6lzern,umlaut\n"
                              "A,1,-1\n"
                              "*DASHED,a later one of the name\n"
                              "A,9\n"
                              "*LAST,nothing follows";

TEST(LinetypeFile, findsEntriesByName) {
    const struct {
        const wchar_t* wanted;
        const wchar_t* name;
        const wchar_t* description;
        std::vector<double> dashes;
    } cases[] = {
        {L"dashed", L"DASHED", L"Dashed __ __ __", {0.5, -0.25}},
        {L"DIVIDE", L"Divide", L"two dots, then a dash", {0.5, -0.25, 0.0, -0.25, 0.0, -0.25}},
        {L"gas", L"GAS", L"Gas line", {0.5, -0.2, -0.25}},
        {L"SOLID", L"SOLID", L"", {}},
        {L"H\u00D6LZERN", L"H\u00F6lzern", L"umlaut", {1.0, -1.0}},
    };
    for (const auto& each : cases) {
        const auto found = orvex::findLinetypeDefinition(kFile, each.wanted);
        ASSERT_TRUE(found.has_value()) << orvex::narrow(each.wanted);
        EXPECT_EQ(found->name, each.name);
        EXPECT_EQ(found->description, each.description);
        EXPECT_EQ(found->dashes, each.dashes);
    }
}

TEST(LinetypeFile, whatCantBeReadIsMissing) {
    for (const wchar_t* const name : {L"BROKEN", L"UNALIGNED", L"HUGE", L"LAST", L"", L"DASH"}) {
        EXPECT_FALSE(orvex::findLinetypeDefinition(kFile, name).has_value()) << orvex::narrow(name);
    }
    EXPECT_FALSE(orvex::findLinetypeDefinition("", L"A").has_value());
}

class LoadingLinetypes : public ::testing::Test {
protected:
    LoadingLinetypes() {
        m_path = std::filesystem::path(::testing::TempDir()) / "loadingLinetypes.lin";
        std::ofstream(m_path, std::ios::binary) << kFile;
        m_before = orvex::setSupportFileFinder([this](const std::wstring& name) {
            return name == L"test.lin" ? m_path.wstring() : std::wstring();
        });
    }
    ~LoadingLinetypes() override {
        orvex::setSupportFileFinder(m_before);
        std::filesystem::remove(m_path);
    }

    KdDbObjectId load(const wchar_t* file, const wchar_t* name) {
        KdDbObjectId id = m_database.linetypeTableId();
        kddbLoadLinetypeFromFile(file, name, id, &m_database, 1);
        return id;
    }

    std::filesystem::path m_path;
    orvex::SupportFileFinder m_before;
    KdDbDatabase m_database;
};

TEST_F(LoadingLinetypes, addsTheRecordOnceAndOnlyWhenThereIsOne) {
    orvex::DatabaseCore& core = m_database.core();
    core.changes().beginCommand();
    const KdDbObjectId id = load(L"test.lin", L"dashed");
    ASSERT_TRUE(id.isValid());
    EXPECT_EQ(load(L"test.lin", L"DASHED"), id);
    ASSERT_TRUE(core.changes().endCommand());
    KdDbLinetypeTableRecord* record = nullptr;
    ASSERT_EQ(kddbOpenObject(record, id, kForRead), Status::done);
    EXPECT_EQ(record->name(), L"DASHED");
    EXPECT_EQ(record->dashes(), (std::vector{0.5, -0.25}));
    EXPECT_EQ(core.wellKnown().findLinetype(L"Dashed"), id.stub());
    core.changes().undo();
    EXPECT_EQ(core.wellKnown().findLinetype(L"Dashed"), nullptr);
    EXPECT_TRUE(load(L"test.lin", L"dashed").isValid());
    EXPECT_TRUE(load(L"other.lin", L"GAS").isNull());
    EXPECT_TRUE(load(nullptr, L"GAS").isNull());
    EXPECT_TRUE(load(L"test.lin", nullptr).isNull());
}

} // namespace
