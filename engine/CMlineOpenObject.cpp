#include "CMlineOpenObject.h"

#include "CMlineSegment.h"
#include "KdDbMline.h"
#include "kddbObjects.h"

namespace {

void reopenForWrite(CMlineSegment& record) {
    if (record.m_mline != nullptr) {
        record.m_mline->close();
        record.m_mline = nullptr;
    }
    KdDbObjectId id;
    kddbGetObjectId(id, record.m_name);
    kddbOpenObject(record.m_mline, id, kForWrite);
}

} // namespace

CMlineOpenObject::CMlineOpenObject(CMlineSegment* first, CMlineSegment* second)
    : m_first(first), m_second(second) {
    if (m_first->m_mline != nullptr) {
        reopenForWrite(*m_first);
    }
    if (m_second->m_name[0] != m_first->m_name[0]) {
        reopenForWrite(*m_second);
    }
}

CMlineOpenObject::~CMlineOpenObject() {
    if (m_first->m_mline != nullptr) {
        m_first->m_mline->close();
        m_first->m_mline = nullptr;
    }
    if (m_second->m_mline != nullptr) {
        m_second->m_mline->close();
        // The second record keeps its pointer; see the header.
        m_first->m_mline = nullptr;
    }
}
