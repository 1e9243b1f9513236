#include "TagList.h"

#include <algorithm>
#include <cassert>

namespace orvex {

TagList::TagList(std::string_view bytes, std::size_t begin, std::size_t end)
    : m_bytes(bytes), m_end(end), m_tagsEnd(begin) {
    assert(bytes.data() != nullptr);
    const auto lines = std::ranges::count(bytes.substr(begin, end - begin), '\n');
    m_begins.reserve(static_cast<std::size_t>(lines) / 2 + 1);
    TagReader reader(bytes, begin, end);
    Tag tag;
    while (reader.next(tag) == TagReader::Result::tag) {
        m_begins.push_back(tag.begin);
        m_tagsEnd = tag.end;
    }
}

std::size_t skipGroup(const TagList& tags, std::size_t at) {
    const Tag first = tags[at];
    if (first.code != 102 || !first.value.starts_with('{')) {
        return at + 1;
    }
    for (std::size_t i = at + 1; i < tags.size(); ++i) {
        if (tags[i].code == 102) {
            return i + 1;
        }
    }
    return tags.size();
}

} // namespace orvex
