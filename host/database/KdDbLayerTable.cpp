#include "KdDbLayerTable.h"

#include "TableRecordContent.h"

KdRxClass* KdDbLayerTable::desc() {
    static KdRxClass description(L"KdDbLayerTable", KdDbSymbolTable::desc());
    return &description;
}

KdRxClass* KdDbLayerTable::isA() const {
    return desc();
}

KdRxClass* KdDbLayerTableRecord::desc() {
    static KdRxClass description(L"KdDbLayerTableRecord", KdDbSymbolTableRecord::desc());
    return &description;
}

KdRxClass* KdDbLayerTableRecord::isA() const {
    return desc();
}

void KdDbLayerTableRecord::setColor(const KdCmColor& color) {
    aboutToChange();
    m_color = color;
}

void KdDbLayerTableRecord::setLinetype(const wchar_t* name) {
    aboutToChange();
    m_linetype = name != nullptr ? name : L"";
}

void KdDbLayerTableRecord::setLineweight(int lineweight) {
    aboutToChange();
    m_lineweight = lineweight;
}

void KdDbLayerTableRecord::setIsOff(bool off) {
    aboutToChange();
    m_off = off;
}

void KdDbLayerTableRecord::setIsFrozen(bool frozen) {
    aboutToChange();
    m_frozen = frozen;
}

void KdDbLayerTableRecord::setIsLocked(bool locked) {
    aboutToChange();
    m_locked = locked;
}

namespace orvex {

bool LayerContent::equals(const ObjectContent& other) const {
    const auto* const that = dynamic_cast<const LayerContent*>(&other);
    return that != nullptr && name == that->name && color == that->color &&
           linetype == that->linetype && lineweight == that->lineweight && off == that->off &&
           frozen == that->frozen && locked == that->locked;
}

} // namespace orvex

std::shared_ptr<const orvex::ObjectContent> KdDbLayerTableRecord::content() const {
    auto content = std::make_shared<orvex::LayerContent>();
    content->name = name();
    content->color = m_color;
    content->linetype = m_linetype;
    content->lineweight = m_lineweight;
    content->off = m_off;
    content->frozen = m_frozen;
    content->locked = m_locked;
    return content;
}

Status
KdDbLayerTableRecord::setContent(const std::shared_ptr<const orvex::ObjectContent>& content) {
    const auto typed = std::dynamic_pointer_cast<const orvex::LayerContent>(content);
    if (typed == nullptr) {
        return Status::wrongClass;
    }
    aboutToChange();
    storeName(typed->name);
    m_color = typed->color;
    m_linetype = typed->linetype;
    m_lineweight = typed->lineweight;
    m_off = typed->off;
    m_frozen = typed->frozen;
    m_locked = typed->locked;
    return Status::done;
}
