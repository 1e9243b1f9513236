#include "ChangeFeed.h"
#include "ChangeLog.h"
#include "DatabaseCore.h"
#include "FlatSource.h"
#include "KdDbDatabase.h"
#include "ObjectTable.h"
#include "UndoLog.h"

#include <gmock/gmock.h>

#include <any>
#include <tuple>
#include <vector>

namespace {

using orvex::DatabaseCore;
using orvex::ObjectKind;
using orvex::testing::FlatSource;

class UndoSteps : public ::testing::Test {
protected:
    UndoSteps() : m_core(m_database.core()) {
        m_core.objects().setSource(std::make_shared<FlatSource>());
        KdDbStub& stub = m_core.objects().addStub(ObjectKind::mline, 0x100, 1, nullptr);
        m_mline = static_cast<KdDbMline*>(m_core.load(stub));
    }

    template <class Edit>
    bool command(Edit edit) {
        m_core.changes().beginCommand();
        edit();
        return m_core.changes().endCommand();
    }

    KdDbDatabase m_database;
    DatabaseCore& m_core;
    KdDbMline* m_mline = nullptr;
};

TEST_F(UndoSteps, aCommandWithoutNetChangeIsNone) {
    const auto seed = m_core.objects().takeHandle() + 1;
    EXPECT_FALSE(command([] {}));
    EXPECT_FALSE(command([this] { m_core.open(*m_mline->objectId().stub(), true); }));
    EXPECT_FALSE(command([this] {
        m_mline->setScale(2.0);
        m_mline->appendSeg({});
        KdGePoint3d removed;
        m_mline->removeLastSeg(removed);
        m_mline->setScale(1.0);
    }));
    EXPECT_FALSE(command([this] {
        m_core.adopt(std::make_unique<KdDbMline>(), ObjectKind::mline, nullptr).object->erase();
    }));
    EXPECT_EQ(m_core.objects().takeHandle(), seed); // the erased one's is free again
    EXPECT_EQ(m_core.changes().undoDepth(), 0U);
    EXPECT_TRUE(command([this] { m_mline->setScale(-1.0); }));
    EXPECT_TRUE(command([this] { m_core.setVariable("EXTMIN", KdGePoint3d{0.0, 0.0, -0.0}); }));
    EXPECT_TRUE(command([this] { m_core.setVariable("EXTMIN", KdGePoint3d{0.0, 0.0, 0.0}); }));
    EXPECT_EQ(m_core.changes().undoDepth(), 3U);
}

TEST_F(UndoSteps, theOldestGoWhenMemoryRunsOut) {
    // A list of 8 MiB each time: the limit holds that many images of it.
    constexpr unsigned kValues = 1U << 20U;
    constexpr std::size_t kFitting = 8;
    m_core.changes().steps().setMemoryLimit(kFitting * kValues * sizeof(double));
    for (unsigned i = 0; i < kFitting + 4; ++i) {
        ASSERT_TRUE(command([this, i] {
            VoVector<KdMLSegment> record(1U);
            record[0].m_lineParams.resize(kValues + i);
            KdArray<void*> parameters;
            parameters.append(&record);
            m_mline->setParametersAt(0, parameters);
        }));
    }
    EXPECT_LE(m_core.changes().undoDepth(), kFitting);
    EXPECT_GE(m_core.changes().undoDepth(), kFitting - 1);
    EXPECT_EQ(m_core.changes().steps().droppedSteps(), kFitting + 4 - m_core.changes().undoDepth());
    while (m_core.changes().undo()) {
    }
    const auto& now = KdDbSystemInternals::getImpObject(m_mline)->content();
    EXPECT_GT(now.lists.line(0, 0).size(), kValues); // not back to the beginning
}

TEST_F(UndoSteps, whatIsTakenBackComesAgainUntilSomethingNewIsDone) {
    ASSERT_TRUE(command([this] { m_mline->setScale(2.0); }));
    ASSERT_TRUE(command([this] { m_mline->setScale(3.0); }));
    EXPECT_TRUE(m_core.changes().undo() && m_core.changes().undo());
    EXPECT_FALSE(command([] {})); // keeps them
    EXPECT_TRUE(m_core.changes().redo());
    EXPECT_EQ(m_mline->scale(), 2.0);
    EXPECT_EQ(m_core.changes().redoDepth(), 1U);
    ASSERT_TRUE(command([this] { m_mline->setScale(5.0); }));
    EXPECT_FALSE(m_core.changes().redo());
    EXPECT_TRUE(m_core.changes().undo());
    m_mline->setScale(7.0); // outside of commands
    EXPECT_FALSE(m_core.changes().redo());
}

// Handles are free again after undo, but not for what gets one only because it is written.
TEST_F(UndoSteps, whatComesAgainHasItsOwnHandle) {
    const auto make = [this]() -> KdDbStub& {
        return m_core.adopt(std::make_unique<KdDbMline>(), ObjectKind::mline, nullptr);
    };
    KdDbStub* made = nullptr;
    ASSERT_TRUE(command([&] { made = &make(); }));
    EXPECT_EQ(m_core.objects().findHandle(made->handle), made);
    m_core.changes().undo();
    EXPECT_FALSE(command([&] { make().object->erase(); })); // with the same handle
    KdDbStub& late = m_core.objects().makeStub(ObjectKind::mlineStyle, 0, nullptr);
    EXPECT_EQ(m_core.objects().ensureHandle(late), made->handle + 1);
    m_core.changes().redo();
    EXPECT_FALSE(made->erased);
    EXPECT_EQ(m_core.objects().findHandle(made->handle), made);
    ASSERT_TRUE(command([&] { EXPECT_EQ(make().handle, late.handle + 1); }));
}

TEST_F(UndoSteps, aRunningCommandRollsBackFromMarkToMark) {
    std::vector<double> scales;
    const auto rollBack = [&] {
        const bool changed = m_core.changes().rollBackToMark();
        scales.push_back(m_mline->scale());
        return changed;
    };
    orvex::ChangeFeed feed(m_core);
    EXPECT_TRUE(command([&] {
        for (const double scale : {2.0, 2.0, 3.0, 4.0, 3.0}) { // the fourth is taken back by hand
            m_core.changes().mark();
            m_mline->setScale(scale);
        }
        m_core.changes().mark();
        m_mline->setScale(5.0);
        static_cast<void>(feed.take());
        EXPECT_TRUE(rollBack()); // what no mark ends
        EXPECT_FALSE(feed.isEmpty());
        EXPECT_TRUE(rollBack());
        EXPECT_TRUE(rollBack());
        EXPECT_FALSE(rollBack());
        EXPECT_TRUE(m_core.changes().rollForward());
        EXPECT_EQ(m_mline->scale(), 2.0);
        EXPECT_TRUE(m_core.changes().rollBackToMark());
        m_core.changes().mark();
        m_mline->setScale(6.0);
        m_core.changes().mark();
        m_mline->setScale(7.0);
        EXPECT_FALSE(m_core.changes().rollForward());
    }));
    EXPECT_THAT(scales, testing::ElementsAre(3.0, 2.0, 1.0, 1.0));
    EXPECT_EQ(m_core.changes().undoDepth(), 1U);
    EXPECT_FALSE(m_core.changes().rollBackToMark()); // outside of commands
    m_core.changes().undo();
    EXPECT_EQ(m_mline->scale(), 1.0);
    m_core.changes().redo();
    EXPECT_EQ(m_mline->scale(), 7.0);
}

TEST_F(UndoSteps, whatACommandRolledBackComesAgainAfterIt) {
    const auto rollTwoBack = [this] {
        for (const double scale : {2.0, 3.0, 4.0}) {
            m_core.changes().mark();
            m_mline->setScale(scale);
        }
        m_core.changes().rollBackToMark();
        m_core.changes().rollBackToMark();
    };
    EXPECT_TRUE(command(rollTwoBack));
    for (const double scale : {3.0, 4.0}) {
        EXPECT_TRUE(m_core.changes().redo());
        EXPECT_EQ(m_mline->scale(), scale);
    }
    EXPECT_FALSE(m_core.changes().redo());
    m_core.changes().undo();
    EXPECT_FALSE(command([&] {
        rollTwoBack();
        m_core.changes().rollBackToMark();
    }));
    EXPECT_TRUE(m_core.changes().redo()); // the older one
    EXPECT_EQ(m_mline->scale(), 4.0);
}

TEST_F(UndoSteps, haveANameAndACompanion) {
    struct Counter final : orvex::UndoCompanion {
        int count = 0;
        [[nodiscard]] std::any state() const override { return count; }
        void restore(const std::any& state) override { count = std::any_cast<int>(state); }
    } counter;
    m_core.changes().steps().setCompanion(&counter);
    m_core.changes().beginCommand(L"MOVE");
    m_mline->setScale(2.0);
    m_core.adopt(std::make_unique<KdDbMline>(), ObjectKind::mline, nullptr);
    m_core.adopt(std::make_unique<KdDbEntity>(), ObjectKind::entity, nullptr);
    counter.count = 1;
    m_core.changes().endCommand();
    counter.count = 2;
    const orvex::StepName& name = *m_core.changes().nextUndo();
    EXPECT_EQ(std::tuple(name.command, name.multilines, name.entities), std::tuple(L"MOVE", 2, 3));
    m_core.changes().undo();
    EXPECT_EQ(counter.count, 0);
    EXPECT_EQ(m_core.changes().nextUndo(), nullptr);
    EXPECT_EQ(m_core.changes().nextRedo()->command, L"MOVE");
    m_core.changes().redo();
    EXPECT_EQ(counter.count, 1);
}

} // namespace
