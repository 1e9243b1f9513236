// Whole cycles of the twelve tools on a drawing in memory: a run with its picks and then a cancel.
// Two multilines of four elements cross in the middle of chains of 4 and 100 vertices; each cycle
// finds them as they were at first. The crosses also run among many other multilines: a cycle
// shouldn't cost more there.

#include "BlockList.h"
#include "CMlineEdit.h"
#include "DatabaseCore.h"
#include "FakeDocument.h"
#include "KdDbDatabase.h"
#include "KdDbMline.h"
#include "KdDbStub.h"
#include "KdDocument.h"
#include "MlineBuilder.h"
#include "ObjectContent.h"
#include "PromptSession.h"
#include "PromptSource.h"

#include <benchmark/benchmark.h>

#include <array>
#include <string_view>

namespace {

constexpr std::array<double, 4> kOffsets = {1.5, 0.5, -0.5, -1.5};

// Answers with points on entities, then cancels.
class PickSource : public orvex::PromptSource {
public:
    std::vector<orvex::PromptAnswer> answers;
    std::size_t next = 0;

    orvex::PromptAnswer ask(const orvex::PromptRequest&) override {
        return next < answers.size() ? answers[next++] : orvex::PromptAnswer();
    }
    void print(const std::wstring&) override {}
};

class Drawing {
public:
    Drawing() : m_documentBefore(orvex::setCurrentDocument(&m_document)) {
        orvex::PromptSession::current().source = &m_source;
    }
    ~Drawing() {
        orvex::PromptSession::current() = orvex::PromptSession();
        orvex::setCurrentDocument(m_documentBefore);
    }
    Drawing(const Drawing&) = delete;
    Drawing& operator=(const Drawing&) = delete;

    KdDbMline* add(const std::vector<KdGePoint3d>& chain) {
        KdDbMline* const mline = draw(chain);
        m_mlines.push_back(mline);
        m_contents.push_back(mline->content());
        return mline;
    }
    // Multilines that no pick finds.
    void addOthers(std::int64_t count) {
        for (std::int64_t i = 0; i < count; ++i) {
            const double y = 100.0 + 10.0 * static_cast<double>(i);
            draw({{0.0, y, 0.0}, {50.0, y, 0.0}});
        }
    }
    void pick(const KdDbMline* mline, double x, double y) {
        orvex::PromptAnswer answer;
        answer.kind = orvex::PromptAnswer::Kind::point;
        answer.point = {x, y, 0.0};
        answer.handle = mline->objectId().stub()->handle;
        m_source.answers.push_back(answer);
    }
    void runOnce(int (CMlineEdit::*tool)(HINSTANCE)) {
        m_source.next = 0;
        CMlineEdit run;
        (run.*tool)(nullptr);
    }
    // Puts back what the run has changed; false when that was nothing.
    bool reset() {
        bool changed = false;
        for (std::size_t i = 0; i < m_mlines.size(); ++i) {
            changed = changed || m_mlines[i]->content() != m_contents[i];
            m_mlines[i]->setContent(m_contents[i]);
        }
        return changed;
    }

private:
    KdDbMline* draw(const std::vector<KdGePoint3d>& chain) {
        auto made = std::make_unique<KdDbMline>();
        KdDbMline* const mline = made.get();
        orvex::testing::buildMline(*mline, chain, kOffsets);
        mline->setStyle(m_database.cmlstyle());
        orvex::DatabaseCore& core = m_database.core();
        core.blocks().appendEntity(core.blocks().modelSpace(),
                                   core.adopt(std::move(made), orvex::ObjectKind::mline, nullptr));
        return mline;
    }

    KdDbDatabase m_database;
    KdDocument m_document{&m_database};
    orvex::testing::FakeDocument m_view;
    PickSource m_source;
    KdDocument* m_documentBefore;
    std::vector<KdDbMline*> m_mlines;
    std::vector<std::shared_ptr<const orvex::ObjectContent>> m_contents;
};

// Along x with a middle segment from -10 to 10; the others bend away by 3.
std::vector<KdGePoint3d> chain(int vertices, bool up) {
    std::vector<KdGePoint3d> points;
    for (int i = 0; i < vertices; ++i) {
        const int fromMiddle = i - vertices / 2;
        const double along = 20.0 * fromMiddle + 10.0;
        const double across =
            fromMiddle == 0 || fromMiddle == -1 || fromMiddle % 2 == 0 ? 0.0 : 3.0;
        points.push_back(up ? KdGePoint3d{across, along, 0.0} : KdGePoint3d{along, across, 0.0});
    }
    return points;
}

enum class Picks { two, one, bothOnOne };

void cycle(benchmark::State& state, int (CMlineEdit::*tool)(HINSTANCE), Picks picks) {
    Drawing drawing;
    const int vertices = static_cast<int>(state.range(0));
    const KdDbMline* const along = drawing.add(chain(vertices, false));
    const KdDbMline* const up = drawing.add(chain(vertices, true));
    drawing.addOthers(state.range(1));
    drawing.pick(along, -6, -0.5);
    if (picks == Picks::two) {
        drawing.pick(up, 0.5, -6);
    } else if (picks == Picks::bothOnOne) {
        drawing.pick(along, -4, -0.5);
    }
    bool changed = true;
    for (auto _ : state) {
        drawing.runOnce(tool);
        changed = drawing.reset();
    }
    if (!changed) {
        state.SkipWithError("nothing was edited");
    }
    state.SetItemsProcessed(state.iterations());
}

struct Tool {
    const char* name;
    int (CMlineEdit::*run)(HINSTANCE);
    Picks picks;
};

[[maybe_unused]] const bool kRegistered = [] {
    static constexpr Tool kTools[] = {
        {"closed cross", &CMlineEdit::cmd_mledit_ClosedCross, Picks::two},
        {"open cross", &CMlineEdit::cmd_mledit_OpenCross, Picks::two},
        {"merged cross", &CMlineEdit::cmd_mledit_MergedCross, Picks::two},
        {"closed tee", &CMlineEdit::cmd_mledit_ClosedTree, Picks::two},
        {"open tee", &CMlineEdit::cmd_mledit_OpenTree, Picks::two},
        {"merged tee", &CMlineEdit::cmd_mledit_MergedTree, Picks::two},
        {"corner joint", &CMlineEdit::cmd_mledit_CornerJoint, Picks::two},
        {"add vertex", &CMlineEdit::cmd_mledit_AddVertex, Picks::one},
        {"delete vertex", &CMlineEdit::cmd_mledit_DeleteVertex, Picks::one},
        {"cut single", &CMlineEdit::cmd_mledit_CutSingle, Picks::bothOnOne},
        {"cut all", &CMlineEdit::cmd_mledit_CutAll, Picks::bothOnOne},
        {"weld all", &CMlineEdit::cmd_mledit_WeldAll, Picks::bothOnOne},
    };
    for (const Tool& tool : kTools) {
        auto* const registered =
            benchmark::RegisterBenchmark(tool.name, cycle, tool.run, tool.picks)
                ->ArgNames({"vertices", "others"})
                ->Args({4, 0})
                ->Args({100, 0});
        if (std::string_view(tool.name).ends_with("cross")) {
            registered->Args({4, 1'000})->Args({4, 100'000});
        }
    }
    return true;
}();

} // namespace
