#include "CMlineEdit.h"

#include "CMlineOpenObject.h"
#include "EngineWorld.h"
#include "ObjectContent.h"
#include "parameterLists.h"

namespace {

using UndoCopies = orvex::testing::EngineWorld;

TEST_F(UndoCopies, AreMadeInMemoryAndWrittenBackByName) {
    KdDbMline* const mline = addMline({{0, 0, 0}, {10, 0, 0}, {10, 10, 0}}, {0.5, -0.5});
    CMlineEdit run;
    KdDbMline copy;
    run.MlineCopy(&copy, mline);
    EXPECT_TRUE(copy.content()->equals(*mline->content()));
    run.MlineCopy(&copy, nullptr);
    run.MlineCopy(static_cast<KdDbMline*>(nullptr), mline);
    EXPECT_EQ(copy.numVertices(), 3);

    const auto before = mline->content();
    storeLineList(mline, 1, 0, {7, 8, 9});
    mline->setClosedMline(true);
    ASSERT_FALSE(mline->content()->equals(*before));
    long name[2];
    nameOf(mline, name);
    run.MlineCopy(name, &copy);
    EXPECT_TRUE(mline->content()->equals(*before));
    EXPECT_FALSE(isOpen(mline));
    EXPECT_EQ(mline->style(), database.cmlstyle());
}

TEST_F(UndoCopies, OfNothingArentWrittenBack) {
    KdDbMline* const mline = addMline({{0, 0, 0}, {10, 0, 0}}, {0.5});
    CMlineEdit run;
    KdDbMline empty;
    long name[2];
    nameOf(mline, name);
    run.MlineCopy(name, &empty);
    run.MlineCopy(name, nullptr);
    EXPECT_EQ(mline->numVertices(), 2);

    long none[2] = {0, 0};
    KdDbMline copy;
    run.MlineCopy(&copy, mline);
    run.MlineCopy(none, &copy);
    nameOf(addLine(), name);
    run.MlineCopy(name, &copy); // another class refuses it
}

// The guard's oddities: the second record keeps its pointer, the first loses it.
TEST_F(UndoCopies, TheGuardOpensForWriteAndCloses) {
    KdDbMline* const a = addMline({{0, 0, 0}, {10, 0, 0}}, {0.5});
    KdDbMline* const b = addMline({{0, 5, 0}, {10, 5, 0}}, {0.5});
    CMlineSegment first;
    CMlineSegment second;
    nameOf(a, first.m_name);
    nameOf(b, second.m_name);
    first.m_mline = a;
    {
        const CMlineOpenObject open(&first, &second);
        EXPECT_EQ(first.m_mline, a);
        EXPECT_EQ(second.m_mline, b) << "opened though the record held none";
        EXPECT_TRUE(isOpenForWrite(a));
        EXPECT_TRUE(isOpenForWrite(b));
    }
    EXPECT_EQ(first.m_mline, nullptr);
    EXPECT_EQ(second.m_mline, b);
    EXPECT_FALSE(isOpen(a));
    EXPECT_FALSE(isOpen(b));

    // One entity in both records, and none in the second.
    nameOf(a, second.m_name);
    first.m_mline = second.m_mline = a;
    { const CMlineOpenObject open(&first, &second); }
    EXPECT_FALSE(isOpen(a));
    first.m_mline = a;
    second = CMlineSegment();
    {
        const CMlineOpenObject open(&first, &second);
        EXPECT_EQ(second.m_mline, nullptr);
    }
    // An entity that is gone leaves null.
    first.m_mline = b;
    nameOf(b, first.m_name);
    b->erase();
    {
        const CMlineOpenObject open(&first, &second);
        EXPECT_EQ(first.m_mline, nullptr);
    }
}

} // namespace
