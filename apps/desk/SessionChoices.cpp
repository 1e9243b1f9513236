#include "SessionChoices.h"

#include "KdDbDatabase.h"
#include "KdDbLinetypeTable.h"
#include "KdDocument.h"
#include "Opened.h"
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
    const Opened<KdDbLinetypeTable> table(document->database()->linetypeTableId(), kForRead);
    if (!table) {
        return choices;
    }
    for (const KdDbObjectId id : table->records()) {
        if (const Opened<KdDbLinetypeTableRecord> record(id, kForRead); record) {
            choices.push_back({record->name(), record->dashes()});
        }
    }
    return choices;
}

} // namespace orvex
