#pragma once

#include "MlineContent.h"
#include "RecordContext.h"
#include "TagText.h"
#include "TraitsRecord.h"

#include <memory>
#include <optional>
#include <string>

namespace orvex {

class MlineParser;

// The multiline that a record has; null when it contradicts itself. The parser lends its memory.
[[nodiscard]] std::shared_ptr<MlineContent> readMline(const RecordContext& context,
                                                      const RecordSpan& span, MlineParser& parser);

// The style with that handle; null when the drawing has none.
[[nodiscard]] KdDbStub* findStyle(DatabaseCore& core, std::uint64_t handle);

// The record as it should be for `content`, or nothing when it says the same. Values that are the
// same keep their text.
[[nodiscard]] std::optional<std::string>
editMline(const RecordContext& context, const RecordSpan& span, const MlineContent& content);

// A record for a multiline that the file has not had.
void writeMline(TagText& target, const RecordContext& context, const MlineContent& content,
                const EntityPlace& place);

} // namespace orvex
