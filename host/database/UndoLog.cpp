#include "UndoLog.h"

#include "ChangeLog.h"
#include "DatabaseCore.h"
#include "ObjectContent.h"
#include "ObjectTable.h"

#include <algorithm>
#include <utility>

namespace orvex {

namespace {

constexpr std::string_view kSeed = "HANDSEED";

} // namespace

void UndoLog::begin() {
    m_current = Step();
    m_places.clear();
    m_current.highestHandle = m_core.objects().highestHandle();
}

void UndoLog::keepImage(Image image) {
    if (m_places.emplace(image.stub, m_current.images.size()).second) {
        m_current.images.push_back(std::move(image));
    }
}

void UndoLog::keep(KdDbStub& stub) {
    if (!m_places.contains(&stub)) {
        keepImage({&stub, stub.object != nullptr ? stub.object->content() : nullptr, stub.erased});
    }
}

void UndoLog::keepMade(KdDbStub& stub) {
    keepImage({&stub, nullptr, true});
}

void UndoLog::keepVariable(std::string_view name) {
    if (!m_current.variables.contains(name)) {
        const HeaderValue* const value = m_core.variables().find(name);
        m_current.variables.emplace(name, value != nullptr ? std::optional(*value) : std::nullopt);
    }
}

bool UndoLog::isAsBefore(const Image& image) const {
    if (image.erased != image.stub->erased) {
        return false;
    }
    if (image.erased || image.content == nullptr) {
        return true;
    }
    const auto now = image.stub->object->content();
    return now == image.content || now->equals(*image.content);
}

bool UndoLog::isAsBefore(std::string_view name, const std::optional<HeaderValue>& value) const {
    const HeaderValue* const now = m_core.variables().find(name);
    return now != nullptr ? value.has_value() && sameBits(*now, *value) : !value.has_value();
}

void UndoLog::dropWhatIsAsBefore(Step& step) const {
    std::erase_if(step.images, [this](const Image& image) { return isAsBefore(image); });
    std::erase_if(step.variables,
                  [this](const auto& each) { return isAsBefore(each.first, each.second); });
}

bool UndoLog::end() {
    Step step = std::exchange(m_current, {});
    m_places.clear();
    dropWhatIsAsBefore(step);
    const bool onlySeed = step.variables.size() == 1 && step.variables.contains(kSeed);
    if (step.images.empty() && (step.variables.empty() || onlySeed)) {
        // Objects made and erased again leave nothing but used-up handles.
        restoreVariables(step);
        return false;
    }
    step.memory = sizeof(Step) + step.images.capacity() * sizeof(Image);
    for (const Image& image : step.images) {
        step.memory += image.content != nullptr ? image.content->memoryUse() : 0;
    }
    m_memory += step.memory;
    m_steps.push_back(std::move(step));
    keepWithinLimit();
    return true;
}

void UndoLog::keepWithinLimit() {
    while (m_memory > kMemoryLimit && m_steps.size() > 1) {
        m_memory -= m_steps.front().memory;
        m_steps.pop_front();
    }
}

void UndoLog::restoreVariables(const Step& step) {
    for (const auto& [name, value] : step.variables) {
        if (value.has_value()) {
            m_core.loadVariable(name, *value);
        } else {
            m_core.removeVariable(name);
        }
    }
    m_core.objects().restoreHighestHandle(step.highestHandle);
}

bool UndoLog::undo() {
    if (m_steps.empty()) {
        return false;
    }
    const Step step = std::move(m_steps.back());
    m_steps.pop_back();
    m_memory -= step.memory;
    for (const Image& image : step.images) {
        m_core.changes().notify(*image.stub);
        image.stub->erased = image.erased;
        if (image.content != nullptr) {
            image.stub->object->setContent(image.content);
        }
    }
    restoreVariables(step);
    return true;
}

} // namespace orvex
