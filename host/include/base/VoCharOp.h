#pragma once

struct VoCharOp {
    // Length of a narrow text in bytes; 0 for null.
    static int numOfChars(const char* text);
};
