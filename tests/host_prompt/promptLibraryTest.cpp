#include "promptLibrary.h"

#include "BlockList.h"
#include "DatabaseCore.h"
#include "KdDbMline.h"
#include "KdDbStub.h"
#include "PromptFixture.h"
#include "WellKnownObjects.h"
#include "commandOutput.h"
#include "kddbObjects.h"
#include "promptStatus.h"
#include "variableText.h"

#include <cwchar>

namespace {

using orvex::PromptSession;
using testing::ElementsAre;

// Finds one entity wherever the pick lies, and notes where it was asked.
class OneEntity : public orvex::EntityFinder {
public:
    KdDbStub* entityAt(const KdGePoint3d& worldPoint, int pickBoxPixels) override {
        place = worldPoint;
        pickBox = pickBoxPixels;
        return entity;
    }
    KdDbStub* entity = nullptr;
    KdGePoint3d place;
    int pickBox = -1;
};

class PromptLibrary : public PromptFixture {
protected:
    PromptLibrary() {
        orvex::DatabaseCore& core = m_database.core();
        m_stub = &core.adopt(std::make_unique<KdDbMline>(), orvex::ObjectKind::mline, nullptr);
        core.blocks().appendEntity(core.blocks().modelSpace(), *m_stub);
        kddbGetEntityName(m_entity, KdDbObjectId(m_stub));
        m_finder.entity = m_stub;
        PromptSession::current().finder = &m_finder;
    }
    int select() { return kdedEntSel(L"Pick: ", m_name, m_point); }
    static int errorNumber() { return PromptSession::current().errorNumber; }

