#include "MlineVertexEdit.h"

#include "MlineParser.h"
#include "NumberText.h"
#include "sameBits.h"

#include <algorithm>

namespace orvex {

namespace {

constexpr std::array<int, VertexTags::kPlaces> kCodes{11, 21, 31, 12, 22, 32, 13, 23, 33};

std::array<double, VertexTags::kPlaces> coordinates(const ChainVertex& vertex) {
    return {vertex.position.x, vertex.position.y, vertex.position.z, vertex.axis.x, vertex.axis.y,
            vertex.axis.z,     vertex.miter.x,    vertex.miter.y,    vertex.miter.z};
}

std::size_t placeOf(int code) {
    return static_cast<std::size_t>(std::ranges::find(kCodes, code) - kCodes.begin());
}

// Pairs what a list was with what it is: equal heads and tails belong together, what lies between
// goes by index. So an entry that was put in or taken out doesn't shift the text of the others.
template <class T>
class Alignment {
public:
    template <class IsSame>
    Alignment(std::span<const T> old, std::span<const T> now, IsSame isSame)
        : m_old(old.size()), m_now(now.size()) {
        const std::size_t shorter = std::min(m_old, m_now);
        while (m_head < shorter && isSame(old[m_head], now[m_head])) {
            ++m_head;
        }
        while (m_tail < shorter - m_head &&
               isSame(old[m_old - 1 - m_tail], now[m_now - 1 - m_tail])) {
            ++m_tail;
        }
    }
    // The old index of what is `now`; kNone when it is new. It grows with `now`.
    [[nodiscard]] std::size_t operator()(std::size_t now) const {
        if (now + m_tail >= m_now) {
            return now + m_old - m_now;
        }
        return now < m_head || now + m_tail < m_old ? now : VertexTags::kNone;
    }

private:
    std::size_t m_old;
    std::size_t m_now;
    std::size_t m_head = 0;
    std::size_t m_tail = 0;
};

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

// Writes the vertices that aren't as they were anew, out of their old tags and new ones. Those that
// are stay where they stand in the record.
class VertexText {
public:
    VertexText(RecordEdit& edit, const MlineLayout& layout, const MlineContent& old,
               const MlineContent& content)
        : m_edit(edit), m_layout(layout), m_old(old), m_content(content), m_text(edit.format()),
          m_next(layout.verticesBegin()) {}

    void run();

private:
    [[nodiscard]] bool isAsItWas(std::size_t vertex, std::size_t oldVertex) const;
    // Puts what was written so far in the place of the tags from m_next to this one.
    void settle(std::size_t tag);
    void addVertex(std::size_t vertex, std::size_t oldVertex);
    void addList(std::size_t vertex, std::size_t oldVertex, std::size_t index);
    // An old tag, with another value where one is given, and what stands after it.
    void addOld(std::size_t tag, const std::string* value);

