#pragma once

class KdDbMline;

// A copy of a multiline's whole vertex chain in plain arrays, fixed by the interface; nothing
// written to it reaches the entity. Records own their arrays.

// One element at one vertex.
struct db_mlelemlink {
    int numLine = 0;
    double* lineParams = nullptr; // null for none
    int numArea = 0;
    double* areaParams = nullptr; // null for none

    db_mlelemlink() = default;
    db_mlelemlink(const db_mlelemlink&) = delete;
    db_mlelemlink& operator=(const db_mlelemlink&) = delete;
    ~db_mlelemlink();
};

// One vertex: its position, the directions of its segment and of its miter.
struct db_mlvertlink {
    double pt[3] = {0.0, 0.0, 0.0};
    double axis[3] = {0.0, 0.0, 0.0};
    double miter[3] = {0.0, 0.0, 0.0};
    db_mlelemlink* elem = nullptr; // as many as the multiline has elements; null for none

    db_mlvertlink() = default;
    db_mlvertlink(const db_mlvertlink&) = delete;
    db_mlvertlink& operator=(const db_mlvertlink&) = delete;
    ~db_mlvertlink();
};

// One record per vertex, the caller's to free with delete[]; null without vertices. The entity has
// to be open.
db_mlvertlink* ret_vert(const KdDbMline* mline);
