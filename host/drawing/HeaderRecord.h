#pragma once

#include "HeaderVariables.h"
#include "RecordContext.h"
#include "TagText.h"

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace orvex {

// The header variables that the system understands, in the HEADER section's one record.

// What has to be known before any text is read.
struct HeaderBasics {
    std::string version;  // $ACADVER
    std::string codePage; // $DWGCODEPAGE
};
[[nodiscard]] HeaderBasics readBasics(std::string_view bytes, const RecordSpan& span);

// Loads the variables into the database. Values that are no such value are passed over.
void readVariables(const RecordContext& context, const RecordSpan& span);

// Names that are stored, with their values, where they differ.
using VariableChanges = std::vector<std::pair<std::string, HeaderValue>>;
[[nodiscard]] VariableChanges changedVariables(const HeaderVariables& before,
                                               const HeaderVariables& now);

// The record with these variables in it: in place where they are, else at its end.
[[nodiscard]] std::string editVariables(const RecordContext& context, const RecordSpan& span,
                                        const VariableChanges& changes);

void writeVariables(TagText& target, const DrawingText& text, const VariableChanges& changes);

} // namespace orvex
