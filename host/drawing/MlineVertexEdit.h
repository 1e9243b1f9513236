#pragma once

#include "MlineContent.h"
#include "RecordEdit.h"
#include "TagText.h"

#include <array>
#include <cstddef>
#include <span>
#include <vector>

namespace orvex {

// Where in a multiline's record its vertices and lists have their tags.
class MlineLayout {
public:
    static constexpr std::size_t kNone = ~std::size_t{0};
    static constexpr std::size_t kPlaces = 9; // position, axis, miter

    // Of a record that doesn't contradict itself.
    explicit MlineLayout(const std::vector<Tag>& tags);

    // The tags of the first vertex up to the last list; equal when there are none.
    [[nodiscard]] std::size_t verticesBegin() const { return m_begin; }
    [[nodiscard]] std::size_t verticesEnd() const { return m_end; }
    // Index of the tag after this one that says something of the multiline.
    [[nodiscard]] std::size_t behindExtras(std::size_t tag) const;

    struct List {
        std::size_t count = kNone; // tag
        std::span<const std::size_t> values;
    };
    [[nodiscard]] std::size_t coordinate(std::size_t vertex, std::size_t place) const {
        return m_coordinates[vertex][place];
    }
    // Lists of lines and of areas in turn. Without a count when there is none.
    [[nodiscard]] List list(std::size_t vertex, std::size_t index) const;

private:
    std::size_t m_begin;
    std::size_t m_end = 0;
    std::vector<bool> m_isExtra;
    // A record may have millions of vertices, so all is flat.
    struct FlatList {
        std::size_t count;
        std::size_t values; // in m_values, up to the next list's
    };
    std::vector<std::array<std::size_t, kPlaces>> m_coordinates;
    std::vector<std::size_t> m_firstLists; // of each vertex, in m_lists
    std::vector<FlatList> m_lists;
    std::vector<std::size_t> m_values;
};

// Puts the vertices of `content` in the place of those of `old`, which are the record's.
void editVertices(RecordEdit& edit, const MlineLayout& layout, const MlineContent& old,
                  const MlineContent& content);

void writeVertices(TagText& target, const MlineContent& content);

} // namespace orvex
