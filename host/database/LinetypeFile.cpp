#include "LinetypeFile.h"

#include "byteOrderMark.h"
#include "textCodec.h"

#include <charconv>
#include <cmath>

namespace orvex {

namespace {

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view kBlanks = " \t\r";
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

// Takes the next line that isn't empty or a comment off the text; false at the end.
bool nextLine(std::string_view& text, std::string_view& line) {
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        line = trimmed(text.substr(0, end));
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
        if (!line.empty() && !line.starts_with(';')) {
            return true;
        }
    }
    return false;
}

// Takes what stands before the next comma off the text, a bracketed text or shape as one piece.
std::string_view nextField(std::string_view& text) {
    bool inBrackets = false;
    bool inQuotes = false;
    std::size_t end = 0;
    for (; end < text.size(); ++end) {
        const char character = text[end];
        if (character == '"') {
            inQuotes = !inQuotes;
        } else if (!inQuotes && (character == '[' || character == ']')) {
            inBrackets = character == '[';
        } else if (character == ',' && !inBrackets) {
            break;
        }
    }
    const std::string_view field = trimmed(text.substr(0, end));
    text.remove_prefix(end < text.size() ? end + 1 : end);
    return field;
}

std::optional<double> toNumber(std::string_view text) {
    if (text.starts_with('+')) {
        text.remove_prefix(1);
    }
    double value = 0.0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    if (error != std::errc() || stop != end || !std::isfinite(value)) {
        return std::nullopt;
    }
    return value;
}

std::optional<std::vector<double>> toDashes(std::string_view line) {
    const std::string_view alignment = nextField(line);
    if (alignment != "A" && alignment != "a") {
        return std::nullopt;
    }
    std::vector<double> dashes;
    while (!line.empty()) {
        const std::string_view field = nextField(line);
        if (field.empty() || field.starts_with('[')) {
            continue;
        }
        const std::optional<double> dash = toNumber(field);
        if (!dash.has_value()) {
            return std::nullopt;
        }
        dashes.push_back(*dash);
    }
    return dashes;
}

} // namespace

std::optional<LinetypeDefinition> findLinetypeDefinition(std::string_view text,
                                                         std::wstring_view name) {
    text = withoutByteOrderMark(text);
    const std::wstring wanted = foldCase(name);
    std::string_view line;
    while (nextLine(text, line)) {
        if (!line.starts_with('*')) {
            continue;
        }
        line.remove_prefix(1);
        const std::size_t comma = line.find(',');
        std::wstring found = widen(trimmed(line.substr(0, comma)));
        if (foldCase(found) != wanted) {
            continue;
        }
        std::wstring description;
        if (comma != std::string_view::npos) {
            description = widen(trimmed(line.substr(comma + 1)));
        }
        auto dashes = nextLine(text, line) ? toDashes(line) : std::nullopt;
        if (!dashes.has_value()) {
            return std::nullopt;
        }
        return LinetypeDefinition{std::move(found), std::move(description), std::move(*dashes)};
    }
    return std::nullopt;
}

} // namespace orvex
