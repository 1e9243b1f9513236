#include "FlatSource.h"
#include "KdDbDatabase.h"
#include "KdDbMlineStyle.h"
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
        m_database.core().setSource(m_source);
        m_mline = KdDbObjectId(&m_database.core().addStub(ObjectKind::mline, 0x40, 1, nullptr));
        m_line = KdDbObjectId(&m_database.core().addStub(ObjectKind::entity, 0x41, 2, nullptr));
    }

    KdDbDatabase m_database{false};
    std::shared_ptr<FlatSource> m_source = std::make_shared<FlatSource>();
    KdDbObjectId m_mline;
    KdDbObjectId m_line;
};

TEST_F(Opening, AnyNumberOfOpensGiveOneObject) {
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
    EXPECT_EQ(kddbOpenObject(second, m_mline, kForWrite), Status::done);
    EXPECT_EQ(first, second);
}

TEST_F(Opening, AFailedOpenGivesNull) {
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
            &m_database.core().addStub(kind, 0, FlatSource::kBroken, nullptr));
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

TEST_F(Opening, TheEndOfACommandClosesWhatWasForgotten) {
    orvex::DatabaseCore& core = m_database.core();
    core.beginCommand();
    KdDbEntity* entity = nullptr;
    kddbOpenObject(entity, m_mline, kForRead);
    kddbOpenObject(entity, m_line, kForWrite);
    kddbOpenObject(entity, m_mline, kForWrite);
    m_mline.stub()->object->close(); // leaves the read
    EXPECT_EQ(m_mline.stub()->openForRead, 1);
    EXPECT_FALSE(core.endCommand());
    EXPECT_EQ(m_mline.stub()->openForRead, 0);
    EXPECT_EQ(m_line.stub()->openForWrite, 0);
}

TEST_F(Opening, WhatIsOnlySeenCantBeEdited) {
    KdDbEntity* entity = nullptr;
    ASSERT_EQ(kddbOpenObject(entity, m_line, kForWrite), Status::done);
    EXPECT_NE(entity->setLayer(L"X"), Status::done);
    EXPECT_NE(entity->setColorIndex(3), Status::done);
    EXPECT_EQ(entity->layer(), L"0");
    EXPECT_TRUE(m_database.core().changedStubs().empty());
}

TEST_F(Opening, NamesLeadBackToTheirObjects) {
    std::array<long, 2> a{};
    std::array<long, 2> b{};
    EXPECT_EQ(kddbGetEntityName(a.data(), m_mline), Status::done);
    EXPECT_EQ(kddbGetEntityName(b.data(), m_line), Status::done);
    EXPECT_GT(a[0], 0);
    EXPECT_NE(a[0], b[0]);
    a[1] = 99; // the first word alone counts
    KdDbObjectId id;
    EXPECT_EQ(kddbGetObjectId(id, a.data()), Status::done);
    EXPECT_EQ(id, m_mline);
    EXPECT_NE(kddbGetEntityName(a.data(), KdDbObjectId()), Status::done);
    EXPECT_EQ(a, (std::array<long, 2>{}));
}

TEST_F(Opening, NamesThatMeanNothingGiveANullId) {
    std::array<long, 2> name{};
    kddbGetEntityName(name.data(), m_mline);
    std::array<long, 2> gone{};
    {
        KdDbDatabase other;
        kddbGetEntityName(gone.data(), other.clayer());
        KdDbObjectId id;
        EXPECT_EQ(kddbGetObjectId(id, gone.data()), Status::done);
    }
    const KdDbDatabase later; // may well lie where the other lay
    for (const long word : {0L, -1L, 1L, name[0] + 2, name[0] - 1, name[0] | (1L << 62),
                            reinterpret_cast<long>(this), gone[0]}) {
        const std::array<long, 2> odd{word, 5};
        KdDbObjectId id = m_mline;
        EXPECT_NE(kddbGetObjectId(id, odd.data()), Status::done) << word;
        EXPECT_TRUE(id.isNull()) << word;
    }
    m_database.core().erase(*m_mline.stub());
    KdDbObjectId id = m_line;
    EXPECT_NE(kddbGetObjectId(id, name.data()), Status::done);
    EXPECT_TRUE(id.isNull());
}

TEST_F(Opening, ADatabaseMayGoWithObjectsOpenInIt) {
    auto database = std::make_unique<KdDbDatabase>(true, false);
    KdDbMlineStyle* style = nullptr;
    ASSERT_EQ(kddbOpenObject(style, database->cmlstyle(), kForWrite), Status::done);
    KdDbMline outside;
    outside.setDatabaseDefaults(database.get());
    database.reset();
    EXPECT_EQ(outside.numVertices(), 0);
}

} // namespace
