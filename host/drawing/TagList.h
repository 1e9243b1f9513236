#pragma once

#include "TagReader.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace orvex {

// The tags of a record. A record may have tens of millions, so only their places are kept; a tag is
// read again each time.
class TagList {
public:
    // Those of [begin, end) of `bytes`, which have to outlive the list and its tags. It ends before
    // the first line that is no tag.
    TagList(std::string_view bytes, std::size_t begin, std::size_t end);

    [[nodiscard]] std::size_t size() const { return m_begins.size(); }
    [[nodiscard]] Tag operator[](std::size_t index) const {
        TagReader reader(m_bytes, m_begins[index], m_end);
        Tag tag;
        reader.next(tag);
        return tag;
    }
    // Where the lines of the tags [from, to) stand in the bytes; `from` has to be below `to`.
    [[nodiscard]] std::string_view lines(std::size_t from, std::size_t to) const {
        return m_bytes.substr(m_begins[from], end(to - 1) - m_begins[from]);
    }

private:
    [[nodiscard]] std::size_t end(std::size_t index) const {
        return index + 1 < m_begins.size() ? m_begins[index + 1] : m_tagsEnd;
    }

    std::string_view m_bytes;
    std::size_t m_end;
    std::size_t m_tagsEnd; // after the last tag
    std::vector<std::size_t> m_begins;
};

// After the group in braces (code 102) that begins at tag `at`; at + 1 for any other tag.
[[nodiscard]] std::size_t skipGroup(const TagList& tags, std::size_t at);

} // namespace orvex
