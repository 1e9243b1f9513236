#include "KdDbLinetypeTable.h"

#include "TableRecordContent.h"
#include "sameBits.h"

KdRxClass* KdDbLinetypeTable::desc() {
    static KdRxClass description(L"KdDbLinetypeTable", KdDbSymbolTable::desc());
    return &description;
}

KdRxClass* KdDbLinetypeTable::isA() const {
    return desc();
}

KdRxClass* KdDbLinetypeTableRecord::desc() {
    static KdRxClass description(L"KdDbLinetypeTableRecord", KdDbSymbolTableRecord::desc());
    return &description;
}

KdRxClass* KdDbLinetypeTableRecord::isA() const {
    return desc();
}

void KdDbLinetypeTableRecord::setComments(const wchar_t* comments) {
    aboutToChange();
    m_comments = comments != nullptr ? comments : L"";
}

void KdDbLinetypeTableRecord::setDashes(std::vector<double> dashes) {
    aboutToChange();
    m_dashes = std::move(dashes);
}

namespace orvex {

bool LinetypeContent::equals(const ObjectContent& other) const {
    const auto* const that = dynamic_cast<const LinetypeContent*>(&other);
    return that != nullptr && name == that->name && comments == that->comments &&
           sameBits(std::span<const double>(dashes), std::span<const double>(that->dashes));
}

} // namespace orvex

std::shared_ptr<const orvex::ObjectContent> KdDbLinetypeTableRecord::content() const {
    auto content = std::make_shared<orvex::LinetypeContent>();
    content->name = name();
    content->comments = m_comments;
    content->dashes = m_dashes;
    return content;
}

Status
KdDbLinetypeTableRecord::setContent(const std::shared_ptr<const orvex::ObjectContent>& content) {
    const auto typed = std::dynamic_pointer_cast<const orvex::LinetypeContent>(content);
    if (typed == nullptr) {
        return Status::wrongClass;
    }
    aboutToChange();
    storeName(typed->name);
    m_comments = typed->comments;
    m_dashes = typed->dashes;
    return Status::done;
}
