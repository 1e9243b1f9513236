#pragma once

#include "Failure.h"

#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace CLI {
class App;
} // namespace CLI

namespace orvex {

// Stands for standard input and standard output in a call.
inline constexpr const char* kStandardStream = "-";

// One drawing of a call. Files in UTF-8, as typed.
struct DrawingTask {
    std::string drawing;               // or kStandardStream
    std::optional<std::string> output; // nothing is saved without; or kStandardStream
    bool isOneOfMany = false;          // what is printed then says for which drawing

    [[nodiscard]] bool printsResult() const { return output == kStandardStream; }
};

// What was done to a drawing, in numbers for a report, in this order.
using Counts = std::vector<std::pair<std::string, std::size_t>>;

struct VerbTraits {
    const char* name;
    const char* purpose;
    const char* output; // what --output does; null when nothing is written
    bool needsOutput = false;
};

// What the program can do to a drawing. The options that all verbs share (drawings, outputs) are
// the call's; a verb has those of its own.
class Verb {
public:
    explicit Verb(const VerbTraits& traits) : m_traits(traits) {}
    virtual ~Verb() = default;
    Verb(const Verb&) = delete;
    Verb& operator=(const Verb&) = delete;

    [[nodiscard]] const VerbTraits& traits() const { return m_traits; }

    virtual void addOptions(CLI::App& options) = 0;
    // Whether the options fit the task; asked before anything is opened. The cause of a failure is
    // wrongCall.
    [[nodiscard]] virtual std::optional<Failure> check(const DrawingTask& /*task*/) const {
        return std::nullopt;
    }
    // Whether an option of its own takes standard input, which is there once.
    [[nodiscard]] virtual bool readsStandardInput() const { return false; }
    // Whether what it prints names the drawing by itself when it is one of many.
    [[nodiscard]] virtual bool printsJson() const { return false; }
    // The ending, with its point, of an output that is called after the drawing.
    [[nodiscard]] virtual std::string outputEnding(const std::string& drawing) const;
    // Reads what all drawings of a call share; once, after the checks.
    [[nodiscard]] virtual std::optional<Failure> prepare() { return std::nullopt; }
    // Prints to standard output, which is standard error where the result itself is printed.
    [[nodiscard]] virtual std::optional<Failure> carryOut(const DrawingTask& task,
                                                          Counts& counts) = 0;

private:
    VerbTraits m_traits;
};

} // namespace orvex
