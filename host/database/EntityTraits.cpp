#include "EntityTraits.h"

#include "sameBits.h"

#include <array>
#include <functional>

namespace orvex {

bool sameTraits(const EntityTraits& a, const EntityTraits& b) {
    return sameBits(a.linetypeScale, b.linetypeScale) && a.layer == b.layer &&
           a.linetype == b.linetype && a.lineweight == b.lineweight && a.color == b.color &&
           a.visible == b.visible && a.inPaperSpace == b.inPaperSpace;
}

std::shared_ptr<const EntityTraits> shareTraits(const EntityTraits& traits) {
    // A table of fixed size: two values that fall on one place push each other out, which costs
    // only memory.
    static std::array<std::shared_ptr<const EntityTraits>, 1024> known;
    const std::hash<std::wstring> hash;
    const std::size_t place = hash(traits.layer) + 31 * hash(traits.linetype) +
                              7 * std::size_t{traits.color.color()} +
                              (traits.inPaperSpace ? 1U : 0U) + (traits.visible ? 2U : 0U);
    auto& slot = known[place % known.size()];
    if (slot == nullptr || !sameTraits(*slot, traits)) {
        slot = std::make_shared<EntityTraits>(traits);
    }
    return slot;
}

} // namespace orvex
