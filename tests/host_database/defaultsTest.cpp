#include "DatabaseCore.h"
#include "KdDbBlockTable.h"
#include "KdDbDatabase.h"
#include "KdDbDictionary.h"
#include "KdDbLayerTable.h"
#include "KdDbLinetypeTable.h"
#include "KdDbMline.h"
#include "KdDbMlineStyle.h"
#include "kddbObjects.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

std::vector<std::wstring> blockNames(const KdDbDatabase& database) {
    std::vector<std::wstring> names;
    KdDbBlockTable* table = nullptr;
    EXPECT_EQ(database.getBlockTable(table, kForRead), Status::done);
    KdDbBlockTableIterator* iterator = nullptr;
    EXPECT_EQ(table->newIterator(iterator), Status::done);
    const std::unique_ptr<KdDbBlockTableIterator> owner(iterator);
    for (; !iterator->done(); iterator->step()) {
        KdDbBlockTableRecord* record = nullptr;
        EXPECT_EQ(iterator->getRecord(record, kForRead), Status::done);
        names.push_back(record->name());
        record->close();
    }
    return names;
}

TEST(Defaults, ANewDatabaseHoldsWhatEveryDrawingHas) {
    const KdDbDatabase database;

    KdDbDictionary* styles = nullptr;
    ASSERT_EQ(database.getMLStyleDictionary(styles, kForRead), Status::done);
    KdDbObjectId id;
    ASSERT_EQ(styles->getAt(L"Standard", id), Status::done);
    KdDbMlineStyle* style = nullptr;
    ASSERT_EQ(kddbOpenObject(style, id, kForRead), Status::done);
    EXPECT_EQ(style->numElements(), 2);
    EXPECT_EQ(database.cmlstyle(), id);
    EXPECT_EQ(style->ownerId(), styles->objectId());

    KdDbLayerTableRecord* layer = nullptr;
    ASSERT_EQ(kddbOpenObject(layer, database.clayer(), kForRead), Status::done);
    EXPECT_EQ(layer->name(), L"0");

    KdDbLinetypeTable* linetypes = nullptr;
    ASSERT_EQ(kddbOpenObject(linetypes, database.linetypeTableId(), kForRead), Status::done);
    for (const wchar_t* const name : {L"BYLAYER", L"byblock", L"Continuous"}) {
        EXPECT_EQ(linetypes->getAt(name, id), Status::done) << name;
    }
    EXPECT_EQ(blockNames(database), (std::vector<std::wstring>{L"*Model_Space", L"*Paper_Space"}));
    EXPECT_TRUE(database.core().changedStubs().empty());
}

TEST(Defaults, CompletingADrawingGivesNoHandlesAndIsNoChange) {
    KdDbDatabase database(false);
    orvex::DatabaseCore& core = database.core();
    core.noteHighestHandle(0x2F);
    core.completeDefaults();
    for (const KdDbStub& stub : core.stubs()) {
        EXPECT_EQ(stub.handle, 0U);
    }
    EXPECT_TRUE(core.changedStubs().empty());

    KdDbStub* const style = core.findStyle(L"STANDARD");
    ASSERT_NE(style, nullptr);
    EXPECT_EQ(core.ensureHandle(*style), 0x30U);
    EXPECT_EQ(core.findHandle(0x30), style);
    EXPECT_EQ(core.takeHandle(), 0x31U);
}

TEST(Defaults, AnEmptyDatabaseHasItsTablesAllTheSame) {
    const KdDbDatabase database(false);
    EXPECT_FALSE(database.linetypeTableId().isNull());
    EXPECT_FALSE(database.layerTableId().isNull());
    EXPECT_TRUE(blockNames(database).empty());
    EXPECT_TRUE(database.cmlstyle().isNull());
    KdDbDictionary* styles = nullptr;
    EXPECT_NE(database.getMLStyleDictionary(styles, kForRead), Status::done);
    EXPECT_EQ(styles, nullptr);
}

TEST(Defaults, AMultilineTakesTheCurrentValues) {
    KdDbDatabase database;
    orvex::DatabaseCore& core = database.core();
    core.setVariable("CMLSCALE", 20.0);
    core.setVariable("CMLJUST", 2);
    core.setVariable("CECOLOR", 3);
    core.setVariable("CLAYER", std::wstring(L"Walls"));
    KdDbMline mline;
    mline.setDatabaseDefaults(&database);
    EXPECT_EQ(mline.scale(), 20.0);
    EXPECT_EQ(mline.justification(), 2);
    EXPECT_EQ(mline.color().colorIndex(), 3);
    EXPECT_EQ(mline.layer(), L"Walls");
    EXPECT_EQ(mline.style(), database.cmlstyle());
}

} // namespace
