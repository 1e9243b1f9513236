#include "SessionChoices.h"

#include "KdDbDatabase.h"
#include "KdDbLinetypeTable.h"
#include "KdDocument.h"
#include "kddbObjects.h"

namespace orvex {

namespace {

enum ReservedName { kByLayer = 0, kByBlock = 1, kContinuous = 3 };

} // namespace

std::wstring SessionChoices::byLayerName() const {
    return kddbGetReservedString(kByLayer, true);
}

std::wstring SessionChoices::byBlockName() const {
    return kddbGetReservedString(kByBlock, true);
}

std::wstring SessionChoices::continuousName() const {
    return kddbGetReservedString(kContinuous, true);
}

std::vector<LinetypeChoice> SessionChoices::linetypes() const {
    std::vector<LinetypeChoice> choices;
    KdDocument* const document = curDoc();
    if (document == nullptr || document->database() == nullptr) {
        return choices;
    }
    KdDbLinetypeTable* table = nullptr;
    kddbOpenObject(table, document->database()->linetypeTableId(), kForRead);
    if (table == nullptr) {
        return choices;
    }
    for (const KdDbObjectId id : table->records()) {
        KdDbLinetypeTableRecord* record = nullptr;
        kddbOpenObject(record, id, kForRead);
        if (record != nullptr) {
            choices.push_back({record->name(), record->dashes()});
            record->close();
        }
    }
    table->close();
    return choices;
}

} // namespace orvex