    KdDbStub* m_stub = nullptr;
    OneEntity m_finder;
    long m_entity[2] = {0, 0};
    long m_name[2] = {1, 2};
    double m_point[3] = {7, 8, 9};
};

TEST_F(PromptLibrary, entSelWritesNameAndUserPointOfWhatWasFound) {
    m_database.core().setVariable("UCSORG", KdGePoint3d{10, 0, 0});
    PromptSession::current().pickBox = 5;
    play("1,2");
    EXPECT_EQ(select(), kPromptNormal);
    EXPECT_EQ(m_name[0], m_entity[0]);
    EXPECT_THAT(m_point, ElementsAre(1, 2, 0));
    EXPECT_EQ(m_finder.place, (KdGePoint3d{11, 2, 0}));
    EXPECT_EQ(m_finder.pickBox, 5);
}

TEST_F(PromptLibrary, entSelTakesAnEntityByItsHandleWhateverLiesThere) {
    const std::uint64_t style = m_database.core().wellKnown().findStyle(L"STANDARD")->handle;
    const auto selectByHandle = [this](std::uint64_t handle) {
        char line[64];
        std::snprintf(line, sizeof line, "1,1 #%lx", static_cast<unsigned long>(handle));
        play(line);
        return select();
    };
    m_finder.entity = nullptr;
    EXPECT_EQ(selectByHandle(m_stub->handle), kPromptNormal);
    EXPECT_EQ(m_name[0], m_entity[0]);

    m_finder.entity = m_stub;
    m_database.core().erase(*m_stub);
    for (const std::uint64_t handle :
         {std::uint64_t{0}, std::uint64_t{0xFFFFFF}, style, m_stub->handle}) {
        m_name[0] = 1;
        m_point[0] = 7;
        EXPECT_EQ(selectByHandle(handle), kPromptError) << handle;
        EXPECT_EQ(errorNumber(), 7);
        EXPECT_FALSE(m_script->failure());
        EXPECT_EQ(m_name[0], 1); // nothing is written
        EXPECT_EQ(m_point[0], 7);
    }
}

TEST_F(PromptLibrary, keywordsLiveForOnePromptAndAreSpeltAsInTheirList) {
    play("undo\nst\n\nundo");
    wchar_t keyword[kPromptTextSize] = L"before";
    kdedInitGet(0, L"UNDO Next");
    EXPECT_EQ(select(), kPromptKeyword);
    kdedGetInput(keyword);
    EXPECT_STREQ(keyword, L"UNDO");
    kdedInitGet(0, L"Scale STyle");
    EXPECT_EQ(kdedGetKword(L"Which?", keyword), kPromptNormal);
    EXPECT_STREQ(keyword, L"STyle");
    EXPECT_EQ(kdedGetKword(L"", keyword), kPromptNone);
    EXPECT_EQ(kdedGetKword(nullptr, keyword), kPromptCancelled); // no list: nothing fits
    EXPECT_STREQ(keyword, L"STyle");
    EXPECT_TRUE(m_script->failure());
    kdedGetInput(keyword);
    EXPECT_STREQ(keyword, L"");
}

TEST_F(PromptLibrary, valuesAreWrittenOnlyWithTheStatusNormal) {
    play("2.5\n\n3,4\na text\n");
    double value = 1;
    EXPECT_EQ(kdedGetReal(L"", &value), kPromptNormal);
    EXPECT_EQ(kdedGetReal(L"", &value), kPromptNone);
    EXPECT_EQ(value, 2.5);
    EXPECT_EQ(kdedGetPoint(nullptr, L"", m_point), kPromptNormal);
    EXPECT_THAT(m_point, ElementsAre(3, 4, 0));
    wchar_t text[kPromptTextSize] = L"";
    EXPECT_EQ(kdedGetString(L"", text), kPromptNormal);
    EXPECT_STREQ(text, L"a text");
    EXPECT_EQ(kdedGetString(L"", text), kPromptCancelled);
    EXPECT_STREQ(text, L"a text");
}

TEST_F(PromptLibrary, theLastPointGivenIsKeptInTheWorldAndReadInTheUsersSystem) {
    m_database.core().setVariable("UCSORG", KdGePoint3d{10, 0, 0});
    EXPECT_EQ(PromptSession::current().lastPoint, KdGePoint3d());
    play("3,4\n\n5,6\n");
    EXPECT_EQ(kdedGetPoint(nullptr, L"", m_point), kPromptNormal);
    EXPECT_EQ(kdedGetPoint(nullptr, L"", m_point), kPromptNone);
    EXPECT_EQ(select(), kPromptNormal); // a pick is no point
    EXPECT_EQ(PromptSession::current().lastPoint, (KdGePoint3d{13, 4, 0}));
    EXPECT_EQ(orvex::variableText(L"LASTPOINT"), L"3,4,0");
    EXPECT_FALSE(orvex::setVariableText(L"LASTPOINT", L"1,2"));
    EXPECT_EQ(PromptSession::current().lastPoint, (KdGePoint3d{11, 2, 0}));
}

TEST_F(PromptLibrary, cutsTextsThatAreTooLongAndCancelsWithoutASource) {
    play(std::string(5000, 'x'));
    std::vector<wchar_t> text(kPromptTextSize + 1, L'#');
    EXPECT_EQ(kdedGetString(L"", text.data()), kPromptNormal);
    EXPECT_EQ(std::wcslen(text.data()), 2048U);
    EXPECT_EQ(text.back(), L'#');
    PromptSession::current().source = nullptr;
    EXPECT_EQ(select(), kPromptCancelled);
}

TEST_F(PromptLibrary, theCommandLineShowsPromptsWithAnswersAndTextsLineByLine) {
    play("1,2 #0\n\n*CANCEL*");
    EXPECT_EQ(select(), kPromptError);
    EXPECT_EQ(errorNumber(), 7);
    EXPECT_EQ(select(), kPromptNone);
    EXPECT_EQ(errorNumber(), 0) << "each prompt starts anew";
    kdutPrintf(L"\n%ls of %d\n\nand 100 %%\n", L"50 %s", 3);
    EXPECT_EQ(select(), kPromptCancelled);
    EXPECT_THAT(m_printed, ElementsAre(L"Pick: 1,2 #0", L"Pick: ", L"50 %s of 3", L"and 100 %",
                                       L"Pick: *CANCEL*"));
}

} // namespace
