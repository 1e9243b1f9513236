#include "pickTests.h"

#include "KdDbMline.h"
#include "kddbObjects.h"

bool needBreak(const long* name) {
    if (name[0] == 0) {
        return false;
    }
    KdDbObjectId id;
    kddbGetObjectId(id, name);
    if (id.isNull()) {
        return false;
    }
    KdDbEntity* entity = nullptr;
    kddbOpenObject(entity, id, kForRead);
    if (entity == nullptr) {
        return false;
    }
    const bool isMline = entity->isKindOf(KdDbMline::desc());
    entity->close();
    return isMline;
}

bool isCollinear(KdGePoint3d p0, KdGePoint3d p1, KdGePoint3d p2, KdGePoint3d p3) {
    KdGeVector3d a = p1 - p0;
    KdGeVector3d b = p3 - p2;
    KdGeVector3d c = p3 - p1;
    if (c.isZeroLength()) {
        c = p3 - p0;
    }
    a.normalize();
    b.normalize();
    c.normalize();
    if (!a.isEqualTo(b) && !a.isEqualTo(-b)) {
        return false;
    }
    return a.isEqualTo(c) || a.isEqualTo(-c);
}
