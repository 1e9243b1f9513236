#include "SessionFixture.h"

#include "BlockList.h"
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

using orvex::FailureCause;
using orvex::PromptSession;

// The session that the commands of the tests work on: a command is a plain function.
orvex::Session* theSession = nullptr;
std::optional<orvex::Failure> insideFailure;

void leaveThingsOpen() {
    KdDbStub& stub = *theSession->database().core().blocks().modelSpace().entities.front();
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
    insideFailure = theSession->run(L"ZOOM");
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
    FailureCause causeOf(const wchar_t* name) {
        const auto failure = m_session->run(name);
        EXPECT_TRUE(failure);
        return failure ? failure->cause : FailureCause{};
    }
    static void add(const wchar_t* name, void (*function)()) {
        stack().addCommand(L"TEST", name, L"", 2, function, nullptr, -1, nullptr, nullptr);
    }
};

TEST_F(Dispatcher, putsBackWhatACommandLeaves) {
    KdDbStub& stub = *core().blocks().modelSpace().entities.front();
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
        EXPECT_FALSE(play("U")); // one step for all
        EXPECT_EQ(mlines().front()->scale(), 1.0);
    }
}

TEST_F(Dispatcher, reportsExceptionsAndGoesOn) {
    const auto failure = m_session->run(L"LEAVETHROW");
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->cause, FailureCause::programFault);
    EXPECT_THAT(failure->text, testing::HasSubstr("out of luck"));
    EXPECT_EQ(causeOf(L"THROW"), FailureCause::programFault);
    EXPECT_FALSE(m_session->run(L"INSIDE"));
    ASSERT_TRUE(insideFailure); // no command runs inside of another
    EXPECT_EQ(insideFailure->cause, FailureCause::unplayableScript);
    EXPECT_FALSE(play("ZOOM\nE\n"));
}

TEST_F(SessionFixture, loadsTheModuleForANameThatIsUnknown) {
    EXPECT_FALSE(play("-mledit\nCC\n"));
    const auto failure = play("NOSUCHCOMMAND\n");
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->cause, FailureCause::unplayableScript);
}

TEST_F(SessionFixture, refusesCommandsWithDialogsWithoutAWindow) {
    for (const wchar_t* name : {L"MLSTYLE", L"mledit"}) {
        const auto failure = m_session->run(name);
        ASSERT_TRUE(failure);
        EXPECT_EQ(failure->cause, FailureCause::unplayableScript);
        EXPECT_THAT(failure->text, testing::HasSubstr("window"));
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
    EXPECT_FALSE(play("U\n"));
    EXPECT_EQ(m_printed.back(), L"There is nothing to undo.");
}

TEST_F(SessionFixture, redoBringsBackWhatUndoTookWithLastPointAndSelection) {
    play("MLINE\n0,0\n10,0\n\nMLINE\n0,5\n10,5\n\nMOVE\n5,0.0\n\n1,1\n2,2\n");
    const std::string bytes = m_session->drawing().bytes();
    const auto previous = m_session->selectionMemory().previous;
    ASSERT_EQ(previous.size(), 1U);
    play("U\n");
    EXPECT_EQ(PromptSession::current().lastPoint, (KdGePoint3d{10, 5, 0}));
    EXPECT_EQ(m_session->selectionMemory().previous, previous);
    play("U\nZOOM\nE\nREDO\nredo\n");
    EXPECT_EQ(m_session->drawing().bytes(), bytes);
    EXPECT_EQ(PromptSession::current().lastPoint, (KdGePoint3d{2, 2, 0}));
    m_printed.clear();
    EXPECT_FALSE(play("REDO\n"));
    EXPECT_EQ(m_printed.back(), L"There is nothing to redo.");
    // What is gone isn't selected any more.
    play("U\nU\nU\n");
    m_session->selectionMemory().chosen = previous;
    play("MLINE\n0,7\n10,7\n\nU\n");
    EXPECT_TRUE(m_session->selectionMemory().chosen.empty());
}

// At other prompts U is an answer like any other.
TEST_F(SessionFixture, undoInAScriptIsACommandNowhereElse) {
    play("MLINE\n0,0\n10,0\n\n");
    for (const char* script : {"ZOOM\nU\n", "ZOOM\nC\nU\n", "MOVE\nU\n", "MLINE\nS\nU\n",
                               "-MLEDIT\nU\n", "-MLEDIT\nCC\nU\n", "MLINE\nST\nU\n"}) {
        play(script);
        ASSERT_TRUE(m_script->failure()) << script;
        EXPECT_EQ(m_script->failure()->cause, FailureCause::unplayableScript);
        EXPECT_EQ(mlines().size(), 1U) << script;
    }
}

} // namespace