    RecordEdit& m_edit;
    const MlineLayout& m_layout;
    const MlineContent& m_old;
    const MlineContent& m_content;
    TagText m_text;
    VertexTags m_tags;  // of the old vertex at hand
    std::size_t m_next; // the first tag that is neither kept nor replaced yet
};

void VertexText::run() {
    const Alignment<ChainVertex> oldIndex(m_old.vertices, m_content.vertices,
                                          [](const ChainVertex& a, const ChainVertex& b) {
                                              return sameBits(a.position, b.position);
                                          });
    for (std::size_t vertex = 0; vertex < m_content.vertices.size(); ++vertex) {
        const std::size_t oldVertex = oldIndex(vertex);
        if (oldVertex == VertexTags::kNone) {
            addVertex(vertex, oldVertex);
        } else if (isAsItWas(vertex, oldVertex)) {
            settle(m_layout.vertexBegin(oldVertex));
            m_next = m_layout.vertexBegin(oldVertex + 1);
        } else {
            m_layout.readVertex(oldVertex, m_tags);
            addVertex(vertex, oldVertex);
        }
    }
    settle(m_layout.verticesEnd());
}

bool VertexText::isAsItWas(std::size_t vertex, std::size_t oldVertex) const {
    const auto v = static_cast<unsigned>(vertex);
    const auto o = static_cast<unsigned>(oldVertex);
    const unsigned elements = m_content.elementCount();
    if (!sameBits(m_content.vertices[vertex], m_old.vertices[oldVertex]) ||
        m_old.elementCount() != elements) {
        return false;
    }
    for (unsigned element = 0; element < elements; ++element) {
        if (!sameBits(m_content.lists.line(v, element), m_old.lists.line(o, element)) ||
            !sameBits(m_content.lists.area(v, element), m_old.lists.area(o, element))) {
            return false;
        }
    }
    return true;
}

void VertexText::settle(std::size_t tag) {
    m_edit.remove(m_next, tag);
    if (std::string text = m_text.take(); !text.empty()) {
        m_edit.insertAfter(m_next - 1, std::move(text));
    }
    m_next = tag;
}

void VertexText::addVertex(std::size_t vertex, std::size_t oldVertex) {
    const auto values = coordinates(m_content.vertices[vertex]);
    const bool isNew = oldVertex == VertexTags::kNone;
    const auto oldValues = isNew ? values : coordinates(m_old.vertices[oldVertex]);
    for (std::size_t place = 0; place < values.size(); ++place) {
        const std::size_t tag = isNew ? VertexTags::kNone : m_tags.coordinate(place);
        const bool same = sameBits(values[place], oldValues[place]);
        if (tag == VertexTags::kNone) {
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
    const VertexTags::List list =
        oldVertex == VertexTags::kNone ? VertexTags::List() : m_tags.list(index);
    const bool isOld = list.count != VertexTags::kNone;
    const auto oldValues = isOld ? listOf(m_old, oldVertex, index) : std::span<const double>();
    const std::string count = std::to_string(values.size());
    if (isOld) {
        addOld(list.count, values.size() == oldValues.size() ? nullptr : &count);
    } else {
        m_text.add(countCode(index), count);
    }
    const Alignment<double> oldIndex(oldValues, values,
                                     [](double a, double b) { return sameBits(a, b); });
    for (std::size_t i = 0; i < values.size(); ++i) {
        const std::size_t old = isOld ? oldIndex(i) : VertexTags::kNone;
        if (old == VertexTags::kNone) {
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

VertexTags::List VertexTags::list(std::size_t index) const {
    if (index >= m_lists.size()) {
        return {};
    }
    const std::size_t first = m_lists[index].values;
    const std::size_t last =
        index + 1 < m_lists.size() ? m_lists[index + 1].values : m_values.size();
    return {m_lists[index].count, std::span(m_values).subspan(first, last - first)};
}

MlineLayout::MlineLayout(const TagList& tags, MlineParser& parser)
    : m_tags(tags), m_begin(tags.size()), m_isExtra(tags.size(), true) {
    parser.begin(tags.lines(0, tags.size()).size());
    for (std::size_t i = 1; i < tags.size(); ++i) {
        const Tag tag = tags[i];
        const MlineRole role = parser.feed(tag);
        m_isExtra[i] = role == MlineRole::extra;
        if (role == MlineRole::extra || role == MlineRole::field) {
            continue;
        }
        m_begin = std::min(m_begin, i);
        m_end = i + 1;
        if (role == MlineRole::vertex && tag.code == kCodes[0]) {
            m_vertices.push_back(i);
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

void MlineLayout::readVertex(std::size_t vertex, VertexTags& result) const {
    result.m_coordinates.fill(VertexTags::kNone);
    result.m_lists.clear();
    result.m_values.clear();
    for (std::size_t i = vertexBegin(vertex); i < vertexBegin(vertex + 1); ++i) {
        if (m_isExtra[i]) {
            continue;
        }
        const int code = m_tags[i].code;
        if (code == countCode(0) || code == countCode(1)) {
            result.m_lists.push_back({i, result.m_values.size()});
        } else if (code == valueCode(0) || code == valueCode(1)) {
            result.m_values.push_back(i);
        } else {
            result.m_coordinates[placeOf(code)] = i;
        }
    }
}

void editVertices(RecordEdit& edit, const MlineLayout& layout, const MlineContent& old,
                  const MlineContent& content) {
    VertexText(edit, layout, old, content).run();
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
