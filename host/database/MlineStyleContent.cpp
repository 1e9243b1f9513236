#include "MlineStyleContent.h"

#include "sameBits.h"

#include <algorithm>

namespace orvex {

namespace {

bool sameElement(const StyleElement& a, const StyleElement& b) {
    return sameBits(a.offset, b.offset) && a.color == b.color && a.linetype == b.linetype &&
           (!a.linetype.isNull() || a.linetypeName == b.linetypeName);
}

} // namespace

bool MlineStyleContent::equals(const ObjectContent& other) const {
    if (this == &other) {
        return true;
    }
    const auto* const that = dynamic_cast<const MlineStyleContent*>(&other);
    return that != nullptr && name == that->name && description == that->description &&
           flags == that->flags && fillColor == that->fillColor &&
           sameBits(startAngle, that->startAngle) && sameBits(endAngle, that->endAngle) &&
           std::equal(elements.begin(), elements.end(), that->elements.begin(),
                      that->elements.end(), sameElement);
}

std::size_t MlineStyleContent::memoryUse() const {
    return sizeof(MlineStyleContent) + elements.capacity() * sizeof(StyleElement) +
           (name.capacity() + description.capacity()) * sizeof(wchar_t);
}

} // namespace orvex
