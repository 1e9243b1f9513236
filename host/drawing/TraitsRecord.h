#pragma once

#include "DrawingText.h"
#include "EntityTraits.h"
#include "RecordContext.h"
#include "RecordEdit.h"
#include "TagText.h"

namespace orvex {

// The part that the records of all entities begin with: layer, line type, colour, visibility.

[[nodiscard]] EntityTraits readTraits(std::string_view bytes, std::size_t begin, std::size_t end,
                                      const DrawingText& text);

[[nodiscard]] Fields traitsFields(const EntityTraits& traits, const DrawingText& text);

// Where a new entity stands.
struct EntityPlace {
    std::uint64_t handle = 0;
    std::uint64_t owner = 0; // of a block record; 0 when the file has no such record
    bool inPaperSpace = false;
};
// The beginning of a new record, up to where the values of its own class begin. Without traits
// they are the usual ones.
void writeCommonPart(TagText& target, const RecordContext& context, std::string_view kind,
                     const EntityTraits* traits, const EntityPlace& place);

// Index of the first tag that is not of the common part.
[[nodiscard]] std::size_t commonPartEnd(const TagList& tags);

// ---- colours: index under 62, true colour under 420, name under 430 ---------------------------

// Takes one of these codes into the colour; false for another code or no number.
bool readColor(const Tag& tag, const DrawingText& text, KdCmColor& color);
// With `always` an index is written by layer, too.
void addColorFields(Fields& fields, const KdCmColor& color, const DrawingText& text, bool always);

} // namespace orvex
