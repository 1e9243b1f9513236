#include "mlineEdits.h"

#include "DatabaseCore.h"
#include "KdDbMline.h"
#include "KdDbMlineStyle.h"
#include "MlineStyleContent.h"
#include "Opened.h"

namespace orvex {

std::shared_ptr<const MlineContent> contentOf(KdDbStub& mline) {
    const KdDbObject* const object = mline.erased ? nullptr : mline.database->load(mline);
    return object != nullptr && object->isKindOf(KdDbMline::desc())
               ? std::static_pointer_cast<const MlineContent>(object->content())
               : nullptr;
}

std::optional<StyleLayout> styleLayoutOf(const MlineContent& mline) {
    const Opened<KdDbMlineStyle> style(mline.style, kForRead);
    return style ? std::optional(layoutOf(style->values())) : std::nullopt;
}

bool storeContent(KdDbStub& mline, MlineContent content) {
    const Opened<KdDbMline> object(KdDbObjectId(&mline), kForWrite);
    if (!object || object->content()->equals(content)) {
        return false;
    }
    object->setContent(std::make_shared<MlineContent>(std::move(content)));
    return true;
}

} // namespace orvex
