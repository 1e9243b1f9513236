#include "StateImages.h"

#include "ChangeLog.h"
#include "DatabaseCore.h"
#include "ObjectContent.h"
#include "ObjectTable.h"

#include <algorithm>
#include <utility>

namespace orvex {

namespace {

constexpr std::string_view kSeed = "HANDSEED";

bool sameValue(const std::optional<HeaderValue>& a, const std::optional<HeaderValue>& b) {
    return a.has_value() == b.has_value() && (!a || sameBits(*a, *b));
}

} // namespace

StateImages::StateImages(DatabaseCore& core)
    : m_core(&core), m_highestHandle(core.objects().highestHandle()) {}

StateImages::Image StateImages::imageOf(KdDbStub& stub) {
    return {&stub, stub.object != nullptr ? stub.object->content() : nullptr, stub.erased};
}

std::optional<HeaderValue> StateImages::valueOf(std::string_view name) const {
    const HeaderValue* const value = m_core->variables().find(name);
    return value != nullptr ? std::optional(*value) : std::nullopt;
}

void StateImages::keepImage(Image image) {
    const auto [place, isNew] = m_kept.insert(image.stub);
    if (!isNew) {
        return;
    }
    try {
        m_images.push_back(std::move(image));
    } catch (...) {
        m_kept.erase(place);
        throw;
    }
}

void StateImages::keep(KdDbStub& stub) {
    if (!m_kept.contains(&stub)) {
        keepImage(imageOf(stub));
    }
}

void StateImages::keepMade(KdDbStub& stub) {
    keepImage({&stub, nullptr, true});
}

void StateImages::keepVariable(std::string_view name) {
    if (!m_variables.contains(name)) {
        m_variables.emplace(name, valueOf(name));
    }
}

void StateImages::append(StateImages&& later) {
    for (Image& image : later.m_images) {
        keepImage(std::move(image));
    }
    m_variables.merge(later.m_variables);
}

void StateImages::dropWhatIsAsBefore() {
    std::erase_if(m_images, [this](const Image& image) {
        const Image now = imageOf(*image.stub);
        const bool isAsBefore =
            image.erased == now.erased &&
            (image.erased || image.content == nullptr || now.content == image.content ||
             now.content->equals(*image.content));
        if (isAsBefore) {
            m_kept.erase(image.stub);
        }
        return isAsBefore;
    });
    std::erase_if(m_variables,
                  [this](const auto& each) { return sameValue(each.second, valueOf(each.first)); });
}

void StateImages::finish() {
    m_kept = {};
    m_images.shrink_to_fit();
}

bool StateImages::isEmpty() const {
    const bool onlySeed = m_variables.size() == 1 && m_variables.contains(kSeed);
    return m_images.empty() && (m_variables.empty() || onlySeed);
}

void StateImages::exchangeImage(Image& image) {
    Image now = imageOf(*image.stub);
    m_core->changes().notify(*image.stub);
    image.stub->erased = image.erased;
    if (image.content != nullptr) {
        image.stub->object->setContent(image.content);
    }
    m_core->objects().noteRevived(*image.stub);
    image = std::move(now);
}

void StateImages::exchange() {
    for (Image& image : m_images) {
        exchangeImage(image);
    }
    const Variables then = m_variables;
    for (auto& [name, value] : m_variables) {
        value = valueOf(name);
    }
    const std::uint64_t handleNow = m_core->objects().highestHandle();
    for (const auto& [name, value] : then) {
        value ? m_core->loadVariable(name, *value) : m_core->removeVariable(name);
    }
    m_core->objects().restoreHighestHandle(m_highestHandle);
    m_highestHandle = handleNow;
}

void StateImages::restoreVariables() const {
    for (const auto& [name, value] : m_variables) {
        value ? m_core->loadVariable(name, *value) : m_core->removeVariable(name);
    }
    m_core->objects().restoreHighestHandle(m_highestHandle);
}

std::size_t StateImages::memoryUse() const {
    std::size_t bytes = sizeof(*this) + m_images.capacity() * sizeof(Image);
    for (const Image& image : m_images) {
        bytes += image.content != nullptr ? image.content->memoryUse() : 0;
    }
    return bytes;
}

std::size_t StateImages::countEntities() const {
    return static_cast<std::size_t>(
        std::count_if(m_images.begin(), m_images.end(), [](const Image& image) {
            return image.stub->kind == ObjectKind::entity || image.stub->kind == ObjectKind::mline;
        }));
}

std::size_t StateImages::countMultilines() const {
    return static_cast<std::size_t>(
        std::count_if(m_images.begin(), m_images.end(),
                      [](const Image& image) { return image.stub->kind == ObjectKind::mline; }));
}

} // namespace orvex
