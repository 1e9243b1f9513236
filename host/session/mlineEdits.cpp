#include "mlineEdits.h"

#include "DatabaseCore.h"
#include "KdDbMline.h"
#include "KdDbMlineStyle.h"
#include "MlineStyleContent.h"
#include "kddbObjects.h"

namespace orvex {

std::shared_ptr<const MlineContent> contentOf(KdDbStub& mline) {
    const KdDbObject* const object = mline.erased ? nullptr : mline.database->load(mline);
    return object != nullptr && object->isKindOf(KdDbMline::desc())
               ? std::static_pointer_cast<const MlineContent>(object->content())
               : nullptr;
}

std::optional<StyleLayout> styleLayoutOf(const MlineContent& mline) {
    KdDbMlineStyle* style = nullptr;
    kddbOpenObject(style, mline.style, kForRead);
    if (style == nullptr) {
        return std::nullopt;
    }
    const StyleLayout layout = layoutOf(style->values());
    style->close();
    return layout;
}

bool storeContent(KdDbStub& mline, MlineContent content) {
    KdDbMline* object = nullptr;
    kddbOpenObject(object, KdDbObjectId(&mline), kForWrite);
    if (object == nullptr) {
        return false;
    }
    const bool changes = !object->content()->equals(content);
    if (changes) {
        object->setContent(std::make_shared<MlineContent>(std::move(content)));
    }
    object->close();
    return changes;
}

} // namespace orvex
