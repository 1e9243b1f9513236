#include "KdDbBlockTable.h"

#include "BlockList.h"
#include "DatabaseCore.h"
#include "EntityTraits.h"
#include "KdDbEntity.h"
#include "KdDbMline.h"
#include "kddbObjects.h"

namespace {

// Both walk by index, so what is added meanwhile is met, too.
class BlockIterator final : public KdDbBlockTableIterator {
public:
    explicit BlockIterator(orvex::DatabaseCore& core) : m_core(core) { start(); }

    void start() override {
        m_index = 0;
        skipMissing();
    }
    [[nodiscard]] bool done() const override { return m_index >= m_core.blocks().all().size(); }
    void step() override {
        if (!done()) {
            ++m_index;
            skipMissing();
        }
    }
    Status getRecord(KdDbBlockTableRecord*& record, int mode) override {
        record = nullptr;
        return done() ? Status::notFound
                      : kddbOpenObject(record, KdDbObjectId(m_core.blocks().all()[m_index].record),
                                       mode);
    }

private:
    void skipMissing() {
        while (!done() && !KdDbObjectId(m_core.blocks().all()[m_index].record).isValid()) {
            ++m_index;
        }
    }

    orvex::DatabaseCore& m_core;
    std::size_t m_index = 0;
};

class EntityIterator final : public KdDbBlockTableRecordIterator {
public:
    explicit EntityIterator(const orvex::BlockEntities& block) : m_block(block) { start(); }

    void start() override {
        m_index = 0;
        skipMissing();
    }
    [[nodiscard]] bool done() const override { return m_index >= m_block.entities.size(); }
    void step() override {
        if (!done()) {
            ++m_index;
            skipMissing();
        }
    }
    [[nodiscard]] KdDbObjectId objectId() const override {
        return done() ? KdDbObjectId() : KdDbObjectId(m_block.entities[m_index]);
    }
    [[nodiscard]] const KdRxClass* entityClass() const override {
        if (done()) {
            return nullptr;
        }
        return m_block.entities[m_index]->kind == orvex::ObjectKind::mline ? KdDbMline::desc()
                                                                           : KdDbEntity::desc();
    }
    Status getEntity(KdDbEntity*& entity, int mode) override {
        return kddbOpenObject(entity, objectId(), mode);
    }

private:
    // What can't be opened is passed over like what is erased.
    void skipMissing() {
        while (!done() && (m_block.entities[m_index]->erased ||
                           m_block.entities[m_index]->kind == orvex::ObjectKind::opaque)) {
            ++m_index;
        }
    }

    const orvex::BlockEntities& m_block;
    std::size_t m_index = 0;
};

} // namespace

KdRxClass* KdDbBlockTable::desc() {
    static KdRxClass description(L"KdDbBlockTable", KdDbSymbolTable::desc());
    return &description;
}

KdRxClass* KdDbBlockTable::isA() const {
    return desc();
}

Status KdDbBlockTable::newIterator(KdDbBlockTableIterator*& iterator) const {
    iterator = nullptr;
    if (objectId().isNull()) {
        return Status::nullId;
    }
    iterator = new BlockIterator(*objectId().stub()->database);
    return Status::done;
}

KdRxClass* KdDbBlockTableRecord::desc() {
    static KdRxClass description(L"KdDbBlockTableRecord", KdDbSymbolTableRecord::desc());
    return &description;
}

KdRxClass* KdDbBlockTableRecord::isA() const {
    return desc();
}

namespace {

orvex::BlockEntities* blockOf(const KdDbBlockTableRecord& record) {
    KdDbStub* const stub = record.objectId().stub();
    return stub != nullptr ? stub->database->blocks().find(*stub) : nullptr;
}

} // namespace

Status KdDbBlockTableRecord::newIterator(KdDbBlockTableRecordIterator*& iterator) const {
    iterator = nullptr;
    const orvex::BlockEntities* const block = blockOf(*this);
    if (block == nullptr) {
        return Status::nullId;
    }
    iterator = new EntityIterator(*block);
    return Status::done;
}

Status KdDbBlockTableRecord::appendEntity(KdDbObjectId& id, KdDbEntity* entity) {
    id = KdDbObjectId();
    orvex::BlockEntities* const block = blockOf(*this);
    if (block == nullptr || entity == nullptr || !entity->objectId().isNull()) {
        return Status::invalidInput;
    }
    orvex::DatabaseCore& core = *objectId().stub()->database;
    auto traits = entity->traits();
    traits.inPaperSpace = block->name.starts_with(L"*Paper_Space");
    entity->setTraits(traits);
    KdDbStub& stub =
        core.adopt(std::unique_ptr<KdDbObject>(entity), orvex::kindOf(*entity), objectId().stub());
    core.blocks().appendEntity(*block, stub);
    id = KdDbObjectId(&stub);
    return Status::done;
}
