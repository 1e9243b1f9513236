#include "CMlineEdit.h"

#include "EngineWorld.h"
#include "ObjectContent.h"
#include "parameterLists.h"

namespace {

// A stem along x with a gap in both elements of its first segment, and a bar across its second.
class ToolUndo : public orvex::testing::EngineWorld {
protected:
    KdDbMline* stem = addMline({{0, 0, 0}, {20, 0, 0}, {40, 0, 0}}, {0.5, -0.5});
    KdDbMline* bar = addMline({{30, -20, 0}, {30, 20, 0}}, {0.5, -0.5});

    void SetUp() override {
        storeLineList(stem, 0, 0, {0.5, 0, 5, 10});
        storeLineList(stem, 0, 1, {-0.5, 0, 5, 10});
        storeAreaList(stem, 1, 0, {1, 2});
    }
};

TEST_F(ToolUndo, EveryToolChangesSomethingAndUndoRestoresItBitForBit) {
    const auto onStem = pick(stem, 25, 0.5);
    const auto onBar = pick(bar, 30.5, -10);
    struct {
        int number;
        std::vector<orvex::PromptAnswer> picks;
    } const tools[] = {
        {1, {onStem, onBar}},
        {2, {onStem, onBar}},
        {3, {onStem, onBar}},
        {4, {onStem, onBar}},
        {5, {onStem, onBar}},
        {6, {onStem, onBar}},
        {7, {onStem, onBar}},
        {8, {pick(stem, 15, 0.5)}},
        {9, {pick(stem, 2, 0.5)}},
        {10, {pick(stem, 22, 0.5), pick(stem, 25, 0.5)}},
        {11, {pick(stem, 2, 0.5), pick(stem, 25, 0.5)}},
        {12, {pick(stem, 5, 0.5), pick(stem, 10, 0.5)}},
    };
    const auto stemBefore = stem->content();
    const auto barBefore = bar->content();
    for (const auto& tool : tools) {
        for (const bool takesBack : {false, true}) {
            user.answers.assign(tool.picks.begin(), tool.picks.end());
            if (takesBack) {
                user.answers.push_back(keyword(L"UNDO"));
            }
            CMlineEdit run;
            run.runTool(editTool(tool.number), resources);
            const bool same =
                stem->content()->equals(*stemBefore) && bar->content()->equals(*barBefore);
            EXPECT_EQ(same, takesBack) << "tool " << tool.number;
            stem->setContent(stemBefore);
            bar->setContent(barBefore);
        }
    }
    EXPECT_TRUE(user.lines.empty());
}

} // namespace
