#include "DrawingDocument.h"

#include "DictionaryRecord.h"
#include "EntityShapes.h"
#include "KdDbBlockTable.h"
#include "KdDbDictionary.h"
#include "KdDbMline.h"
#include "KdDbMlineStyle.h"
#include "MlineRecord.h"
#include "NumberText.h"
#include "StyleRecord.h"
#include "TableRecords.h"
#include "TraitsRecord.h"
#include "blanks.h"

#include <algorithm>

namespace orvex {

namespace {

template <class Table>
std::unique_ptr<KdDbObject> makeTable(const std::vector<KdDbStub*>& records) {
    auto table = std::make_unique<Table>();
    for (KdDbStub* const record : records) {
        table->noteRecord(KdDbObjectId(record));
    }
    return table;
}

template <class Object, class Content>
std::unique_ptr<KdDbObject> makeObject(std::shared_ptr<Content> content) {
    if (content == nullptr) {
        return nullptr;
    }
    auto object = std::make_unique<Object>();
    object->setContent(std::move(content));
    return object;
}

std::unique_ptr<KdDbObject> makeEntity(const EntityTraits& traits) {
    auto entity = std::make_unique<KdDbEntity>();
    entity->setTraits(traits);
    return entity;
}

std::unique_ptr<KdDbObject> makeBlockRecord(const RecordContext& context, const RecordSpan& span) {
    auto record = std::make_unique<KdDbBlockTableRecord>();
    record->setName(context.text.decode(readName(context.bytes, span)).c_str());
    return record;
}

} // namespace

const RecordRun* DrawingDocument::findSection(std::string_view name) const {
    const auto found = std::ranges::find(sections, name, &RecordRun::name);
    return found != sections.end() ? &*found : nullptr;
}

const RecordRun* DrawingDocument::findLastSection(std::string_view name) const {
    const auto found = std::find_if(sections.rbegin(), sections.rend(),
                                    [name](const RecordRun& run) { return run.name == name; });
    return found != sections.rend() ? &*found : nullptr;
}

const RecordRun* DrawingDocument::findTable(std::string_view kind) const {
    const auto found = std::ranges::find(tables, kind, &RecordRun::name);
    return found != tables.end() ? &*found : nullptr;
}

KdDbStub* DrawingDocument::findObject(std::uint64_t handle) const {
    const auto found = objects.find(handle);
    return found != objects.end() ? found->second : nullptr;
}

const ObjectRecords& DrawingDocument::objectRecords() const {
    if (m_objectRecords) {
        return *m_objectRecords;
    }
    ObjectRecords& found = m_objectRecords.emplace();
    for (const RecordRun& run : sections) {
        if (run.name != "OBJECTS") {
            continue;
        }
        for (std::uint32_t i = run.begin; i < run.end; ++i) {
            const Record& record = cut.records[i];
            found.byHandle.try_emplace(record.handle, i);
            if (record.kind == RecordKind::group) {
                found.groups.push_back(i);
            } else if (record.kind == RecordKind::sortTable) {
                found.sortTables.push_back(i);
            }
        }
    }
    return found;
}

std::unique_ptr<KdDbObject> DrawingDocument::load(const KdDbStub& stub) {
    const RecordContext here = context(*stub.database);
    const RecordSpan place = span(stub.record);
    switch (stub.kind) {
    case ObjectKind::entity:
        return makeEntity(readTraits(bytes, place.begin, place.end, text));
    case ObjectKind::mline:
        return makeObject<KdDbMline>(readMline(here, place, m_parser));
    case ObjectKind::mlineStyle:
        return makeObject<KdDbMlineStyle>(readStyle(here, place));
    case ObjectKind::dictionary:
        return loadDictionary(here, place);
    case ObjectKind::layerTable:
        return makeTable<KdDbLayerTable>(layers);
    case ObjectKind::layer:
        return readLayer(here, place);
    case ObjectKind::linetypeTable:
        return makeTable<KdDbLinetypeTable>(linetypes);
    case ObjectKind::linetype:
        return readLinetype(here, place);
    case ObjectKind::blockTable:
        return makeTable<KdDbBlockTable>(blockRecords);
    case ObjectKind::blockRecord:
        return makeBlockRecord(here, place);
    case ObjectKind::opaque:
        break;
    }
    return nullptr;
}

std::unique_ptr<KdDbObject> DrawingDocument::loadDictionary(const RecordContext& context,
                                                            const RecordSpan& span) const {
    auto content = std::make_shared<DictionaryContent>();
    for (const DictionaryPair& pair : readPairs(bytes, span)) {
        content->entries.push_back(
            {context.text.decode(trimBlanks(pair.key)), KdDbObjectId(findObject(pair.handle))});
    }
    return makeObject<KdDbDictionary>(std::move(content));
}

std::optional<KdDbObjectId> DrawingDocument::styleOf(const KdDbStub& stub) const {
    if (stub.kind != ObjectKind::mline || stub.record == kNoRecord ||
        cut.records[stub.record].namedStyle == 0) {
        return std::nullopt;
    }
    if (m_namedStyles.empty()) {
        for (const NamedStyle& named : cut.namedStyles) {
            m_namedStyles.emplace_back(findStyle(*stub.database, named.handle));
        }
    }
    return m_namedStyles[cut.records[stub.record].namedStyle - 1];
}

EntityShape DrawingDocument::shapeOf(const KdDbStub& stub) const {
    if (stub.kind != ObjectKind::entity || stub.record == kNoRecord) {
        return {};
    }
    const RecordTable& records = cut.records;
    const RecordSpan place{records.begin(stub.record),
                           records.begin(records.skipParts(stub.record + 1))};
    return readShape(records[stub.record].kind, bytes, place, text);
}

} // namespace orvex
