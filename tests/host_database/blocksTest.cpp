#include "BlockList.h"
#include "DatabaseCore.h"
#include "FlatSource.h"
#include "KdDbBlockTable.h"
#include "KdDbDatabase.h"
#include "KdDbLayerTable.h"
#include "ObjectTable.h"
#include "WellKnownObjects.h"
#include "kddbObjects.h"

#include <gtest/gtest.h>

namespace {

using orvex::BlockEntities;
using orvex::ObjectKind;
using orvex::testing::FlatSource;

std::vector<KdDbObjectId> entitiesOf(KdDbStub& record) {
    KdDbBlockTableRecord* block = nullptr;
    EXPECT_EQ(kddbOpenObject(block, KdDbObjectId(&record), kForRead), Status::done);
    KdDbBlockTableRecordIterator* iterator = nullptr;
    EXPECT_EQ(block->newIterator(iterator), Status::done);
    const std::unique_ptr<KdDbBlockTableRecordIterator> owner(iterator);
    std::vector<KdDbObjectId> ids;
    for (; !iterator->done(); iterator->step()) {
        KdDbEntity* entity = nullptr;
        EXPECT_EQ(iterator->getEntity(entity, kForRead), Status::done);
        EXPECT_EQ(entity->objectId(), iterator->objectId());
        ids.push_back(iterator->objectId());
        entity->close();
    }
    return ids;
}

TEST(Blocks, entitiesAreWalkedInDrawingOrderWithoutTheErased) {
    KdDbDatabase database;
    orvex::DatabaseCore& core = database.core();
    core.objects().setSource(std::make_shared<FlatSource>());
    BlockEntities& space = core.blocks().modelSpace();
    std::vector<KdDbObjectId> expected;
    for (const auto kind : {ObjectKind::entity, ObjectKind::opaque, ObjectKind::mline}) {
        KdDbStub& stub = core.objects().addStub(kind, 0, 1, space.record);
        core.blocks().appendEntity(space, stub);
        if (kind != ObjectKind::opaque) {
            expected.emplace_back(&stub);
        }
    }
    KdDbBlockTableRecord* record = nullptr;
    kddbOpenObject(record, KdDbObjectId(space.record), kForWrite);
    KdDbObjectId gone;
    KdDbObjectId added;
    EXPECT_EQ(record->appendEntity(gone, new KdDbMline), Status::done);
    EXPECT_EQ(record->appendEntity(added, new KdDbMline), Status::done);
    expected.push_back(added);
    core.erase(*gone.stub());
    EXPECT_EQ(entitiesOf(*space.record), expected);
    EXPECT_EQ(added.stub()->object->ownerId(), KdDbObjectId(space.record));
}

TEST(Blocks, anEntityKnowsItsBlock) {
    KdDbDatabase database;
    orvex::DatabaseCore& core = database.core();
    BlockEntities& model = core.blocks().modelSpace();
    BlockEntities& door = core.blocks().add(L"Door"); // no record, as in an old file
    // Where it stands counts, whatever it names as its owner.
    for (KdDbStub* const owner :
         {static_cast<KdDbStub*>(nullptr), model.record, core.wellKnown().layerTable}) {
        for (BlockEntities* const block : {&model, &door}) {
            KdDbStub& entity = core.objects().addStub(ObjectKind::entity, 0, 1, owner);
            core.blocks().appendEntity(*block, entity);
            EXPECT_EQ(core.blocks().blockOf(entity), block);
        }
    }
    EXPECT_EQ(core.blocks().find(L"DOOR"), &door);
    EXPECT_EQ(core.blocks().find(L"Window"), nullptr);
}

TEST(Tables, recordsAreFoundByTheirNamesOfNow) {
    KdDbDatabase database;
    KdDbLayerTable* layers = nullptr;
    ASSERT_EQ(kddbOpenObject(layers, database.layerTableId(), kForWrite), Status::done);
    auto* const walls = new KdDbLayerTableRecord;
    walls->setName(L"Walls");
    KdDbObjectId id;
    ASSERT_EQ(layers->add(id, walls), Status::done);
    KdDbObjectId found;
    EXPECT_EQ(layers->getAt(L"WALLS", found), Status::done);
    EXPECT_EQ(found, id);

    KdDbLayerTableRecord twin;
    twin.setName(L"walls");
    EXPECT_EQ(layers->add(found, &twin), Status::duplicateKey);
    EXPECT_TRUE(found.isNull());

    walls->setName(L"Bricks");
    EXPECT_NE(layers->getAt(L"Walls", found), Status::done);

    walls->erase();
    EXPECT_NE(layers->getAt(L"bricks", found), Status::done);
    EXPECT_EQ(layers->getAt(L"bricks", found, true), Status::done);
    EXPECT_EQ(found, id);
    auto* const again = new KdDbLayerTableRecord;
    again->setName(L"BRICKS");
    ASSERT_EQ(layers->add(id, again), Status::done);
    EXPECT_EQ(layers->getAt(L"bricks", found), Status::done);
    EXPECT_EQ(found, id);
}

} // namespace
