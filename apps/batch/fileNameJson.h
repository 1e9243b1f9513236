#pragma once

#include "Verb.h"

#include <nlohmann/json.hpp>

#include <string>

namespace orvex {

// Text as JSON takes it: control characters as \U+XXXX, bytes that are no UTF-8 as U+FFFD.
std::string jsonText(const std::string& bytes);

// Adds the name of a file. Where that isn't the name itself, its bytes in hexadecimal follow under
// `bytesKey`.
void addFileName(nlohmann::ordered_json& json, const char* key, const char* bytesKey,
                 const std::string& name);

// "drawing":"NAME", in front of what is printed of one drawing of many; else empty.
std::string drawingMember(const DrawingTask& task);

} // namespace orvex
