#include "CMlineEdit.h"

#include "KdDbMline.h"
#include "kddbObjects.h"

using namespace mledit;

CMlineEdit::CMlineEdit() {
    constexpr std::size_t kUsualBreaks = 128;
    m_breaks.reserve(kUsualBreaks);
}

// Closes no entity; the last cycle can't be taken back any more.
CMlineEdit::~CMlineEdit() {
    delete m_undoFirst;
    delete m_undoSecond;
    freePointTable(m_first.m_ptList, m_first.m_ptListSize);
    freePointTable(m_second.m_ptList, m_second.m_ptListSize);
    freePointTable(m_crossing, m_crossingSize);
}

void CMlineEdit::MlineCopy(KdDbMline* target, KdDbMline* source) {
    if (target != nullptr && source != nullptr) {
        target->copyFrom(source);
    }
}

void CMlineEdit::MlineCopy(long* name, KdDbMline* source) {
    // A copy without vertices was made of an entity that couldn't be opened: nothing to give back.
    if (source == nullptr || source->numVertices() == 0) {
        return;
    }
    KdDbObjectId id;
    kddbGetObjectId(id, name);
    KdDbEntity* entity = nullptr;
    kddbOpenObject(entity, id, kForWrite);
    if (entity != nullptr) {
        entity->copyFrom(source);
        entity->close();
    }
}
