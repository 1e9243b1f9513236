#include "KdDbDictionary.h"
#include "DatabaseCore.h"
#include "KdDbDatabase.h"
#include "KdDbMlineStyle.h"
#include "kddbObjects.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace {

using Names = std::vector<std::wstring>;

class Dictionary : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_EQ(m_database.getMLStyleDictionary(m_styles, kForWrite), Status::done);
    }

    KdDbObjectId put(const wchar_t* key) {
        auto* const style = new KdDbMlineStyle;
        style->initMlineStyle();
        style->setName(key);
        KdDbObjectId id;
        EXPECT_EQ(m_styles->setAt(key, style, id), Status::done);
        EXPECT_EQ(style->objectId(), id);
        return id;
    }

    Names names() const {
        Names result;
        const std::unique_ptr<KdDbDictionaryIterator> iterator(m_styles->newIterator());
        for (; !iterator->done(); iterator->next()) {
            result.emplace_back(iterator->name());
        }
        return result;
    }

    KdDbDatabase m_database;
    KdDbDictionary* m_styles = nullptr;
};

TEST_F(Dictionary, keysIgnoreCaseAndStayAsTyped) {
    const KdDbObjectId wall = put(L"Wall");
    KdDbObjectId found;
    EXPECT_EQ(m_styles->getAt(L"WALL", found), Status::done);
    EXPECT_EQ(found, wall);
    EXPECT_TRUE(m_styles->has(L"wALL"));
    std::wstring key;
    EXPECT_EQ(m_styles->nameAt(wall, key), Status::done);
    EXPECT_EQ(key, L"Wall");
    EXPECT_NE(m_styles->getAt(L"Wal", found), Status::done);
    EXPECT_TRUE(found.isNull());
    EXPECT_NE(m_styles->getAt(nullptr, found), Status::done);
    EXPECT_NE(m_styles->nameAt(KdDbObjectId(), key), Status::done);
    EXPECT_EQ(key, L"");
}

TEST_F(Dictionary, removingErasesAndLeavesNoName) {
    const KdDbObjectId id = put(L"Wall");
    EXPECT_EQ(m_styles->remove(L"wall"), Status::done);
    EXPECT_FALSE(m_styles->has(L"Wall"));
    EXPECT_FALSE(id.isValid());
    EXPECT_NE(m_styles->remove(L"wall"), Status::done);
    EXPECT_EQ(names(), Names{L"STANDARD"});
    put(L"Door").stub()->object->erase(); // takes its entry along
    EXPECT_FALSE(m_styles->has(L"Door"));
}

TEST_F(Dictionary, aNewNameKeepsIdAndPlace) {
    const KdDbObjectId a = put(L"A");
    put(L"B");
    EXPECT_EQ(m_styles->setName(L"a", L"C"), Status::done);
    EXPECT_EQ(names(), (Names{L"STANDARD", L"C", L"B"}));
    KdDbObjectId found;
    m_styles->getAt(L"C", found);
    EXPECT_EQ(found, a);
    EXPECT_NE(m_styles->setName(L"C", L"b"), Status::done); // another entry's
    EXPECT_NE(m_styles->setName(L"A", L"D"), Status::done); // gone
    EXPECT_EQ(m_styles->setName(L"C", L"c"), Status::done); // its own in another case
    const KdDbObjectId second = put(L"C");                  // takes the place of the one before
    EXPECT_FALSE(a.isValid());
    EXPECT_TRUE(second.isValid());
    EXPECT_EQ(names(), (Names{L"STANDARD", L"c", L"B"}));
}

TEST_F(Dictionary, anIteratorPassesOverWhatIsRemovedMeanwhile) {
    put(L"A");
    put(L"B");
    put(L"C");
    const std::unique_ptr<KdDbDictionaryIterator> iterator(m_styles->newIterator());
    m_styles->remove(L"B");
    Names seen;
    for (; !iterator->done(); iterator->next()) {
        seen.emplace_back(iterator->name());
        m_styles->remove(iterator->name());
    }
    EXPECT_EQ(seen, (Names{L"STANDARD", L"A", L"C"}));
    EXPECT_EQ(m_styles->numEntries(), 0);
    EXPECT_TRUE(iterator->objectId().isNull());
}

} // namespace
