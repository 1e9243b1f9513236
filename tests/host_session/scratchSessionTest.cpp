#include "SessionFixture.h"

#include "BlockList.h"
#include "ChangeLog.h"
#include "KdMLSegment.h"
#include "ScratchSession.h"
#include "resourceLibrary.h"
#include "textCodec.h"

#include <utility>

namespace {

using orvex::PromptAnswer;
using orvex::PromptRequest;
using orvex::PromptSession;
using orvex::ScratchSession;

// Answers from a script and does something else first, once, when an entity is asked for.
class Interrupted final : public orvex::PromptSource {
public:
    Interrupted(const std::string& script, std::function<void()> meanwhile)
        : m_script(script, [](const std::wstring&) {}), m_meanwhile(std::move(meanwhile)) {}

    PromptAnswer ask(const PromptRequest& request) override {
        if (request.kind == orvex::PromptKind::entity && m_meanwhile) {
            std::exchange(m_meanwhile, nullptr)();
        }
        return m_script.ask(request);
    }
    void print(const std::wstring& /*line*/) override {}

private:
    orvex::ScriptSource m_script;
    std::function<void()> m_meanwhile;
};

class Scratch : public SessionFixture {
protected:
    Scratch() {
        // A bar across two walls.
        play("MLINE\nS\n10\nJ\nZ\n0,0\n100,0\n\nMLINE\n30,-50\n30,50\n\nMLINE\n70,-50\n70,50\n\n");
        m_before = m_session->drawing().bytes();
        for (KdDbStub* const stub : core().blocks().modelSpace().entities) {
            m_stubs.push_back(stub);
        }
    }

    // Cuts the bar away under a wall.
    static std::string crossInside(ScratchSession& scratch, const std::string& picks) {
        orvex::ScriptSource answers("CC\n" + picks + "\n", [](const std::wstring&) {});
        const auto failure = scratch.run(L"-MLEDIT", answers);
        return failure ? messageOf(*failure) : "";
    }
    [[nodiscard]] std::string barPick() const { return "10,5 #" + handle(0) + "\n"; }
    [[nodiscard]] std::string handle(std::size_t index) const {
        wchar_t digits[32];
        swprintf(digits, 32, L"%llX", static_cast<unsigned long long>(m_stubs[index]->handle));
        return orvex::narrow(digits);
    }
    static std::size_t barStops(const KdDbMline& bar) {
        KdArray<void*> parameters;
        bar.getParametersAt(0, parameters);
        return (*static_cast<VoVector<KdMLSegment>*>(parameters[0])).at(0).m_lineParams.size();
    }

    std::string m_before;
    std::vector<KdDbStub*> m_stubs;
};

TEST_F(Scratch, playsACommandWhileAnotherWaitsAtAPromptOfTheDrawing) {
    std::string failure = "not played";
    std::size_t stopsInside = 0;
    const auto playInside = [&] {
        PromptSession& prompts = PromptSession::current();
        prompts.pickBox = 5;
        prompts.errorNumber = 7;
        prompts.armedKeywords = L"UNDO";
        AfxSetResourceHandle(reinterpret_cast<HINSTANCE>(this));
        const auto* const document = curDoc();

        ScratchSession scratch(*m_session);
        KdDbMline* const bar = scratch.copy(*m_stubs[0]);
        scratch.copy(*m_stubs[1]);
        scratch.view().setView({30, 0}, 100);
        failure = crossInside(scratch, barPick() + "30,40 #" + handle(1) + "\n");
        stopsInside = barStops(*bar);
        EXPECT_TRUE(scratch.undo());
        EXPECT_EQ(barStops(*bar), 2U);

        EXPECT_EQ(prompts.pickBox, 5);
        EXPECT_EQ(prompts.errorNumber, 7);
        EXPECT_EQ(prompts.armedKeywords, L"UNDO");
        EXPECT_EQ(AfxGetResourceHandle(), reinterpret_cast<HINSTANCE>(this));
        EXPECT_EQ(curDoc(), document);
        EXPECT_EQ(m_session->drawing().bytes(), m_before);
        AfxSetResourceHandle(nullptr);
        prompts.pickBox = 3;
    };
    Interrupted outer("CC\n" + barPick() + "70,40 #" + handle(2) + "\n\n", playInside);
    m_session->setSource(&outer);
    EXPECT_FALSE(m_session->run(L"-MLEDIT"));
    EXPECT_EQ(failure, "");
    EXPECT_EQ(stopsInside, 4U);

    // The one that waited has done its own work and no other, and it is one step.
    EXPECT_EQ(barStops(*mlines().front()), 4U);
    play("U\n");
    EXPECT_EQ(m_session->drawing().bytes(), m_before);
}

TEST_F(Scratch, givesBackWhatItsCopiesCameToAsIfThePlayHadBeenOnTheDrawing) {
    ScratchSession scratch(*m_session);
    for (KdDbStub* const stub : m_stubs) {
        ASSERT_NE(scratch.copy(*stub), nullptr);
    }
    scratch.view().setView({50, 0}, 110);
    // The second pick names no handle: it is found by where it lies.
    EXPECT_EQ(crossInside(scratch, barPick() + "35,40\n"), "");
    core().changes().beginCommand();
    for (KdDbStub* const stub : m_stubs) {
        scratch.giveBack(*stub);
    }
    EXPECT_TRUE(core().changes().endCommand());
    const std::string given = m_session->drawing().bytes();
    EXPECT_NE(given, m_before);

    play("U\nZOOM\nC\n50,0\n110\n-MLEDIT\nCC\n" + barPick() + "35,40\n\n");
    EXPECT_EQ(m_session->drawing().bytes(), given);
}

} // namespace
