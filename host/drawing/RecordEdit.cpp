#include "RecordEdit.h"

#include "NumberText.h"

#include <algorithm>

namespace orvex {

RecordEdit::RecordEdit(std::string_view bytes, std::size_t begin, std::size_t end)
    : m_bytes(bytes), m_begin(begin), m_end(end), m_tags(bytes, begin, end),
      m_format(TagFormat::of(bytes, begin)) {}

void RecordEdit::replace(std::size_t tag, std::string_view value) {
    m_changes[tag].lines = lines(tag, value);
}

void RecordEdit::remove(std::size_t from, std::size_t to) {
    if (from < to) {
        m_changes[from].removed = to - from;
    }
}

void RecordEdit::insertAfter(std::size_t tag, std::string lines) {
    std::string& after = m_changes[tag].after;
    if (after.empty()) {
        after = std::move(lines);
    } else {
        after += lines;
    }
}

std::string RecordEdit::lines(std::size_t tag, std::string_view value) const {
    const Tag old = m_tags[tag];
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
    std::string text(m_tags.lines(tag, tag + 1));
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
    std::size_t next = 0; // the first tag that is neither in `text` nor passed over
    const auto keepUpTo = [&](std::size_t tag) {
        if (next < tag) {
            text += m_tags.lines(next, tag);
            next = tag;
        }
    };
    for (const auto& [tag, change] : m_changes) {
        keepUpTo(tag);
        if (change.lines) {
            text += *change.lines;
            next = std::max(next, tag + 1);
        }
        next = std::max(next, change.removed > 0 ? tag + change.removed : next);
        if (!change.after.empty()) {
            keepUpTo(tag + 1);
            if (!text.empty() && !text.ends_with('\n')) {
                text += m_format.lineEnd;
            }
            text += change.after;
        }
    }
    keepUpTo(m_tags.size());
    return text;
}

} // namespace orvex
