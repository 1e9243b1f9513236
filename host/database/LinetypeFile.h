#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvex {

// An entry of a line type definition file. Dashes in drawing units at scale 1: positive pen down,
// negative pen up, 0 a dot.
struct LinetypeDefinition {
    std::wstring name;
    std::wstring description;
    std::vector<double> dashes;
};

// The first entry of that name, whatever its case; nothing when there is none or its dashes can't
// be read. `text` is the file's, UTF-8 with any line ends. Texts and shapes between the dashes are
// left out.
[[nodiscard]] std::optional<LinetypeDefinition> findLinetypeDefinition(std::string_view text,
                                                                       std::wstring_view name);

} // namespace orvex
