#include "MlineContent.h"

#include "sameBits.h"

namespace orvex {

namespace {

bool sameOptionalTraits(const EntityTraits* a, const EntityTraits* b) {
    return a == b || (a != nullptr && b != nullptr && sameTraits(*a, *b));
}

} // namespace

int MlineContent::flags() const {
    return (vertices.empty() ? 0 : kMlineHasVertices) | (closed ? kMlineClosed : 0) |
           (startCapsSuppressed ? kMlineNoStartCaps : 0) |
           (endCapsSuppressed ? kMlineNoEndCaps : 0);
}

bool MlineContent::equals(const ObjectContent& other) const {
    if (this == &other) {
        return true;
    }
    const auto* const that = dynamic_cast<const MlineContent*>(&other);
    return that != nullptr && sameOptionalTraits(traits.get(), that->traits.get()) &&
           style == that->style && (!style.isNull() || styleName == that->styleName) &&
           sameBits(scale, that->scale) && justification == that->justification &&
           closed == that->closed && startCapsSuppressed == that->startCapsSuppressed &&
           endCapsSuppressed == that->endCapsSuppressed && sameBits(normal, that->normal) &&
           sameBits(std::span<const ChainVertex>(vertices),
                    std::span<const ChainVertex>(that->vertices)) &&
           lists == that->lists;
}

std::size_t MlineContent::memoryUse() const {
    return sizeof(MlineContent) + vertices.capacity() * sizeof(ChainVertex) + lists.memoryUse();
}

} // namespace orvex
