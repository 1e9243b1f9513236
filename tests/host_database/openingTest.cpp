#include "DatabaseCore.h"
#include "FlatSource.h"
#include "KdDbDatabase.h"
#include "KdDbMlineStyle.h"
#include "ObjectTable.h"
#include "Opened.h"
#include "databaseRegistry.h"
#include "kddbObjects.h"

#include <gtest/gtest.h>

#include <array>

namespace {

using orvex::kNoRecord;
using orvex::ObjectKind;
using orvex::testing::FlatSource;

class Opening : public ::testing::Test {
protected:
    Opening() {
        m_database.core().objects().setSource(m_source);
        m_mline =
            KdDbObjectId(&m_database.core().objects().addStub(ObjectKind::mline, 0x40, 1, nullptr));
        m_line = KdDbObjectId(
            &m_database.core().objects().addStub(ObjectKind::entity, 0x41, 2, nullptr));
    }

    KdDbDatabase m_database{false};
    std::shared_ptr<FlatSource> m_source = std::make_shared<FlatSource>();
    KdDbObjectId m_mline;
    KdDbObjectId m_line;
};

TEST_F(Opening, anyNumberOfOpensGiveOneObject) {
    KdDbMline* first = nullptr;
    KdDbMline* second = nullptr;
    KdDbEntity* third = nullptr;
    EXPECT_EQ(kddbOpenObject(first, m_mline, kForRead), Status::done);
    EXPECT_EQ(kddbOpenObject(second, m_mline, kForWrite), Status::done);
    EXPECT_EQ(kddbOpenObject(third, m_mline, kForWrite), Status::done);
    EXPECT_EQ(first, second);
    EXPECT_EQ(first, third);
    EXPECT_EQ(m_source->loads, 1);
    for (int i = 0; i < 10; ++i) {
        EXPECT_EQ(first->close(), Status::done); // more often than it was opened
    }
    EXPECT_EQ(first->numVertices(), 3); // good after the close
}

TEST_F(Opening, aFailedOpenGivesNull) {
    auto* const other = reinterpret_cast<KdDbMline*>(this);
    KdDbMline* mline = other;
    EXPECT_EQ(kddbOpenObject(mline, KdDbObjectId(), kForRead), Status::nullId);
    EXPECT_EQ(mline, nullptr);
    mline = other;
    EXPECT_EQ(kddbOpenObject(mline, m_line, kForWrite), Status::wrongClass);
    EXPECT_EQ(mline, nullptr);
    EXPECT_EQ(m_line.stub()->openForWrite, 0);
    for (const auto kind : {ObjectKind::opaque, ObjectKind::mline}) {
        const KdDbObjectId broken(
            &m_database.core().objects().addStub(kind, 0, FlatSource::kBroken, nullptr));
        mline = other;
        EXPECT_NE(kddbOpenObject(mline, broken, kForRead), Status::done);
        EXPECT_EQ(mline, nullptr);
    }
    kddbOpenObject(mline, m_mline, kForRead);
    mline->erase();
    EXPECT_TRUE(mline->isErased());
    EXPECT_EQ(kddbOpenObject(mline, m_mline, kForRead), Status::wasErased);
    EXPECT_EQ(mline, nullptr);
}

TEST_F(Opening, aGuardClosesWhatItOpenedAndNothingElse) {
    {
        const orvex::Opened<KdDbMline> outer(m_mline, kForRead);
        {
            const orvex::Opened<KdDbMline> inner(m_mline, kForRead);
            EXPECT_EQ(&*inner, &*outer);
            EXPECT_EQ(m_mline.stub()->openForRead, 2);
        }
        EXPECT_EQ(m_mline.stub()->openForRead, 1);
        const orvex::Opened<KdDbMlineStyle> wrong(m_mline, kForRead);
        EXPECT_FALSE(wrong);
        EXPECT_EQ(wrong.status(), Status::wrongClass);
    }
    EXPECT_EQ(m_mline.stub()->openForRead, 0);
}

TEST_F(Opening, namesLeadBackToTheirObjectsAndNowhereElse) {
    std::array<long, 2> name{};
    EXPECT_EQ(kddbGetEntityName(name.data(), m_mline), Status::done);
    EXPECT_GT(name[0], 0);
    name[1] = 99; // the first word alone counts
    KdDbObjectId id;
    EXPECT_EQ(kddbGetObjectId(id, name.data()), Status::done);
    EXPECT_EQ(id, m_mline);

    std::array<long, 2> gone{};
    {
        const KdDbDatabase other;
        EXPECT_EQ(kddbGetEntityName(gone.data(), other.clayer()), Status::done);
    }
    const KdDbDatabase later; // may well lie where the other lay
    m_database.core().erase(*m_line.stub());
    std::array<long, 2> erased{};
    kddbGetEntityName(erased.data(), m_line);
    for (const long word : {0L, -1L, 1L, name[0] + 2, name[0] - 1, name[0] | (1L << 62),
                            reinterpret_cast<long>(this), gone[0], erased[0]}) {
        const std::array<long, 2> odd{word, 5};
        id = m_mline;
        EXPECT_NE(kddbGetObjectId(id, odd.data()), Status::done) << word;
        EXPECT_TRUE(id.isNull()) << word;
    }
    EXPECT_NE(kddbGetEntityName(name.data(), KdDbObjectId()), Status::done);
    EXPECT_EQ(name, (std::array<long, 2>{}));
}

TEST_F(Opening, aDatabaseMayGoWithObjectsOpenInIt) {
    auto database = std::make_unique<KdDbDatabase>(true, false);
    KdDbMlineStyle* style = nullptr;
    ASSERT_EQ(kddbOpenObject(style, database->cmlstyle(), kForWrite), Status::done);
    KdDbMline outside;
    outside.setDatabaseDefaults(database.get());
    database.reset();
    EXPECT_EQ(outside.numVertices(), 0);
}

} // namespace
