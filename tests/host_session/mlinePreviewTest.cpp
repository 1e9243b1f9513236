#include "KdDbEntity.h"
#include "SessionFixture.h"

#include "Appearance.h"
#include "BlockList.h"
#include "PromptSession.h"

namespace {

using namespace orvex;

// Answers with a script; notes what the previews show at the points that it is about to answer.
class WatchfulSource final : public PromptSource {
public:
    WatchfulSource(Session& session, const std::string& script)
        : m_session(session), m_script(script, [](const std::wstring&) {}) {}

    PromptAnswer ask(const PromptRequest& request) override {
        const PromptAnswer answer = m_script.ask(request);
        appearances.emplace_back();
        if (request.preview) {
            // The user's X is north and its Y west, moved to (100, 0).
            const auto mline = request.preview({100.0 - answer.point.y, answer.point.x, 0.0});
            appearances.back() = m_session.scene().appearanceOf(*mline);
        }
        return answer;
    }
    void print(const std::wstring&) override {}

    std::vector<Appearance> appearances; // by question

private:
    Session& m_session;
    ScriptSource m_script;
};

std::vector<std::vector<PlanPoint>> linesOf(const Appearance& appearance) {
    std::vector<std::vector<PlanPoint>> lines;
    lines.reserve(appearance.strokes.size());
    for (const Stroke& stroke : appearance.strokes) {
        lines.push_back(stroke.points);
    }
    return lines;
}

TEST_F(SessionFixture, mlineShowsBeforeAPointWhatThePointMakes) {
    core().setVariable("UCSORG", KdGePoint3d{100, 0, 7});
    core().setVariable("UCSXDIR", KdGePoint3d{0, 1, 0});
    core().setVariable("UCSYDIR", KdGePoint3d{-1, 0, 0});
    WatchfulSource source(*m_session, "0,0,1\n10,0\n10,10\n\n");
    m_session->setSource(&source);
    EXPECT_FALSE(m_session->run(L"MLINE"));
    ASSERT_EQ(source.appearances.size(), 4U);
    EXPECT_TRUE(source.appearances[0].strokes.empty()) << "nothing to show before there is a start";
    EXPECT_EQ(linesOf(source.appearances[1]).size(), 2U);
    ASSERT_EQ(mlines().size(), 1U);
    KdDbStub& stub = *core().blocks().modelSpace().entities.back();
    const auto lines = linesOf(m_session->scene().appearance(stub));
    EXPECT_EQ(lines.size(), 4U) << "two elements along two segments";
    EXPECT_EQ(linesOf(source.appearances[2]), lines);
}

TEST_F(SessionFixture, mlinesPreviewEndsWithTheCommand) {
    for (const char* script : {"0,0\n10,0\n\n", "0,0\n10,0\n*CANCEL*\n", "0,0\n10,0\nnonsense\n"}) {
        WatchfulSource source(*m_session, script);
        m_session->setSource(&source);
        m_session->run(L"MLINE");
        EXPECT_FALSE(PromptSession::current().preview) << script;
    }
}

} // namespace
