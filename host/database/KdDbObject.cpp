#include "KdDbObject.h"

#include "DatabaseCore.h"
#include "ObjectContent.h"

bool KdDbObjectId::isValid() const {
    return m_stub != nullptr && !m_stub->erased;
}

unsigned long convertHandleToUInt64(const KdDbHandle& handle) {
    return handle.value;
}

KdDbObject::~KdDbObject() = default;

KdRxClass* KdDbObject::desc() {
    static KdRxClass description(L"KdDbObject", KdRxObject::desc());
    return &description;
}

KdRxClass* KdDbObject::isA() const {
    return desc();
}

KdDbHandle KdDbObject::handle() const {
    return KdDbHandle{m_stub != nullptr ? m_stub->handle : 0};
}

KdDbObjectId KdDbObject::ownerId() const {
    return KdDbObjectId(m_stub != nullptr ? m_stub->owner : nullptr);
}

bool KdDbObject::isErased() const {
    return m_stub != nullptr && m_stub->erased;
}

Status KdDbObject::close() {
    if (m_stub != nullptr) {
        m_stub->database->close(*m_stub);
    }
    return Status::done;
}

Status KdDbObject::erase() {
    if (m_stub == nullptr) {
        return Status::nullId;
    }
    m_stub->database->erase(*m_stub);
    return Status::done;
}

std::shared_ptr<const orvex::ObjectContent> KdDbObject::content() const {
    return nullptr;
}

Status KdDbObject::setContent(const std::shared_ptr<const orvex::ObjectContent>& /*content*/) {
    return Status::wrongClass;
}

Status KdDbObject::copyFrom(const KdRxObject* source) {
    if (source == nullptr) {
        return Status::invalidInput;
    }
    if (source->isA() != isA()) {
        return Status::wrongClass;
    }
    return setContent(static_cast<const KdDbObject*>(source)->content());
}

void KdDbObject::aboutToChange() {
    if (m_stub != nullptr) {
        m_stub->database->aboutToChange(*m_stub);
    }
}
