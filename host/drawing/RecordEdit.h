#pragma once

#include "TagList.h"
#include "TagText.h"

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace orvex {

// A record's tags with what is to become of them. Whatever isn't touched keeps its bytes.
class RecordEdit {
public:
    // The record at [begin, end) of `bytes`, which have to outlive the edit. It starts with a
    // code 0.
    RecordEdit(std::string_view bytes, std::size_t begin, std::size_t end);

    [[nodiscard]] const TagList& tags() const { return m_tags; }
    [[nodiscard]] const TagFormat& format() const { return m_format; }

    // A number keeps the width that it was padded to.
    void replace(std::size_t tag, std::string_view value);
    void remove(std::size_t tag) { remove(tag, tag + 1); }
    void remove(std::size_t from, std::size_t to); // the tags [from, to)
    void insertAfter(std::size_t tag, std::string lines);

    // Brings the fields among the tags [from, to) from what they say to what they should say. A
    // new one goes after the nearest field before it in the list, or after tag from - 1.
    void apply(const Fields& before, const Fields& after, std::size_t from, std::size_t to);

    // Lines of a tag with another value in it.
    [[nodiscard]] std::string lines(std::size_t tag, std::string_view value) const;
    // Lines of a tag as they are, with a line end if there was none.
    [[nodiscard]] std::string lines(std::size_t tag) const;

    [[nodiscard]] std::string text() const;

private:
    struct Change {
        std::size_t removed = 0; // tags from this one on
        std::optional<std::string> lines;
        std::string after;
    };
    // Index of the first tag with the code in [from, to), or `to`.
    [[nodiscard]] std::size_t find(int code, std::size_t from, std::size_t to) const;

    std::string_view m_bytes;
    std::size_t m_begin;
    std::size_t m_end;
    TagList m_tags;
    TagFormat m_format;
    std::map<std::size_t, Change> m_changes; // by tag
};

} // namespace orvex
