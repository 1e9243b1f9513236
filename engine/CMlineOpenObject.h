#pragma once

struct CMlineSegment;

// Holds the entities of a cycle open for write: turns both records from read to write, and closes
// them at the end. With one entity in both records it is opened once. An entity that can't be
// opened leaves its record's pointer null.
//
// At the end the second record keeps its pointer, and the first is cleared twice: the exit of a
// tool closes the second once more, which the host allows.
class CMlineOpenObject {
public:
    CMlineOpenObject(CMlineSegment* first, CMlineSegment* second);
    ~CMlineOpenObject();
    CMlineOpenObject(const CMlineOpenObject&) = delete;
    CMlineOpenObject& operator=(const CMlineOpenObject&) = delete;

private:
    CMlineSegment* m_first;
    CMlineSegment* m_second;
};
