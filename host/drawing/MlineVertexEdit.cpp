#include "MlineVertexEdit.h"

#include "MlineParser.h"
#include "NumberText.h"
#include "sameBits.h"

#include <algorithm>

namespace orvex {

namespace {

constexpr std::array<int, MlineLayout::kPlaces> kCodes{11, 21, 31, 12, 22, 32, 13, 23, 33};

std::array<double, MlineLayout::kPlaces> coordinates(const ChainVertex& vertex) {
    return {vertex.position.x, vertex.position.y, vertex.position.z, vertex.axis.x, vertex.axis.y,
            vertex.axis.z,     vertex.miter.x,    vertex.miter.y,    vertex.miter.z};
}

std::size_t placeOf(int code) {
    return static_cast<std::size_t>(std::ranges::find(kCodes, code) - kCodes.begin());
}

// Pairs what a list was with what it is: equal heads and tails belong together, what lies between
// goes by index. So an entry that was put in or taken out doesn't shift the text of the others.
class Alignment {
public:
    template <class T>
    Alignment(std::span<const T> old, std::span<const T> now)
        : m_old(old.size()), m_now(now.size()) {
        const std::size_t shorter = std::min(m_old, m_now);
        while (m_head < shorter && sameBits(old[m_head], now[m_head])) {
            ++m_head;
        }
        while (m_tail < shorter - m_head &&
               sameBits(old[m_old - 1 - m_tail], now[m_now - 1 - m_tail])) {
            ++m_tail;
        }
    }
    // The old index of what is `now`; kNone when it is new.
    [[nodiscard]] std::size_t operator()(std::size_t now) const {
        if (now + m_tail >= m_now) {
            return now + m_old - m_now;
        }
        return now < m_head || now + m_tail < m_old ? now : MlineLayout::kNone;
    }

private:
    std::size_t m_old;
    std::size_t m_now;
    std::size_t m_head = 0;
    std::size_t m_tail = 0;
};

std::vector<KdGePoint3d> positions(const MlineContent& content) {
    std::vector<KdGePoint3d> result;
    result.reserve(content.vertices.size());
    for (const ChainVertex& vertex : content.vertices) {
        result.push_back(vertex.position);
    }
    return result;
}

std::span<const double> listOf(const MlineContent& content, std::size_t vertex, std::size_t index) {
    const auto v = static_cast<unsigned>(vertex);
    const auto element = static_cast<unsigned>(index / 2);
    return index % 2 == 0 ? content.lists.line(v, element) : content.lists.area(v, element);
}

int countCode(std::size_t index) {
    return index % 2 == 0 ? 74 : 75;
}
int valueCode(std::size_t index) {
    return index % 2 == 0 ? 41 : 42;
}

// Writes the vertices anew out of the old tags and new ones.
class VertexText {
public:
    VertexText(const RecordEdit& edit, const MlineLayout& layout, const MlineContent& old,
               const MlineContent& content)
        : m_edit(edit), m_layout(layout), m_old(old), m_content(content), m_text(edit.format()) {}

    std::string run();

private:
    void addVertex(std::size_t vertex, std::size_t oldVertex);
    void addList(std::size_t vertex, std::size_t oldVertex, std::size_t index);
    // An old tag, with another value where one is given, and what stands after it.
    void addOld(std::size_t tag, const std::string* value);

