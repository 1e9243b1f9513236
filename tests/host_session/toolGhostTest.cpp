#include "SessionFixture.h"

#include "BlockList.h"
#include "MlineContent.h"
#include "matchPick.h"
#include "mlineTrack.h"
#include "textCodec.h"
#include "toolGhost.h"

#include <array>
#include <random>
#include <utility>

namespace {

using orvex::MlineContent;
using orvex::PickRefusal;
using orvex::PromptAnswer;
using orvex::PromptKind;
using orvex::PromptRequest;
using orvex::ToolGhost;
using orvex::ToolKind;

using Content = std::shared_ptr<const MlineContent>;

Content contentOf(KdDbStub& stub) {
    return std::static_pointer_cast<const MlineContent>(stub.database->load(stub)->content());
}

struct Tally {
    int predicted = 0; // picks whose outcome was known before
    int changed = 0;
    int refused = 0;
    int unmatched = 0; // of which nothing is said
};

// Picks at random places of random multilines, by which a tool is to do what its ghost said.
class RandomPicks final : public orvex::PromptSource {
public:
    RandomPicks(orvex::Session& session, std::vector<KdDbStub*> mlines, unsigned seed)
        : m_session(session), m_mlines(std::move(mlines)), m_random(seed) {}

    void start(const ToolKind& tool, int cycles) {
        m_tool = &tool;
        m_left = cycles;
        m_picksLeft = kMostPicks;
    }

    PromptAnswer ask(const PromptRequest& request) override {
        compare();
        PromptAnswer answer;
        if (request.kind == PromptKind::keyword) {
            answer.kind = PromptAnswer::Kind::keyword;
            answer.keyword = m_tool->keyword;
        } else if (request.kind != PromptKind::entity || m_left <= 0 || --m_picksLeft < 0) {
            answer.kind = PromptAnswer::Kind::empty;
        } else if (!request.keywords.empty() && chance() < 0.5) {
            answer.kind = PromptAnswer::Kind::keyword;
            answer.keyword = request.keywords.front();
        } else {
            answer = pick();
        }
        return answer;
    }
    void print(const std::wstring& /*line*/) override {}

    [[nodiscard]] const Tally& tally() const { return m_tally; }

private:
    static constexpr int kMostPicks = 1000; // where nothing is left that fits

    double chance() { return std::uniform_real_distribution<>(0.0, 1.0)(m_random); }
    template <class List>
    auto& oneOf(List& list) {
        return list[static_cast<std::size_t>(chance() * static_cast<double>(list.size()))];
    }

    // Near a line of a multiline; the second pick of a cut mostly on the first one's.
    PromptAnswer pick() {
        const auto& first = m_session.toolWatch().first();
        const bool onFirst = first && m_tool->picks == ToolKind::Picks::twoOnOne && chance() < 0.9;
        KdDbStub& stub = onFirst ? *first->mline : *oneOf(m_mlines);
        const Content content = contentOf(stub);
        const orvex::MlineChain chain(*content);
        // One draw a statement: in the operands of one, compilers choose the order.
        const auto element = static_cast<unsigned>(chance() * chain.elementCount());
        const auto segment = static_cast<unsigned>(chance() * chain.segmentCount());
        const auto track = chain.track(segment, element);
        if (chance() < 0.2) { // the view may change between two picks
            m_session.view().setView({500.0, 500.0}, 400.0 + 800.0 * chance());
        }
        const double reach = 3.0 * m_session.view().unitsPerPixel();
        PromptAnswer answer;
        answer.kind = PromptAnswer::Kind::point;
        answer.point = track.at(track.length * (1.1 * chance() - 0.05));
        answer.point.x += reach * (2.0 * chance() - 1.0);
        answer.point.y += reach * (2.0 * chance() - 1.0);
        answer.handle = stub.handle;
        predict(stub, answer.point);
        return answer;
    }

    void predict(KdDbStub& stub, const KdGePoint3d& point) {
        const bool isLast = m_session.toolWatch().isLastPick();
        const std::string bytes = m_tally.predicted % 50 == 0 ? m_session.drawing().bytes() : "";
        auto ghost = orvex::toolGhost(m_session, stub, point);
        ASSERT_TRUE(ghost);
        if (!bytes.empty()) {
            EXPECT_EQ(m_session.drawing().bytes(), bytes) << "a ghost leaves no trace";
        }
        if (ghost->refusal == PickRefusal::noMatch) {
            m_tally.unmatched += isLast ? 1 : 0;
        } else if (isLast) {
            --m_left;
            m_ghost = std::move(*ghost);
            for (KdDbStub* const mline : m_mlines) {
                m_before.push_back(contentOf(*mline));
            }
        }
    }

