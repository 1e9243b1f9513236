#include "atLine.h"

namespace orvex {

std::string atLine(const std::string& file, std::size_t line, const std::string& text) {
    return file + ':' + (line > 0 ? std::to_string(line) + ": " : " ") + text;
}

} // namespace orvex
