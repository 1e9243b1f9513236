#pragma once

#include <string>

namespace orvex {

// The language of the resource libraries that are opened from now on, as their folders are named
// after it: "de", or "de_AT", for which "de" will do. Empty, as at first, for English: programs
// that talk to other programs never set it.
void setUserLanguage(const std::string& language);
const std::string& userLanguage();

} // namespace orvex
