// Crosses, tees and corners on paper. The first runs along x, element 0 at y = 1 and element 1 at
// y = -1; the second runs up, element 0 to the left.

#include "ToolWorld.h"

#include <iterator>

using namespace mledit;

namespace {

class JointTools : public orvex::testing::ToolWorld {
protected:
    struct Row {
        const char* name;
        Tool tool;
        std::string first, firstPick;
        std::string second, secondPick;      // no second: both picks are on the first
        std::string firstAfter, secondAfter; // empty: nothing changes
        std::string end = "undo";            // what the cycle leaves: an offer or a message
    };
    static std::vector<double> offsetsOf(const std::string& text) {
        std::istringstream in(text.substr(text.find(':') + 1));
        return {std::istream_iterator<double>(in), {}};
    }
    void expectAll(const std::vector<Row>& rows) {
        for (const Row& row : rows) {
            SCOPED_TRACE(row.name);
            setStyle(offsetsOf(row.first));
            KdDbMline* const first = add(row.first);
            KdDbMline* const second = row.second.empty() ? first : add(row.second);
            const std::string firstBefore = drawn(first);
            const std::string secondBefore = drawn(second);
            play(row.tool,
                 {pickAt(first, row.firstPick), pickAt(second, row.secondPick), cancel()});
            EXPECT_EQ(drawn(first), row.firstAfter.empty() ? firstBefore : row.firstAfter);
            if (second != first) {
                EXPECT_EQ(drawn(second), row.secondAfter.empty() ? secondBefore : row.secondAfter);
            }
            std::string end = isUndoOffered() ? "undo" : "";
            for (const std::wstring& line : user.lines) {
                end.append(line.begin(), line.end());
            }
            EXPECT_EQ(end, row.end);
            EXPECT_EQ(display.events.size(), end == "undo" ? 1U : 0U) << "a refresh if anything";
            first->erase();
            second->erase();
        }
    }
};

TEST_F(JointTools, crossesOpenTheLinesOfTheirKind) {
    const std::string two = "0,0 10,0 : 1 -1";
    const std::string three = "0,0 10,0 : 1 0 -1";
    const std::string upTwo = "5,-5 5,5 : 1 -1";
    const std::string upThree = "5,-5 5,5 : 1 0 -1";
    const std::string upOne = "5,-5 5,5 : 0";
    const std::string opened = "0,0 (1 0 4 6 | -1 0 4 6) 10,0";
    const std::string upOpened = "5,-5 (1 0 4 6 | -1 0 4 6) 5,5";
    expectAll({
        {"closed", closedCross, two, "1,1", upTwo, "4,3", opened, ""},
        {"open", openCross, "0,0 10,0 : 1 0 -2", "1,1", "5,-5 5,5 : 2 0 -1", "3,3",
         "0,0 (1 0 3 6 | 0 0 3 6 | -2 0 3 6) 10,0", "5,-5 (2 0 3 6 | 0 0 | -1 0 3 6) 5,5"},
        {"merged: middle lines run through", mergedCross, three, "1,1", upThree, "4,3",
         "0,0 (1 0 4 6 | 0 0 | -1 0 4 6) 10,0", "5,-5 (1 0 4 6 | 0 0 | -1 0 4 6) 5,5"},
        {"merged: rings, as far as the other has one", mergedCross, "0,0 10,0 : 2 1 0 -1 -2", "1,2",
         "5,-5 5,5 : 2 1 -1 -2", "3,3",
         "0,0 (2 0 3 7 | 1 0 4 6 | 0 0 4 6 | -1 0 4 6 | -2 0 3 7) 10,0",
         "5,-5 (2 0 3 7 | 1 0 4 6 | -1 0 4 6 | -2 0 3 7) 5,5"},
        {"in plan alone they cross", mergedCross, two, "1,1", "5,-5,2 5,5,2 : 1 -1", "4,3", "", ""},
        {"two picks on one segment", mergedCross, two, "1,1", "", "8,1", "", "", ""},
        // Neither picked segment crosses the other. Of all pairs, produced ones too, the distances
        // from (10, 4) and (6, 22) sum up to least at (6, 20).
        {"away from the picks", closedCross, "0,0 10,0 10,20 0,20 : 1 -1", "9,4",
         "4,-5 4,5 7,10 6,15 6,25 : 1 -1", "5,22",
         "0,0 (1 0 | -1 0) 10,0 (1.414213562 0 | -1.414213562 0) 10,20 "
         "(1.414213562 0 2 4 | -1.414213562 0 4 6) 0,20",
         ""},
        {"the second's closing segment is tried", openCross, "-5,5 5,5 : 1 -1", "-4,6",
         "0,0 10,0 10,10 0,10 : 1 -1 closed", "1,3", "-5,5 (1 0 4 6 | -1 0 4 6) 5,5",
         "0,0 (1.414213562 0 | -1.414213562 0) 10,0 (1.414213562 0 | -1.414213562 0) "
         "10,10 (1.414213562 0 | -1.414213562 0) 0,10 (1.414213562 0 3 5 | -1.414213562 0 5 7)"},
        // It comes down at x = 5, from the mitred corners (6, 7) and (4, 9).
        {"one that runs over itself", openCross, "0,0 10,0 10,8 5,8 5,-8 : 1 -1", "2,1", "", "6,-6",
         "0,0 (1 0 4 6 | -1 0 4 6) 10,0 (1.414213562 0 | -1.414213562 0) 10,8 "
         "(1.414213562 0 | -1.414213562 0) 5,8 (1.414213562 0 6 8 | -1.414213562 0 8 10) 5,-8",
         ""},
    });
}

TEST_F(JointTools, teesStopTheStemOnThePickedSide) {
    const std::string stem = "0,0 10,0 : 1 -1";
    const std::string bar = "6,-5 6,5 : 1 -1";
    const std::string before = "0,0 (1 0 5 | -1 0 5) 6,0 +8";
    const std::string after = "6,0 (1 1 | -1 1) 10,0 +4";
    const std::string loop = "0,0 10,0 10,8 3,8 3,-8 : 1 -1"; // segment 3 is the bar
    expectAll({
        {"before the bar", closedTee, stem, "2,1", bar, "5,4", before, ""},
        {"after it", closedTee, stem, "9,1", bar, "5,4", after, ""},
        {"open, before", openTee, stem, "2,1", bar, "5,4", before, "6,-5 (1 0 4 6 | -1 0) 6,5"},
        {"open, after", openTee, stem, "9,1", bar, "5,4", after, "6,-5 (1 0 | -1 0 4 6) 6,5"},
        {"merged: the middle ends on the middle", mergedTee, "0,0 10,0 : 1 0 -1", "2,1",
         "6,-5 6,5 : 1 0 -1", "5,4", "0,0 (1 0 5 | 0 0 6 | -1 0 5) 6,0 +8",
         "6,-5 (1 0 4 6 | 0 0 | -1 0) 6,5"},
        {"merged: two lines of five are opened", mergedTee, "0,0 10,0 : 2 1 0 -1 -2", "2,2",
         "6,-5 6,5 : 2 1 0 -1 -2", "4,4", "0,0 (2 0 4 | 1 0 5 | 0 0 6 | -1 0 5 | -2 0 4) 6,0 +8",
         "6,-5 (2 0 3 7 | 1 0 4 6 | 0 0 | -1 0 | -2 0) 6,5"},
        // At 45 degrees: y = 1 meets x = 7 - sqrt 2, and y = -1 meets x = 5 - sqrt 2.
        {"a slanting bar", closedTee, stem, "2,1", "2,-4 10,4 : 1 -1", "4.585786438,0",
         "0,0 (1 0 5.585786438 | -1 0 3.585786438) 6,0 +8", ""},
        // Element 0 of the bar, at x = 4, is the nearer one to (9, 1).
        {"stem and bar in one", openTee, loop, "7,1", "", "4,-5",
         "3,0 (1 1 | -1 1) 10,0 (1.414213562 0 | -1.414213562 0) 10,8 (1.414213562 0 | "
         "-1.414213562 0) 3,8 (1.414213562 0 6 8 | -1.414213562 0) 3,-8 +4",
         ""},
        {"the part kept has no bar", openTee, loop, "1,1", "", "4,-5", "", "", ""},
        {"short of the stem", mergedTee, stem, "2,1", "6,2 6,5 : 1 -1", "5,4", "", "", "#4007"},
    });
}

TEST_F(JointTools, cornersKeepThePickedSides) {
    const std::string first = "0,0 10,0 : 1 -1";
    const std::string second = "6,-5 6,5 : 1 -1";
    const std::string start = "0,0 (1 0 7 | -1 0 5) 6,0 +8";
    const std::string secondStart = "6,-5 (1 0 4 | -1 0 6) 6,0 +8";
    // First and last segment cross at (5, 0), after the middle of both.
    const std::string loop = "0,0 8,0 8,5 5,5 5,-9 : 1 -1";
    const std::string cutOut = "0,0 (1 0 | -1 0) 5,0 (1.414213562 0 | -1.414213562 0) 5,-9";
    expectAll({
        {"both starts", cornerJoint, first, "2,1", second, "5,-3", start, secondStart},
        {"start and end", cornerJoint, first, "2,1", second, "5,3", "0,0 (1 0 5 | -1 0 7) 6,0 +8",
         "6,0 (1 1 | -1 -1) 6,5 +4"},
        {"vertices beyond go", cornerJoint, "-4,0 0,0 10,0 : 1 -1", "9,1",
         "6,-5 6,5 6,9 9,9 : 1 -1", "5,-3", "6,0 (1 -1 | -1 1) 10,0 +4",
         "6,-5 (1 0 6 | -1 0 4) 6,0 +8"},
        {"a loop is cut out", cornerJoint, loop, "6,1", "", "6,-6", cutOut, ""},
        {"in either order", cornerJoint, loop, "6,-6", "", "6,1", cutOut, ""},
        // They cross at (2, 0), before the middle of the first and after that of the last.
        // Element 0 inside meets itself at (3, 1), element 1 outside at (1, -1).
        {"a loop is closed", cornerJoint, "0,0 10,0 10,5 2,5 2,-1 : 1 -1", "6,1", "", "3,2",
         "2,0 (1 1 | -1 -1) 10,0 (1.414213562 0 | -1.414213562 0) 10,5 (1.414213562 0 | "
         "-1.414213562 0) 2,5 (1.414213562 0 3 | -1.414213562 0 7) 2,0 +12",
         ""},
        {"parallel", cornerJoint, first, "2,1", "0,9 10,9 : 1 -1", "2,10", "", "", "#4007"},
        {"in plan alone", cornerJoint, first, "2,1", "6,-5,3 6,5,3 : 1 -1", "5,3", "", "", "#4007"},
        {"neighbours", cornerJoint, "0,40 9,40 9,49 : 1 -1", "2,41", "", "8,45", "", "", ""},
    });
}

} // namespace
