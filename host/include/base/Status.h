#pragma once

// The host's error number. Callers hardly ever look at it: on failure every out argument is left
// in a defined, empty state, so that behaviour is right without the check.
enum class Status : int {
    done = 0,
    badByteSeek = 3,
    invalidInput = 4,
    nullId = 5,
    notFound = 6,
    wrongClass = 7,
    wasErased = 8,
    outOfMemory = 9,
    duplicateKey = 10,
    badHandleCount = 67,
};
