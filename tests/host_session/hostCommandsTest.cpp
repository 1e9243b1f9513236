#include "SessionFixture.h"

#include "variableText.h"

namespace {

using orvex::PlanPoint;
using testing::ElementsAre;

TEST_F(SessionFixture, viewStartsAtTheExtentsBeforeTheFirstCommand) {
    play("MLINE\n0,0\n200,0\n\n");
    EXPECT_EQ(m_session->view().viewHeight(), 10.0);

    // Opened again: 200 wide, 1 below the chain; three quarters of the width count as height.
    const std::string bytes = m_session->drawing().bytes();
    auto opened = orvex::DrawingFile::openBytes(bytes);
    open(std::move(*opened));
    EXPECT_DOUBLE_EQ(m_session->view().viewHeight(), 1.1 * 0.75 * 200);
    EXPECT_EQ(m_session->view().center(), (PlanPoint{100, -0.5}));
}

TEST_F(SessionFixture, zoomTakesAPointAndAHeightOrTheExtents) {
    core().setVariable("UCSORG", KdGePoint3d{100, 0, 0});
    EXPECT_FALSE(play("zoom\nc\n5,6\n24\n"));
    EXPECT_EQ(m_session->view().center(), (PlanPoint{105, 6}));
    EXPECT_EQ(m_session->view().viewHeight(), 24);
    play("MLINE\n0,0\n200,0\n\nZOOM\nExtents\n"); // shows what is there now
    EXPECT_DOUBLE_EQ(m_session->view().viewHeight(), 1.1 * 0.75 * 200);
}

TEST_F(SessionFixture, zoomAndSetvarEndAtEmptyLinesAndCancels) {
    for (const char* script : {"ZOOM\n\n", "ZOOM\nC\n\n", "ZOOM\nC\n1,1\n*CANCEL*\n", "ZOOM\n",
                               "SETVAR\n\n", "SETVAR\nPICKBOX\n\n", "SETVAR\nPICKBOX\n"}) {
        EXPECT_FALSE(play(script)) << script;
        EXPECT_FALSE(m_script->failure()) << script;
        EXPECT_EQ(m_session->view().viewHeight(), 10.0);
        EXPECT_EQ(orvex::variableText(L"PICKBOX"), L"3");
    }
}

TEST_F(SessionFixture, answersThatCannotBeTakenEndTheScript) {
    for (const char* script :
         {"ZOOM\nC\n1,1\n0\n", "ZOOM\nC\n1,1\n-5\n", "ZOOM\nX\n", "SETVAR\nNOSUCH\n",
          "SETVAR\nPICKBOX\n1.5\n", "SETVAR\nCMLSTYLE\nNOSUCH\n", "MLINE\nST\nNOSUCH\n"}) {
        play(script);
        EXPECT_TRUE(m_script->failure()) << script;
    }
}

TEST_F(SessionFixture, setvarAsksForNameAndValueAndReachesTheView) {
    play("SETVAR\npickbox\n9\n");
    EXPECT_THAT(m_printed, ElementsAre(L"Command: SETVAR", L"Variable name: pickbox",
                                       L"New value for PICKBOX <3>: 9"));
    play("SETVAR\nVIEWSIZE\n50\nSETVAR\nVIEWCTR\n3,4\n");
    EXPECT_EQ(m_session->view().viewHeight(), 50.0);
    EXPECT_EQ(m_session->view().center(), (PlanPoint{3, 4}));
}

} // namespace
