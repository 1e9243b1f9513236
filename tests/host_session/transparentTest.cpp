#include "SessionFixture.h"

namespace {

// Two bars and stems that end short of them.
constexpr const char* kWalls = "MLINE\n0,0\n110,0\n\nMLINE\n10,30\n10,5\n\nMLINE\n20,30\n20,5\n\n"
                               "MLINE\n30,30\n30,5\n\nZOOM\nE\n";

struct Transparent : SessionFixture {
    std::string bytesAfter(const std::string& lines) {
        open(orvex::DrawingFile::create());
        m_printed.clear();
        EXPECT_FALSE(play(kWalls + lines)) << lines;
        EXPECT_FALSE(m_script->failure()) << lines << orvex::messageOf(*m_script->failure());
        return m_session->drawing().bytes();
    }
};

TEST_F(Transparent, takesBackToolCyclesAndStaysInTheTool) {
    const std::string first = "10,20\n10,0\n";
    const std::string second = "20,20\n20,0\n";
    const std::string third = "30,20\n30,0\n";
    const std::string tool = "-MLEDIT\nOT\n";
    const std::string none = bytesAfter("");
    const std::string one = bytesAfter(tool + first + "\n");
    const std::string two = bytesAfter(tool + first + second + "\n");
    const std::string outer = bytesAfter(tool + first + third + "\n");
    ASSERT_NE(one, two);
    struct Case {
        std::string lines;
        const std::string& result;
    };
    for (const Case& each : {
             Case{tool + first + second + "'U\n\n", one},
             Case{tool + first + second + "'u\n'U\n\n", none},
             Case{tool + first + second + "'U\n'REDO\n\n", two},
             Case{tool + first + second + "'U\n'U\n'REDO\n'REDO\n'REDO\n\n", two},
             Case{tool + first + second + "'U\n" + third + "\n", outer},
             Case{tool + first + "20,20\n'U\n" + third + "\n", outer},    // a first pick is dropped
             Case{tool + first + "20,20\n'U\n" + second + "\nU\n", none}, // one step all the same
             Case{tool + "'U\n", none},                                   // cancelled
             Case{tool + first + second + "'U\n'U\n'U\nU\nREDO\n", none},
             Case{"MLINE\n0,60\n50,60\n'U\n*CANCEL*\n", none},
             Case{"'U\nREDO\nMOVE\n'U\n" + tool + first + second + "\n", two},
         }) {
        EXPECT_EQ(bytesAfter(each.lines), each.result) << each.lines;
    }
}

TEST_F(Transparent, zoomLeavesTheQuestionAndTheLastPointAlone) {
    const std::string plain = bytesAfter("MLINE\n0,60\n@50,0\n@0,20\n\n");
    EXPECT_EQ(bytesAfter("MLINE\n0,60\n'zoom\nc\n7,8\n90\n@50,0\n'ZOOM\n\n'ZOOM\nE\n@0,20\n\n"),
              plain);
    // A pick that misses is found once the box is larger.
    const std::string missed = bytesAfter("-MLEDIT\nOT\n11,20\n10,20\n10,0\n\n");
    EXPECT_EQ(bytesAfter("-MLEDIT\nOT\n'ZOOM\nC\n0,0\n600\n11,20\n10,0\n\n"), missed);
    EXPECT_EQ(m_session->view().viewHeight(), 600.0);
    // A name may begin with an apostrophe, and there is none within a transparent command.
    open(orvex::DrawingFile::create());
    play("MLINE\nST\n'ZOOM\n");
    EXPECT_TRUE(m_script->failure());
    play("MLINE\n'ZOOM\n'U\n");
    EXPECT_TRUE(m_script->failure());
}

} // namespace
