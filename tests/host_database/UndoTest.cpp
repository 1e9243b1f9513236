#include "ChangeLog.h"
#include "DatabaseCore.h"
#include "FlatSource.h"
#include "KdDbDatabase.h"
#include "ObjectTable.h"
#include "UndoLog.h"

#include <gtest/gtest.h>

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
    constexpr std::size_t kFitting = orvex::UndoLog::kMemoryLimit / (kValues * sizeof(double));
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
    while (m_core.changes().undo()) {
    }
    const auto& now = KdDbSystemInternals::getImpObject(m_mline)->content();
    EXPECT_GT(now.lists.line(0, 0).size(), kValues); // not back to the beginning
}

} // namespace
