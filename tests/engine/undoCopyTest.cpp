#include "CMlineEdit.h"

#include "CMlineOpenObject.h"
#include "EngineWorld.h"

namespace {

using UndoCopies = orvex::testing::EngineWorld;

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

    // One entity in both records.
    nameOf(a, second.m_name);
    first.m_mline = second.m_mline = a;
    { const CMlineOpenObject open(&first, &second); }
    EXPECT_FALSE(isOpen(a));
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
