#include "Failure.h"

namespace orvex {

std::string locatedText(const std::string& file, std::size_t line, const std::string& text) {
    std::string message;
    if (!file.empty()) {
        message += file + ':';
    }
    if (line != 0) {
        message += std::to_string(line) + ':';
    }
    return message.empty() ? text : message + ' ' + text;
}

std::string messageOf(const Failure& failure) {
    return locatedText(failure.file, failure.line, failure.text);
}

} // namespace orvex
