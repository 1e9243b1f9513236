#pragma once

#include "PlainEntity.h"
#include "RecordContext.h"
#include "TagText.h"
#include "TraitsRecord.h"

namespace orvex {

// A record for an entity that the host made: LINE, ARC or SOLID.
void writePlain(TagText& target, const RecordContext& context, const PlainContent& content,
                const EntityPlace& place);

} // namespace orvex
