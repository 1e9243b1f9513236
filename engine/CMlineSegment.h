#pragma once

#include "pointTable.h"

class KdDbMline;

// One picked multiline: where the pick landed and where every element runs. Segment i of the chain
// goes from vertex i to the next one, on a closed multiline also from the last vertex to vertex 0.
// An element is one of the parallel lines, in the style's order. Coordinates are world, lengths in
// drawing units.
//
// The mapped members are the pick carried over to the element that a tool is working on; the pick
// itself stays. A plain record, fixed by the interface: CMlineEdit frees the table, and whoever
// opened the entity closes it.
struct CMlineSegment {
    long m_name[2] = {0, 0};                 // entities are compared by the first word
    double m_pickPoint[3] = {0.0, 0.0, 0.0}; // on the picked element's line
    double m_pickDistance = 0.0;             // of it from the element's start of the segment
    int m_segment = 0;
    int m_element = 0;
    int m_numVertices = 0;
    int m_numElements = 0;
    KdDbMline* m_mline = nullptr;          // the open entity, null when there is none
    mledit::PointTable m_ptList = nullptr; // [element][vertex]: where the element passes the vertex
    int m_ptListSize = 0;                  // rows of the table
    double m_mappedPoint[3] = {0.0, 0.0, 0.0};
    double m_mappedDistance = 0.0;
    int m_mappedSegment = 0;
    int m_mappedElement = 0;
    double m_weldPoint[3] = {0.0, 0.0, 0.0}; // the pick clamped to its segment's ends
};

namespace mledit {

// What a record holds at the moment, by its own counts and the open entity's flags.

bool isClosed(const CMlineSegment& seg); // false without an entity

// The vertex at the end of a segment: on a closed multiline the last segment ends at vertex 0. -1
// when there is no such segment.
int segmentEnd(const CMlineSegment& seg, int segment);

// Whether the table of positions has a row for the element.
bool hasElement(const CMlineSegment& seg, int element);

// Whether the record can be worked on: an open entity with a segment and an element, and the pick
// among them. A pick that missed leaves the numbers of an earlier, perhaps longer multiline.
bool isUsable(const CMlineSegment& seg);

inline bool isSameEntity(const long* name, const long* other) {
    return name[0] == other[0];
}

} // namespace mledit
