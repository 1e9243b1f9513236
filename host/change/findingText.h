#pragma once

#include "auditMline.h"

#include <cstdint>
#include <string>
#include <vector>

namespace orvex {

enum class FindingResult : std::uint8_t { found, repaired, left };

// What programs call it.
const char* nameOf(FindingCode code);
const char* nameOf(FindingResult result);
// The same in the language of the user.
std::string shownName(FindingResult result);

// For the user, without the result: "vertex 2, element 1: position 5, should be 7.5".
std::string textOf(const Finding& finding);

// The shortest text that reads back as the same number.
std::string numberText(double value);

} // namespace orvex
