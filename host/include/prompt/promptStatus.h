#pragma once

// What a prompt function returns. Setters and getters give normal or error.
enum PromptStatus : int {
    kPromptNormal = 5100,
    kPromptNone = 5000,   // an empty line
    kPromptError = -5001, // nothing found; ERRNO says why
    kPromptCancelled = -5002,
    kPromptKeyword = -5005,
};

// The most characters, with terminator, that a prompt text or keyword ever has.
constexpr int kPromptTextSize = 2049;
