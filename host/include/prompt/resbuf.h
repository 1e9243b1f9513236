#pragma once

// Types of a result buffer's value.
enum ResultType : short {
    kResultNone = 0,
    kResultReal = 5001,
    kResultPoint2d = 5002,
    kResultShort = 5003,
    kResultAngle = 5004,
    kResultText = 5005,
    kResultEntityName = 5006,
    kResultPoint = 5009,
    kResultLong = 5010,
    kResultObjectName = -1, // an entry of a dictionary search
};

// A typed value, or a list of them. All members of the union start at one address: reading another
// member than was written reads its first bytes, and the frames of coordinate conversions count
// on that.
struct resbuf {
    resbuf* rbnext = nullptr;
    short restype = kResultNone;
    union Value {
        double rreal;
        double rpoint[3];
        short rint;
        int rlong;
        wchar_t* rstring; // from the host's heap, given back with rvex_free
        long rlname[2];
    } resval{.rpoint = {0.0, 0.0, 0.0}};
};

// Frees a whole list with its texts. Null does nothing.
int kdutRelRb(resbuf* list);
