#include "PlainEntity.h"

#include "sameBits.h"

#include <vector>

namespace orvex {

namespace {

// All numbers of a shape that an entity can be made of.
std::vector<double> numbersOf(const PlainContent& content) {
    std::vector<double> numbers;
    const auto add = [&](const auto& place) {
        numbers.insert(numbers.end(), {place.x, place.y, place.z});
    };
    if (const auto* const line = std::get_if<LineShape>(&content.shape)) {
        add(line->start);
        add(line->end);
    } else if (const auto* const arc = std::get_if<ConicShape>(&content.shape)) {
        add(arc->center);
        add(arc->major);
        add(arc->minor);
        numbers.insert(numbers.end(), {arc->start, arc->end});
    } else if (const auto* const solid = std::get_if<SolidShape>(&content.shape)) {
        for (const KdGePoint3d& corner : solid->corners) {
            add(corner);
        }
    }
    add(content.normal);
    return numbers;
}

bool sameOptionalTraits(const EntityTraits* a, const EntityTraits* b) {
    return a == b || (a != nullptr && b != nullptr && sameTraits(*a, *b));
}

} // namespace

bool PlainContent::equals(const ObjectContent& other) const {
    if (this == &other) {
        return true;
    }
    const auto* const that = dynamic_cast<const PlainContent*>(&other);
    if (that == nullptr || shape.index() != that->shape.index() || replaces != that->replaces ||
        !sameOptionalTraits(traits.get(), that->traits.get())) {
        return false;
    }
    const std::vector<double> mine = numbersOf(*this);
    const std::vector<double> others = numbersOf(*that);
    return sameBits(std::span<const double>(mine), std::span<const double>(others));
}

std::size_t PlainContent::memoryUse() const {
    const auto* const solid = std::get_if<SolidShape>(&shape);
    return sizeof(PlainContent) +
           (solid != nullptr ? solid->corners.capacity() * sizeof(KdGePoint3d) : 0);
}

KdRxClass* PlainEntity::desc() {
    static KdRxClass description(L"PlainEntity", KdDbEntity::desc());
    return &description;
}

KdRxClass* PlainEntity::isA() const {
    return desc();
}

std::shared_ptr<const ObjectContent> PlainEntity::content() const {
    return m_content;
}

Status PlainEntity::setContent(const std::shared_ptr<const ObjectContent>& content) {
    auto typed = std::dynamic_pointer_cast<const PlainContent>(content);
    if (typed == nullptr) {
        return Status::wrongClass;
    }
    aboutToChange();
    m_content = std::move(typed);
    if (m_content->traits != nullptr) {
        KdDbEntity::storeTraits(m_content->traits);
    }
    return Status::done;
}

void PlainEntity::storeTraits(std::shared_ptr<const EntityTraits> traits) {
    auto changed = std::make_shared<PlainContent>(*m_content);
    changed->traits = traits;
    m_content = std::move(changed);
    KdDbEntity::storeTraits(std::move(traits));
}

} // namespace orvex
