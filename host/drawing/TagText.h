#pragma once

#include "KdGePoint3d.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace orvex {

// How the lines of a record look: new ones are written like their neighbours.
struct TagFormat {
    std::string_view lineEnd = "\n";
    std::size_t codeWidth = 3;

    // As the tag that starts at `begin`, which has to have a code line.
    static TagFormat of(std::string_view bytes, std::size_t begin);
};

// Writes tags one after the other.
class TagText {
public:
    explicit TagText(const TagFormat& format) : m_format(format) {}

    void add(int code, std::string_view value);
    void add(int code, int value) { add(code, std::to_string(value)); }
    void addReal(int code, double value);
    void addHandle(int code, std::uint64_t value);
    // Under `code`, `code` + 10 and `code` + 20.
    void addPoint(int code, const KdGePoint3d& point);
    void addPoint(int code, const KdGeVector3d& vector);
    // Finished lines.
    void addLines(std::string_view lines) { m_text += lines; }

    [[nodiscard]] const TagFormat& format() const { return m_format; }
    [[nodiscard]] std::string take() { return std::exchange(m_text, {}); }
    [[nodiscard]] const std::string& text() const { return m_text; }

private:
    TagFormat m_format;
    std::string m_text;
};

// One value of an object as the file has it; none where it isn't written because its default holds.
struct Field {
    int code = 0;
    std::optional<std::string> text;
};
using Fields = std::vector<Field>;

// Writes the fields that have a text.
void addFields(TagText& target, const Fields& fields);

} // namespace orvex
