#include "SessionFixture.h"

#include "KdEdCommandStack.h"
#include "KdRxDictionary.h"
#include "PromptSession.h"
#include "RvexDocContext.h"
#include "RvexView.h"
#include "displayRefresh.h"
#include "kdrxRegistry.h"
#include "promptLibrary.h"
#include "resourceLibrary.h"

#include <stdexcept>

namespace {

using orvex::PromptSession;

// The session that the commands of the tests work on: a command is a plain function.
orvex::Session* theSession = nullptr;
orvex::Session::Outcome insideOutcome;

void leaveThingsOpen() {
    KdDbStub& stub = *theSession->database().core().modelSpace().entities.front();
    KdDbMline* mline = nullptr;
    kddbOpenObject(mline, KdDbObjectId(&stub), kForRead);
    kddbOpenObject(mline, KdDbObjectId(&stub), kForWrite);
    mline->setScale(77.0);
    long name[2];
    kddbGetEntityName(name, KdDbObjectId(&stub));
    kdedRedraw(name, 2);
    kdedInitGet(0, L"LEFT");
    AfxSetResourceHandle(reinterpret_cast<HINSTANCE>(theSession));
}

void leaveThingsOpenAndThrow() {
    leaveThingsOpen();
    throw std::runtime_error("out of luck");
}

void runAnotherInside() {
    insideOutcome = theSession->run(L"ZOOM").outcome;
}

void throwNothingKnown() {
    throw 5;
}

class Dispatcher : public SessionFixture {
protected:
    Dispatcher() {
        theSession = m_session.get();
        add(L"LEAVE", leaveThingsOpen);
        add(L"LEAVETHROW", leaveThingsOpenAndThrow);
        add(L"INSIDE", runAnotherInside);
        add(L"THROW", throwNothingKnown);
        play("MLINE\n0,0\n10,0\n\n");
    }
    ~Dispatcher() override { stack().removeGroup(L"TEST"); }

    static KdEdCommandStack& stack() {
        return *KdEdCommandStack::cast(kdrxSysRegistry()->at(L"RVEX_REGISTERED_COMMANDS"));
    }
    static void add(const wchar_t* name, void (*function)()) {
        stack().addCommand(L"TEST", name, L"", 2, function, nullptr, -1, nullptr, nullptr);
    }
};

TEST_F(Dispatcher, putsBackWhatACommandLeaves) {
    KdDbStub& stub = *core().modelSpace().entities.front();
    for (const wchar_t* name : {L"LEAVE", L"leavethrow"}) {
        SCOPED_TRACE(testing::PrintToString(name));
        AfxSetResourceHandle(nullptr);
        (void)m_session->run(name);
        EXPECT_EQ(stub.openForRead, 0);
        EXPECT_EQ(stub.openForWrite, 0);
        EXPECT_EQ(AfxGetResourceHandle(), nullptr);
        EXPECT_EQ(PromptSession::current().armedKeywords, L"");
        EXPECT_EQ(m_session->scene().pick({5, 0}, 0.1), &stub); // shown again
        EXPECT_FALSE(m_session->isRunning());

        EXPECT_EQ(mlines().front()->scale(), 77.0);
        EXPECT_EQ(play("U"), Outcome::done); // one step for all
        EXPECT_EQ(mlines().front()->scale(), 1.0);
    }
}

TEST_F(Dispatcher, tellsOfExceptionsAndGoesOn) {
    const auto result = m_session->run(L"LEAVETHROW");
    EXPECT_EQ(result.outcome, Outcome::failed);
    EXPECT_THAT(result.message, testing::HasSubstr(L"out of luck"));
    EXPECT_EQ(m_session->run(L"THROW").outcome, Outcome::failed);
    EXPECT_EQ(m_session->run(L"INSIDE").outcome, Outcome::done);
    EXPECT_EQ(insideOutcome, Outcome::busy); // no command runs inside of another
    EXPECT_EQ(play("ZOOM\nE\n"), Outcome::done);
}

TEST_F(SessionFixture, loadsTheModuleForANameThatIsUnknown) {
    EXPECT_EQ(play("-mledit\nCC\n"), Outcome::done);
    EXPECT_EQ(play("NOSUCHCOMMAND\n"), Outcome::unknown);
}

TEST_F(SessionFixture, refusesCommandsWithDialogsWithoutAWindow) {
    for (const wchar_t* name : {L"MLSTYLE", L"mledit"}) {
        const auto result = m_session->run(name);
        EXPECT_EQ(result.outcome, Outcome::needsWindow);
        EXPECT_THAT(result.message, testing::HasSubstr(L"window"));
    }
}

TEST_F(SessionFixture, isWhatModulesFindWhileItLives) {
    ASSERT_NE(curDoc(), nullptr);
    EXPECT_EQ(curDoc()->database(), &m_session->database());
    RvexView* const view =
        GetRvexAppCtxActiveDocContext()->rvexDocDataContext()->graphics()->activeView();
    double length = 1.0;
    view->pixelsToDisplayUnits(length, nullptr, nullptr, 1);
    EXPECT_DOUBLE_EQ(length, 10.0 / 1200.0); // nothing to see

    m_session.reset();
    EXPECT_EQ(curDoc(), nullptr);
    EXPECT_EQ(PromptSession::current().source, nullptr);
}

TEST_F(SessionFixture, undoTakesBackCommandsOneByOneAndSaysWhenThereAreNone) {
    // Empty lines and cancels at the command prompt repeat nothing.
    play("MLINE\n0,0\n10,0\n\n\n*CANCEL*\n\nMLINE\n0,5\n10,5\n\n");
    EXPECT_EQ(mlines().size(), 2U);
    play("u\n");
    EXPECT_EQ(mlines().size(), 1U);
    play("U\n");
    EXPECT_EQ(mlines().size(), 0U);
    m_printed.clear();
    EXPECT_EQ(play("U\n"), Outcome::done);
    EXPECT_EQ(m_printed.back(), L"There is nothing to undo.");
}

} // namespace
