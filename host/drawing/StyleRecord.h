#pragma once

#include "Failure.h"
#include "MlineStyleContent.h"
#include "RecordContext.h"
#include "TagText.h"

#include <memory>
#include <optional>
#include <string>

namespace orvex {

// Fails where a style's record contradicts itself.
[[nodiscard]] std::optional<Failure> checkStyle(std::string_view bytes, const RecordSpan& span);

// The style that a record has; null when it contradicts itself.
[[nodiscard]] std::shared_ptr<MlineStyleContent> readStyle(const RecordContext& context,
                                                           const RecordSpan& span);

// The record as it should be for `content`, or nothing when it says the same. Values that are the
// same keep their text.
[[nodiscard]] std::optional<std::string>
editStyle(const RecordContext& context, const RecordSpan& span, const MlineStyleContent& content);

// A record for a style that the file has not had, owned by the dictionary with handle `owner`.
void writeStyle(TagText& target, const RecordContext& context, const MlineStyleContent& content,
                std::uint64_t handle, std::uint64_t owner);

// Codes 5, 102 with the reactor, and 330 of an object that its owner lists.
void writeOwned(TagText& target, std::uint64_t handle, std::uint64_t owner);

} // namespace orvex
