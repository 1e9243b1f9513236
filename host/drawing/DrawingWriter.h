#pragma once

#include "DrawingDocument.h"

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace orvex {

// Bytes of the file that others take the place of.
struct FileEdit {
    std::size_t offset = 0;
    std::size_t length = 0; // 0: only put in, on lines of their own
    std::string text;
};

// What makes the file's bytes those of the drawing as it is now, in the order of the file. Costs
// nothing for objects that nobody touched. What is written for the first time has a handle then.
// What has to stay as it is although it names what was erased is told in `warnings`.
[[nodiscard]] std::vector<FileEdit> collectEdits(const DrawingDocument& document,
                                                 DatabaseCore& core,
                                                 std::vector<DrawingWarning>* warnings = nullptr);

// Hands out the bytes with the edits in them, in large pieces. Stops when `sink` gives false. In
// files of lines what is put in starts on a new one.
bool writeEdited(std::string_view bytes, const std::vector<FileEdit>& edits, bool hasLines,
                 const std::function<bool(std::string_view)>& sink);

} // namespace orvex
