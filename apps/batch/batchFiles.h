#pragma once

#include "AtomicFile.h"
#include "DrawingFile.h"

#include <memory>
#include <new>
#include <optional>
#include <string>
#include <vector>

namespace orvex {

// Prints warnings about a drawing to standard error.
void printWarnings(const std::string& path, const std::vector<DrawingWarning>& warnings);

// The name of a drawing or a script in messages.
std::string inputName(const std::string& path);

// Gives standard output to the result: all that is printed from then on goes to standard error.
// Once in a process.
std::optional<Failure> claimStandardOutput();

// The file for a result; standard output for "-", which has to be claimed before.
AtomicFile resultFile(const std::string& output);

// Opens a drawing and prints its warnings.
Result<std::unique_ptr<DrawingFile>> openDrawing(const std::string& path);

// Saves the drawing, unless what was printed before can't be written: a call that can't say what it
// did leaves nothing behind.
std::optional<Failure> saveDrawing(DrawingFile& drawing, const std::string& output);

// Nothing while all that was printed could be written.
std::optional<Failure> flushOutput();

inline constexpr const char* kComplaintStart = "orvex-batch: ";
// The line that complain prints, with its end.
std::string complaint(const std::string& text);
// Prints a line to standard error: "orvex-batch: " and the text, control characters as \U+XXXX.
void complain(const std::string& text);

// Runs `work`, an action; lack of memory is a failure with that cause. `file` is the one at hand.
template <class Work>
std::optional<Failure> withMemory(FailureCause cause, const std::string& file, Work&& work) {
    try {
        return work();
    } catch (const std::bad_alloc&) {
        return Failure{cause, file, 0, "not enough memory"};
    }
}

} // namespace orvex
