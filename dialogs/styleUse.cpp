#include "styleUse.h"

#include "CStdStr.h"
#include "KdDbBlockTable.h"
#include "KdDbDatabase.h"
#include "KdDbMline.h"
#include "KdDbMlineStyle.h"
#include "KdDocument.h"
#include "kddbObjects.h"

#include <memory>

namespace {

bool isNamed(KdDbObjectId styleId, const wchar_t* name) {
    KdDbMlineStyle* style = nullptr;
    kddbOpenObject(style, styleId, kForRead);
    if (style == nullptr) {
        return false;
    }
    const bool same = StrCmpI(style->name(), name) == 0;
    style->close();
    return same;
}

bool isUsedIn(const KdDbBlockTableRecord& block, const wchar_t* name) {
    KdDbBlockTableRecordIterator* made = nullptr;
    block.newIterator(made);
    const std::unique_ptr<KdDbBlockTableRecordIterator> walk(made);
    bool used = false;
    for (; walk != nullptr && !walk->done() && !used; walk->step()) {
        KdDbEntity* entity = nullptr;
        walk->getEntity(entity, kForRead);
        if (entity == nullptr) {
            continue;
        }
        if (entity->isA() == KdDbMline::desc()) {
            used = isNamed(static_cast<const KdDbMline*>(entity)->style(), name);
        }
        entity->close();
    }
    return used;
}

} // namespace

bool isStyleUsed(const wchar_t* name) {
    const KdDocument* const document = curDoc();
    if (document == nullptr || name == nullptr) {
        return false;
    }
    KdDbBlockTable* blocks = nullptr;
    document->database()->getBlockTable(blocks, kForRead);
    if (blocks == nullptr) {
        return false;
    }
    KdDbBlockTableIterator* made = nullptr;
    blocks->newIterator(made);
    const std::unique_ptr<KdDbBlockTableIterator> walk(made);
    bool used = false;
    for (; walk != nullptr && !walk->done() && !used; walk->step()) {
        KdDbBlockTableRecord* block = nullptr;
        walk->getRecord(block, kForRead);
        if (block != nullptr) {
            used = isUsedIn(*block, name);
            block->close();
        }
    }
    blocks->close();
    return used;
}
