#include "RecordEdit.h"

#include "NumberText.h"

namespace orvex {

RecordEdit::RecordEdit(std::string_view bytes, std::size_t begin, std::size_t end)
    : m_bytes(bytes), m_begin(begin), m_end(end), m_format(TagFormat::of(bytes, begin)) {
    TagReader reader(bytes, begin, end);
    Tag tag;
    while (reader.next(tag) == TagReader::Result::tag) {
        m_tags.push_back(tag);
    }
}

RecordEdit::Change& RecordEdit::change(std::size_t tag) {
    m_changes.resize(m_tags.size());
    return m_changes[tag];
}

void RecordEdit::replace(std::size_t tag, std::string_view value) {
    change(tag).lines = lines(tag, value);
}

void RecordEdit::remove(std::size_t tag) {
    change(tag).removed = true;
}

void RecordEdit::insertAfter(std::size_t tag, std::string_view lines) {
    change(tag).after += lines;
}

std::string RecordEdit::lines(std::size_t tag, std::string_view value) const {
    const Tag& old = m_tags[tag];
    const auto valueBegin = static_cast<std::size_t>(old.value.data() - m_bytes.data());
    std::string text(m_bytes.substr(old.begin, valueBegin - old.begin));
    const std::size_t width = old.value.starts_with(' ') ? old.value.size() : 0;
    const bool isText = old.code < 10 || (old.code >= 100 && old.code <= 102) || old.code >= 1000;
    if (!isText && value.size() < width) {
        text.append(width - value.size(), ' ');
    }
    text += value;
    text += m_bytes.substr(valueBegin + old.value.size(), old.end - valueBegin - old.value.size());
    if (!text.ends_with('\n')) {
        text += m_format.lineEnd;
    }
    return text;
}

std::string RecordEdit::lines(std::size_t tag) const {
    std::string text(m_bytes.substr(m_tags[tag].begin, m_tags[tag].end - m_tags[tag].begin));
    if (!text.ends_with('\n')) {
        text += m_format.lineEnd;
    }
    return text;
}

std::size_t RecordEdit::find(int code, std::size_t from, std::size_t to) const {
    for (std::size_t i = from; i < to; i = skipGroup(m_tags, i)) {
        if (m_tags[i].code == code) {
            return i;
        }
    }
    return to;
}

void RecordEdit::apply(const Fields& before, const Fields& after, std::size_t from,
                       std::size_t to) {
    std::size_t anchor = from - 1;
    for (std::size_t i = 0; i < after.size(); ++i) {
        const Field& field = after[i];
        const std::size_t present = find(field.code, from, to);
        if (present < to) {
            anchor = present;
        }
        if (field.text == before[i].text) {
            continue;
        }
        if (present < to && field.text) {
            replace(present, *field.text);
        } else if (present < to) {
            remove(present);
        } else if (field.text) {
            TagText fresh(m_format);
            fresh.add(field.code, *field.text);
            insertAfter(anchor, fresh.text());
        }
    }
}

std::string RecordEdit::text() const {
    if (m_changes.empty()) {
        return std::string(m_bytes.substr(m_begin, m_end - m_begin));
    }
    std::string text;
    text.reserve(m_end - m_begin);
    for (std::size_t i = 0; i < m_tags.size(); ++i) {
        const Change& change = m_changes[i];
        if (change.lines) {
            text += *change.lines;
        } else if (!change.removed) {
            text += m_bytes.substr(m_tags[i].begin, m_tags[i].end - m_tags[i].begin);
        }
        if (!change.after.empty()) {
            if (!text.empty() && !text.ends_with('\n')) {
                text += m_format.lineEnd;
            }
            text += change.after;
        }
    }
    return text;
}

std::size_t skipGroup(const std::vector<Tag>& tags, std::size_t at) {
    if (tags[at].code != 102 || !tags[at].value.starts_with('{')) {
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
