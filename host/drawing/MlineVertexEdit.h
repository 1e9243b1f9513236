#pragma once

#include "MlineContent.h"
#include "RecordEdit.h"
#include "TagText.h"

#include <array>
#include <cstddef>
#include <span>
#include <vector>

namespace orvex {

class MlineParser;

// Where a vertex and its lists have their tags in a multiline's record.
class VertexTags {
public:
    static constexpr std::size_t kNone = ~std::size_t{0};
    static constexpr std::size_t kPlaces = 9; // position, axis, miter

    struct List {
        std::size_t count = kNone; // tag
        std::span<const std::size_t> values;
    };
    [[nodiscard]] std::size_t coordinate(std::size_t place) const { return m_coordinates[place]; }
    // Lists of lines and of areas in turn. Without a count when there is none.
    [[nodiscard]] List list(std::size_t index) const;

private:
    friend class MlineLayout;

    struct FlatList {
        std::size_t count;
        std::size_t values; // in m_values, up to the next list's
    };
    std::array<std::size_t, kPlaces> m_coordinates{};
    std::vector<FlatList> m_lists;
    std::vector<std::size_t> m_values;
};

// Where in a multiline's record its vertices have their tags.
class MlineLayout {
public:
    // Of a record that doesn't contradict itself, which the parser finds out by the way: it reads
    // the record. The tags have to outlive the layout.
    MlineLayout(const TagList& tags, MlineParser& parser);

    // The tags of the first vertex up to the last list; equal when there are none.
    [[nodiscard]] std::size_t verticesBegin() const { return m_begin; }
    [[nodiscard]] std::size_t verticesEnd() const { return m_end; }
    // Where the tags of a vertex begin; verticesEnd() for the one after the last.
    [[nodiscard]] std::size_t vertexBegin(std::size_t vertex) const {
        return vertex < m_vertices.size() ? m_vertices[vertex] : m_end;
    }
    // Index of the tag after this one that says something of the multiline.
    [[nodiscard]] std::size_t behindExtras(std::size_t tag) const;
    // Any number of vertices may be read into the same tags, one after the other.
    void readVertex(std::size_t vertex, VertexTags& result) const;

private:
    const TagList& m_tags;
    std::size_t m_begin;
    std::size_t m_end = 0;
    std::vector<bool> m_isExtra;
    std::vector<std::size_t> m_vertices; // first tags; a record may have millions
};

// Puts the vertices of `content` in the place of those of `old`, which are the record's.
void editVertices(RecordEdit& edit, const MlineLayout& layout, const MlineContent& old,
                  const MlineContent& content);

void writeVertices(TagText& target, const MlineContent& content);

} // namespace orvex
