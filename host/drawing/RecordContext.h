#pragma once

#include "DrawingText.h"

#include <cstddef>
#include <string_view>

namespace orvex {

class DatabaseCore;

// What it takes to read a record or to write one: the file's bytes, its texts, and the objects
// that records name by handle.
struct RecordContext {
    std::string_view bytes;
    const DrawingText& text;
    DatabaseCore& core;
    // From before multilines: records of tables have no owners and no classes.
    bool isOld = false;
};

// One record's place in the file's bytes.
struct RecordSpan {
    std::size_t begin = 0;
    std::size_t end = 0;
};

} // namespace orvex
