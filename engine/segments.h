#pragma once

struct CMlineSegment;

// What a record holds at the moment, told by its own counts and the open entity's flags.

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