    void compare() {
        if (!m_ghost) {
            return;
        }
        const ToolGhost ghost = std::move(*std::exchange(m_ghost, std::nullopt));
        const std::vector<Content> before = std::exchange(m_before, {});
        ++m_tally.predicted;
        m_tally.changed += ghost.changed.empty() ? 0 : 1;
        m_tally.refused += ghost.refusal ? 1 : 0;
        for (std::size_t i = 0; i < m_mlines.size(); ++i) {
            const auto outcome =
                std::find_if(ghost.changed.begin(), ghost.changed.end(),
                             [&](const auto& each) { return each.mline == m_mlines[i]; });
            const Content& expected = outcome != ghost.changed.end() ? outcome->content : before[i];
            EXPECT_TRUE(contentOf(*m_mlines[i])->equals(*expected))
                << "pick " << m_tally.predicted << ", multiline " << i << ", "
                << orvex::narrow(m_tool->keyword);
        }
    }

    orvex::Session& m_session;
    std::vector<KdDbStub*> m_mlines;
    std::mt19937 m_random;
    const ToolKind* m_tool = nullptr;
    int m_left = 0;
    int m_picksLeft = 0;
    std::optional<ToolGhost> m_ghost;
    std::vector<Content> m_before; // by multiline
    Tally m_tally;
};

class Ghosts : public SessionFixture {
protected:
    // Chains of two to five points within 1000 by 1000, every fourth one closed.
    void drawAtRandom(unsigned seed, int count) {
        std::mt19937 random(seed);
        std::uniform_int_distribution<> place(0, 1000);
        std::string script = "MLINE\nJ\nZ\n*CANCEL*\n";
        for (int i = 0; i < count; ++i) {
            const bool isClosed = i % 4 == 3;
            script += "MLINE\nS\n" + std::to_string(10 + 7 * i % 40) + "\n";
            for (int points = isClosed ? 4 : 2 + i % 4; points > 0; --points) {
                const std::string y = std::to_string(place(random));
                script += std::to_string(place(random)) + "," + y + "\n";
            }
            script += isClosed ? "C\n" : "\n";
        }
        play(script);
        for (KdDbStub* const stub : core().blocks().modelSpace().entities) {
            m_stubs.push_back(stub);
        }
    }

    std::vector<KdDbStub*> m_stubs;
};

TEST_F(Ghosts, showWhatEachToolDoes) {
    drawAtRandom(7, 12);
    ASSERT_EQ(m_stubs.size(), 12U);
    RandomPicks picks(*m_session, m_stubs, 11);
    m_session->setSource(&picks);
    std::mt19937 random(13);
    std::bernoulli_distribution chanceOfUndo(0.9);
    for (int round = 0; round < 20; ++round) {
        for (const ToolKind& tool : orvex::toolKinds()) {
            picks.start(tool, 5);
            ASSERT_FALSE(m_session->run(L"-MLEDIT"));
            if (chanceOfUndo(random)) { // else nothing but gaps would be left
                ASSERT_FALSE(m_session->run(L"U"));
            }
        }
        play("ZOOM\nC\n500,500\n1000\n");
        m_session->setSource(&picks);
    }
    const Tally& tally = picks.tally();
    EXPECT_GE(tally.predicted, 1000);
    EXPECT_GE(tally.changed, 300) << "of " << tally.predicted;
    EXPECT_GE(tally.refused, 100);
    EXPECT_LE(tally.unmatched, tally.predicted / 2);
}

struct MatchCase {
    const char* what;
    KdGePoint3d pick;
    std::optional<orvex::PickMatch> match, weld;
};

// A wall of 100 by 10 from the origin along x, its left line (element 0) cut away from 30 to 40.
TEST_F(Ghosts, knowWhichLineAPickIsTakenFor) {
    play("MLINE\nS\n10\nJ\nZ\n0,0\n100,0\n\nZOOM\nC\n50,0\n120\n-MLEDIT\nCS\n30,5\n40,5\n\n");
    const MlineContent& wall = *contentOf(*core().blocks().modelSpace().entities.front());
    using Match = orvex::PickMatch;
    const std::vector<MatchCase> cases{
        {"on the left line", {60, 5.1, 0}, Match{0, 0}, Match{0, 0}},
        {"on the right line", {60, -4.9, 0}, Match{0, 1}, Match{0, 1}},
        {"in the gap", {35, 5, 0}, std::nullopt, Match{0, 0}},
        {"too far from both", {60, 0, 0}, std::nullopt, std::nullopt},
        {"before the start", {-0.2, 5, 0}, std::nullopt, Match{0, 0}},
        {"nearer to the start than the left line's offset", {4, 5, 0}, std::nullopt, Match{0, 0}},
        {"the same on the right", {4, -5, 0}, Match{0, 1}, Match{0, 1}},
    };
    for (const MatchCase& each : cases) {
        EXPECT_EQ(orvex::matchPick(wall, each.pick, 0.5, false), each.match) << each.what;
        EXPECT_EQ(orvex::matchPick(wall, each.pick, 0.5, true), each.weld) << each.what;
    }
}

} // namespace
