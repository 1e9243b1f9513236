#include "BlockList.h"
#include "ChangeLog.h"
#include "DatabaseCore.h"
#include "DictionaryContent.h"
#include "KdDbBlockTable.h"
#include "KdDbDictionary.h"
#include "KdDbLayerTable.h"
#include "KdDbLinetypeTable.h"
#include "KdDbMlineStyle.h"
#include "WellKnownObjects.h"

namespace orvex {

namespace {

// Makes what every drawing has and a file may have left out. Nothing that it does is a change.
class DefaultsBuilder {
public:
    explicit DefaultsBuilder(DatabaseCore& core) : m_core(core), m_pause(core.changes()) {}

    void completeTables() {
        ensure<KdDbLayerTable>(m_core.wellKnown().layerTable);
        ensure<KdDbLinetypeTable>(m_core.wellKnown().linetypeTable);
        ensure<KdDbBlockTable>(m_core.wellKnown().blockTable);
    }

    void completeRecords() {
        for (const wchar_t* const name : {L"ByBlock", L"ByLayer", L"Continuous"}) {
            ensureRecord<KdDbLinetypeTableRecord>(m_core.wellKnown().linetypeTable, name);
        }
        ensureRecord<KdDbLayerTableRecord>(m_core.wellKnown().layerTable, L"0");
    }

    void completeBlocks() {
        static_cast<void>(m_core.blocks().modelSpace());
        if (m_core.blocks().find(L"*Paper_Space") == nullptr) {
            m_core.blocks().add(L"*Paper_Space");
        }
        for (BlockEntities& block : m_core.blocks().all()) {
            if (block.record == nullptr) {
                auto record = std::make_unique<KdDbBlockTableRecord>();
                record->setName(block.name.c_str());
                block.record = &make(std::move(record), m_core.wellKnown().blockTable);
                noteIn(m_core.wellKnown().blockTable, *block.record);
            }
        }
    }

    void completeStyles() {
        ensure<KdDbDictionary>(m_core.wellKnown().rootDictionary);
        if (m_core.wellKnown().styleDictionary == nullptr) {
            ensure<KdDbDictionary>(m_core.wellKnown().styleDictionary,
                                   m_core.wellKnown().rootDictionary);
            enter(m_core.wellKnown().rootDictionary, L"ACAD_MLINESTYLE",
                  *m_core.wellKnown().styleDictionary);
        }
        if (m_core.wellKnown().findStyle(L"STANDARD") == nullptr) {
            auto style = std::make_unique<KdDbMlineStyle>();
            style->initMlineStyle();
            setByLayer(*style);
            enter(m_core.wellKnown().styleDictionary, L"STANDARD",
                  make(std::move(style), m_core.wellKnown().styleDictionary));
        }
    }

private:
    template <class T>
    KdDbStub& make(std::unique_ptr<T> object, KdDbStub* owner) {
        const ObjectKind kind = kindOf(*object);
        return m_core.adopt(std::move(object), kind, owner);
    }

    template <class T>
    void ensure(KdDbStub*& stub, KdDbStub* owner = nullptr) {
        if (stub == nullptr) {
            stub = &make(std::make_unique<T>(), owner);
        }
    }

    template <class Record>
    void ensureRecord(KdDbStub* table, const wchar_t* name) {
        const auto* const object = dynamic_cast<KdDbSymbolTable*>(m_core.load(*table));
        KdDbObjectId id;
        if (object != nullptr && object->getAt(name, id) != Status::done) {
            auto record = std::make_unique<Record>();
            record->setName(name);
            noteIn(table, make(std::move(record), table));
        }
    }

    void noteIn(KdDbStub* table, KdDbStub& record) {
        if (auto* const object = dynamic_cast<KdDbSymbolTable*>(m_core.load(*table))) {
            object->noteRecord(KdDbObjectId(&record));
        }
    }

    void enter(KdDbStub* dictionary, const wchar_t* key, KdDbStub& entry) {
        if (auto* const object = dynamic_cast<KdDbDictionary*>(m_core.load(*dictionary))) {
            auto content = std::make_shared<DictionaryContent>(object->entries());
            const std::size_t index = content->find(key);
            if (index == content->entries.size()) {
                content->entries.push_back({key, KdDbObjectId(&entry)});
            } else {
                // What the entry named can't be used, but the file may have it: it isn't erased.
                content->entries[index].id = KdDbObjectId(&entry);
            }
            object->setContent(std::move(content));
        }
    }

    void setByLayer(KdDbMlineStyle& style) const {
        const KdDbObjectId linetype(m_core.wellKnown().findLinetype(L"ByLayer"));
        for (int index = 0; index < style.numElements(); ++index) {
            double offset = 0.0;
            KdCmColor color;
            KdDbObjectId none;
            style.getElementAt(index, offset, color, none);
            style.setElement(index, offset, color, linetype);
        }
    }

    DatabaseCore& m_core;
    ChangeLog::Pause m_pause;
};

} // namespace

void WellKnownObjects::completeTables() {
    DefaultsBuilder(m_core).completeTables();
}

void WellKnownObjects::completeDefaults() {
    DefaultsBuilder builder(m_core);
    builder.completeTables();
    builder.completeRecords();
    builder.completeBlocks();
    builder.completeStyles();
}

} // namespace orvex
