#include "textTable.h"

#include "textCodec.h"

#include <charconv>

namespace orvex {

namespace {

std::string unescape(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\\' || i + 1 == text.size()) {
            result += text[i];
            continue;
        }
        switch (const char next = text[++i]) {
        case 'n':
            result += '\n';
            break;
        case 't':
            result += '\t';
            break;
        default:
            result += next;
        }
    }
    return result;
}

} // namespace

TextTable parseTextTable(std::string_view utf8) {
    TextTable table;
    while (!utf8.empty()) {
        const std::size_t end = utf8.find('\n');
        std::string_view line = utf8.substr(0, end);
        utf8.remove_prefix(end == std::string_view::npos ? utf8.size() : end + 1);
        if (line.ends_with('\r')) {
            line.remove_suffix(1);
        }
        unsigned number = 0;
        const auto [rest, error] = std::from_chars(line.data(), line.data() + line.size(), number);
        if (error != std::errc()) {
            continue;
        }
        std::string_view text = line.substr(static_cast<std::size_t>(rest - line.data()));
        if (!text.empty() && text.front() != ' ') {
            continue;
        }
        text.remove_prefix(text.empty() ? 0 : 1);
        table[number] = widen(unescape(text));
    }
    return table;
}

} // namespace orvex
