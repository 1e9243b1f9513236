#pragma once

#include "DrawingDocument.h"
#include "DrawingWriter.h"
#include "Failure.h"
#include "PlainEntity.h"

#include <functional>
#include <vector>

namespace orvex {

// How multilines are handed to programs that don't know them.
enum class ExportForm : std::uint8_t {
    lines,  // plain entities in their place
    blocks, // an insert in their place, of a block ORVEX_<handle> that holds the plain entities
};

struct MlineExport {
    ExportForm form = ExportForm::lines;
    // The plain entities that stand for a multiline.
    std::function<Result<std::vector<PlainContent>>(const MlineContent&)> explode;
};

// What makes the opened bytes those of a drawing without multilines, in the order of the file.
// Objects and their changes don't count. A multiline that nothing can stand for stays, and is told.
[[nodiscard]] std::vector<FileEdit> exportEdits(const DrawingDocument& document, DatabaseCore& core,
                                                const MlineExport& how,
                                                std::vector<DrawingWarning>& warnings);

} // namespace orvex