    const RecordEdit& m_edit;
    const MlineLayout& m_layout;
    const MlineContent& m_old;
    const MlineContent& m_content;
    TagText m_text;
};

std::string VertexText::run() {
    const std::vector<KdGePoint3d> before = positions(m_old);
    const std::vector<KdGePoint3d> now = positions(m_content);
    const Alignment oldIndex{std::span<const KdGePoint3d>(before),
                             std::span<const KdGePoint3d>(now)};
    for (std::size_t vertex = 0; vertex < now.size(); ++vertex) {
        addVertex(vertex, oldIndex(vertex));
    }
    return m_text.take();
}

void VertexText::addVertex(std::size_t vertex, std::size_t oldVertex) {
    const auto values = coordinates(m_content.vertices[vertex]);
    const bool isNew = oldVertex == MlineLayout::kNone;
    const auto oldValues = isNew ? values : coordinates(m_old.vertices[oldVertex]);
    for (std::size_t place = 0; place < values.size(); ++place) {
        const std::size_t tag = isNew ? MlineLayout::kNone : m_layout.coordinate(oldVertex, place);
        const bool same = sameBits(values[place], oldValues[place]);
        if (tag == MlineLayout::kNone) {
            if (isNew || !same) {
                m_text.addReal(kCodes[place], values[place]);
            }
        } else if (same) {
            addOld(tag, nullptr);
        } else {
            const std::string value = realText(values[place]);
            addOld(tag, &value);
        }
    }
    for (std::size_t index = 0; index < std::size_t{m_content.elementCount()} * 2; ++index) {
        addList(vertex, oldVertex, index);
    }
}

void VertexText::addList(std::size_t vertex, std::size_t oldVertex, std::size_t index) {
    const auto values = listOf(m_content, vertex, index);
    const MlineLayout::List list =
        oldVertex == MlineLayout::kNone ? MlineLayout::List() : m_layout.list(oldVertex, index);
    const bool isOld = list.count != MlineLayout::kNone;
    const auto oldValues = isOld ? listOf(m_old, oldVertex, index) : std::span<const double>();
    const std::string count = std::to_string(values.size());
    if (isOld) {
        addOld(list.count, values.size() == oldValues.size() ? nullptr : &count);
    } else {
        m_text.add(countCode(index), count);
    }
    const Alignment oldIndex{oldValues, values};
    for (std::size_t i = 0; i < values.size(); ++i) {
        const std::size_t old = isOld ? oldIndex(i) : MlineLayout::kNone;
        if (old == MlineLayout::kNone) {
            m_text.addReal(valueCode(index), values[i]);
        } else if (sameBits(values[i], oldValues[old])) {
            addOld(list.values[old], nullptr);
        } else {
            const std::string value = realText(values[i]);
            addOld(list.values[old], &value);
        }
    }
}

void VertexText::addOld(std::size_t tag, const std::string* value) {
    m_text.addLines(value != nullptr ? m_edit.lines(tag, *value) : m_edit.lines(tag));
    const std::size_t next = m_layout.behindExtras(tag);
    for (std::size_t extra = tag + 1; extra < std::min(next, m_layout.verticesEnd()); ++extra) {
        m_text.addLines(m_edit.lines(extra));
    }
}

} // namespace

MlineLayout::MlineLayout(const std::vector<Tag>& tags)
    : m_begin(tags.size()), m_isExtra(tags.size(), true) {
    MlineParser parser;
    parser.begin();
    for (std::size_t i = 1; i < tags.size(); ++i) {
        const MlineRole role = parser.feed(tags[i]);
        m_isExtra[i] = role == MlineRole::extra;
        if (role == MlineRole::extra || role == MlineRole::field) {
            continue;
        }
        m_begin = std::min(m_begin, i);
        m_end = i + 1;
        if (role == MlineRole::vertex) {
            if (tags[i].code == kCodes[0]) {
                m_coordinates.emplace_back().fill(kNone);
                m_firstLists.push_back(m_lists.size());
            }
            m_coordinates.back()[placeOf(tags[i].code)] = i;
        } else if (role == MlineRole::lineCount || role == MlineRole::areaCount) {
            m_lists.push_back({i, m_values.size()});
        } else {
            m_values.push_back(i);
        }
    }
    if (m_end == 0) {
        // No vertices: new ones go after the fields, before data of other applications.
        m_begin = 1;
        for (std::size_t i = 1; i < tags.size(); ++i) {
            m_begin = m_isExtra[i] ? m_begin : i + 1;
        }
        m_end = m_begin;
    }
}

std::size_t MlineLayout::behindExtras(std::size_t tag) const {
    ++tag;
    while (tag < m_isExtra.size() && m_isExtra[tag]) {
        ++tag;
    }
    return tag;
}

MlineLayout::List MlineLayout::list(std::size_t vertex, std::size_t index) const {
    const std::size_t at = m_firstLists[vertex] + index;
    const std::size_t end =
        vertex + 1 < m_firstLists.size() ? m_firstLists[vertex + 1] : m_lists.size();
    if (at >= end) {
        return {};
    }
    const std::size_t first = m_lists[at].values;
    const std::size_t last = at + 1 < m_lists.size() ? m_lists[at + 1].values : m_values.size();
    return {m_lists[at].count, std::span(m_values).subspan(first, last - first)};
}

void editVertices(RecordEdit& edit, const MlineLayout& layout, const MlineContent& old,
                  const MlineContent& content) {
    VertexText text(edit, layout, old, content);
    edit.insertAfter(layout.verticesBegin() - 1, text.run());
    edit.remove(layout.verticesBegin(), layout.verticesEnd());
}

void writeVertices(TagText& target, const MlineContent& content) {
    for (std::size_t vertex = 0; vertex < content.vertices.size(); ++vertex) {
        const auto values = coordinates(content.vertices[vertex]);
        for (std::size_t place = 0; place < values.size(); ++place) {
            target.addReal(kCodes[place], values[place]);
        }
        for (std::size_t index = 0; index < std::size_t{content.elementCount()} * 2; ++index) {
            const auto list = listOf(content, vertex, index);
            target.add(countCode(index), std::to_string(list.size()));
            for (const double value : list) {
                target.addReal(valueCode(index), value);
            }
        }
    }
}

} // namespace orvex
