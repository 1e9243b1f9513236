#include "selectionFacts.h"

#include "DatabaseCore.h"
#include "EntityTraits.h"
#include "KdDbStub.h"
#include "MlineContent.h"
#include "WellKnownObjects.h"
#include "lockedLayers.h"
#include "mlineEdits.h"
#include "qtWide.h"

namespace orvex {

namespace {

// Takes the first value, and lets go of it at the first other one.
template <class T>
void share(std::optional<T>& shared, const T& value, bool isFirst) {
    if (isFirst) {
        shared = value;
    } else if (shared && !(*shared == value)) {
        shared.reset();
    }
}

QString styleNameOf(KdDbStub& mline, const MlineContent& content) {
    KdDbStub* const style = content.style.stub();
    return toQt(style != nullptr ? mline.database->wellKnown().nameOfStyle(*style)
                                 : content.styleName);
}

} // namespace

SelectionFacts factsOf(const std::vector<KdDbStub*>& entities) {
    SelectionFacts facts;
    KdDbObjectId lastStyle;
    QString styleName;
    for (KdDbStub* const entity : entities) {
        const auto content =
            entity->kind == ObjectKind::mline && !entity->erased ? contentOf(*entity) : nullptr;
        if (content == nullptr) {
            continue;
        }
        const bool isFirst = facts.mlines++ == 0;
        if (isFirst || content->style != lastStyle || content->style.isNull()) {
            lastStyle = content->style;
            styleName = styleNameOf(*entity, *content);
        }
        facts.locked += isOnLockedLayer(*entity) ? 1 : 0;
        share(facts.style, styleName, isFirst);
        share(facts.layer, toQt(content->traits != nullptr ? content->traits->layer : L"0"),
              isFirst);
        share(facts.scale, content->scale, isFirst);
        share(facts.justification, content->justification, isFirst);
        share(facts.caps,
              (content->startCapsSuppressed ? 0 : 1) + (content->endCapsSuppressed ? 0 : 2),
              isFirst);
        share(facts.closed, content->closed, isFirst);
    }
    return facts;
}

} // namespace orvex
