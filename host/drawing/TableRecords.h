#pragma once

#include "KdDbLayerTable.h"
#include "KdDbLinetypeTable.h"
#include "RecordContext.h"
#include "TagText.h"

#include <memory>
#include <optional>
#include <string>

namespace orvex {

// Records of the tables that the system understands.

[[nodiscard]] std::unique_ptr<KdDbLayerTableRecord> readLayer(const RecordContext& context,
                                                              const RecordSpan& span);
[[nodiscard]] std::unique_ptr<KdDbLinetypeTableRecord> readLinetype(const RecordContext& context,
                                                                    const RecordSpan& span);
// The name under code 2 of any entry, table, block or section; empty when there is none.
[[nodiscard]] std::string_view readName(std::string_view bytes, const RecordSpan& span);

// Records that the file has not had. `owner` is the table's handle, 0 when it has none.
void writeLayer(TagText& target, const RecordContext& context, const KdDbLayerTableRecord& layer,
                std::uint64_t handle, std::uint64_t owner);
void writeLinetype(TagText& target, const RecordContext& context,
                   const KdDbLinetypeTableRecord& linetype, std::uint64_t handle,
                   std::uint64_t owner);

// A table's first record and its end, around `entries`.
// A block's record; `name` as the file has texts.
void writeBlockRecord(TagText& target, const RecordContext& context, std::string_view name,
                      std::uint64_t handle, std::uint64_t owner);

void writeTable(TagText& target, const RecordContext& context, std::string_view kind,
                std::uint64_t handle, int count, std::string_view entries);
// The table's first record with `added` entries counted in; nothing when it didn't count its
// `present` ones right before.
[[nodiscard]] std::optional<std::string>
editTableCount(std::string_view bytes, const RecordSpan& span, int present, int added);

} // namespace orvex
