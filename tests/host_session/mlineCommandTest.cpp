#include "SessionFixture.h"

#include "KdDbMlineStyle.h"
#include "KdMLSegment.h"
#include "ObjectTable.h"
#include "PromptSession.h"
#include "WellKnownObjects.h"
#include "textCodec.h"
#include "wholeFiles.h"

#include <tuple>

namespace {

using orvex::PromptSession;
using testing::ElementsAre;

std::vector<double> lineOf(const KdDbMline& mline, int vertex, int element) {
    KdArray<void*> parameters;
    mline.getParametersAt(vertex, parameters);
    const auto& record = *static_cast<const VoVector<KdMLSegment>*>(parameters[0]);
    const VoVector<double>& line = record.at(element).m_lineParams;
    return {line.begin(), line.end()};
}

TEST_F(SessionFixture, mlineDrawsUnbrokenElementsInTheCurrentSettings) {
    play("MLINE\nJ\nZ\nS\n1.5\nST\nStandard\n0,0\n10,0\n10,10\n\n");
    ASSERT_EQ(mlines().size(), 1U);
    const KdDbMline& mline = *mlines().front();
    EXPECT_EQ(mline.numVertices(), 3);
    EXPECT_EQ(mline.scale(), 1.5);
    EXPECT_EQ(mline.justification(), 1);
    EXPECT_EQ(mline.style(), m_session->database().cmlstyle());
    EXPECT_EQ(mline.vertexAt(2), (KdGePoint3d{10, 10, 0}));
    EXPECT_THAT(lineOf(mline, 0, 0), ElementsAre(0.75, 0.0));
    EXPECT_THAT(lineOf(mline, 1, 1), ElementsAre(-1.0606601717798212, 0.0));
    EXPECT_EQ(core().variables().real("CMLSCALE"), 1.5);
    play("U\n"); // one step together with its settings
    EXPECT_EQ(mlines().size(), 0U);
    EXPECT_EQ(core().variables().real("CMLSCALE"), 1.0);
}

TEST_F(SessionFixture, mlineClosesFromTheThirdPointOn) {
    play("MLINE\n0,0\n10,0\nC\n");
    EXPECT_TRUE(m_script->failure());
    EXPECT_EQ(mlines().size(), 0U);
    play("MLINE\n0,0\n10,0\n10,10\nc\n");
    ASSERT_EQ(mlines().size(), 1U);
    EXPECT_TRUE(mlines().front()->closedMline());
    EXPECT_EQ(mlines().front()->numVertices(), 3);
}

TEST_F(SessionFixture, mlineMakesNothingOfACancelOrOfOnePoint) {
    for (const char* script : {"MLINE\n\n", "MLINE\n0,0\n\n", "MLINE\n0,0\n0,0\n\n",
                               "MLINE\n0,0\n10,0\n*CANCEL*\n", "MLINE\n0,0\n10,0\n"}) {
        EXPECT_FALSE(play(script)) << script;
        EXPECT_EQ(mlines().size(), 0U) << script;
        EXPECT_FALSE(m_script->failure()) << script;
    }
}

TEST_F(SessionFixture, mlineDropsItsLastPointsAgain) {
    play("MLINE\n7,7\nu\n*CANCEL*\n");
    EXPECT_EQ(PromptSession::current().lastPoint, KdGePoint3d());
    play("MLINE\n1,1\n2,2\nUndo\nU\n0,0\n5,5\n10,0\nU\nu\n10,0\n10,10\n");
    EXPECT_EQ(mlines().size(), 0U); // the script ends before the chain does
    play("MLINE\n0,0\n5,5\n10,0\nU\nu\n10,0\n10,10\n20,20\nU\n\n");
    ASSERT_EQ(mlines().size(), 1U);
    EXPECT_EQ(mlines().front()->numVertices(), 3);
    EXPECT_EQ(mlines().front()->vertexAt(1), (KdGePoint3d{10, 0, 0}));
    EXPECT_EQ(PromptSession::current().lastPoint, (KdGePoint3d{10, 10, 0}));
    play("MLINE\nU\n"); // nothing to drop
    EXPECT_TRUE(m_script->failure());
}

TEST_F(SessionFixture, mlineListsStylesAndRefusesWhatDrawsNothing) {
    m_printed.clear();
    EXPECT_FALSE(play("MLINE\nST\n?\n3,3\n3,3\n\n"));
    EXPECT_FALSE(m_script->failure());
    EXPECT_THAT(m_printed, testing::Contains(L"STANDARD"));
    EXPECT_THAT(m_printed.back(), testing::HasSubstr(L"warning: all points lie"));
    EXPECT_EQ(mlines().size(), 0U);
    play("MLINE\nS\n0\n0,0\n10,0\n\n");
    EXPECT_TRUE(m_script->failure());
    play("MLINE\nS\n-2\n0,0\n10,0\n\n");
    ASSERT_EQ(mlines().size(), 1U);
    EXPECT_EQ(mlines().front()->scale(), -2.0);
}

// The user's X is north, Y is west, moved to (100, 0), 7 up.
TEST_F(SessionFixture, mlineLiesInTheUserSystemAtTheLevelOfItsStart) {
    core().setVariable("UCSORG", KdGePoint3d{100, 0, 7});
    core().setVariable("UCSXDIR", KdGePoint3d{0, 1, 0});
    core().setVariable("UCSYDIR", KdGePoint3d{-1, 0, 0});
    play("MLINE\n0,0,1\n10,0,99\n\n");
    ASSERT_EQ(mlines().size(), 1U);
    EXPECT_EQ(mlines().front()->vertexAt(0), (KdGePoint3d{100, 0, 8}));
    EXPECT_EQ(mlines().front()->vertexAt(1), (KdGePoint3d{100, 10, 8}));
    EXPECT_EQ(mlines().front()->axisAt(0), (KdGeVector3d{0, 1, 0}));
}

// The drawing with styles STANDARD (2E) and WALL (2F), with another entry for STANDARD.
std::string withEntry(const std::string& entry) {
    std::string text = orvex::testing::readFile(orvex::testing::sourceDir() /
                                                "tests/host_drawing/corpus/sample.dxf");
    const std::string old = "STANDARD\n350\n2E\n";
    return text.replace(text.find(old), old.size(), entry);
}

std::size_t stylesIn(const std::string& drawing) {
    std::size_t count = 0;
    for (std::size_t at = 0; (at = drawing.find("\nMLINESTYLE\n", at)) != std::string::npos; ++at) {
        ++count;
    }
    return count;
}

TEST_F(SessionFixture, mlineFindsAStyleByItsOwnNameAndStoresItsSpelling) {
    open(std::move(*orvex::DrawingFile::openBytes(withEntry("Main\n350\n2E\n"))));
    for (const auto& [typed, stored, handle] :
         {std::tuple(L"standard", L"STANDARD", 0x2EU), std::tuple(L"main", L"STANDARD", 0x2EU),
          std::tuple(L"wall", L"WALL", 0x2FU)}) {
        play("MLINE\nST\n" + orvex::narrow(typed) + "\n0,0\n10,0\n\n");
        EXPECT_FALSE(m_script->failure());
        EXPECT_EQ(core().variables().text("CMLSTYLE"), stored);
        EXPECT_EQ(mlines().back()->style().stub(), core().objects().findHandle(handle));
    }
    EXPECT_EQ(stylesIn(m_session->drawing().bytes()), 2U);
    // Where the own name leads to another style the key is what counts.
    auto& wall = static_cast<KdDbMlineStyle&>(*core().load(*core().objects().findHandle(0x2F)));
    wall.setName(L"Main");
    EXPECT_EQ(core().wellKnown().nameOfStyle(*core().objects().findHandle(0x2F)), L"WALL");
}

TEST_F(SessionFixture, mlineHasAStandardStyleWhereTheEntryNamesNothing) {
    const std::string bytes = withEntry("Standard\n350\nFFF\n");
    open(std::move(*orvex::DrawingFile::openBytes(bytes)));
    EXPECT_EQ(m_session->drawing().bytes(), bytes);
    play("MLINE\nST\nSTANDARD\n0,0\n10,0\n\n");
    ASSERT_FALSE(m_script->failure());
    const auto& style =
        static_cast<const KdDbMlineStyle&>(*core().load(*mlines().back()->style().stub()));
    EXPECT_EQ(style.numElements(), 2);
    const std::string saved = m_session->drawing().bytes();
    EXPECT_EQ(stylesIn(saved), 3U);
    open(std::move(*orvex::DrawingFile::openBytes(saved)));
    EXPECT_NE(core().wellKnown().findStyle(L"STANDARD"), core().objects().findHandle(0x2E));
    EXPECT_EQ(core().wellKnown().findStyle(L"STANDARD"), mlines().back()->style().stub());
}

} // namespace
