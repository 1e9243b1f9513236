#pragma once

// What buffers and streams have in common.
struct VoIO {
    // The origin of a seek. Values that aren't named here are allowed and move nothing.
    enum SeekType : int {
        fromStart = 0,
        forward = 1,  // from the current position
        backward = 2, // from the current position
        fromEnd = 3,  // backward
    };
};
