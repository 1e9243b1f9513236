#pragma once

#include <cassert>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <variant>

namespace orvex {

// How the host reports that something failed:
// - an action returns std::optional<Failure>, nothing when it succeeded;
// - what makes a value returns Result<T>;
// - a parser returns std::optional<T>: that a text isn't of the form asked for says it all.

// Who has to act on it. Programs map causes to exit statuses.
enum class FailureCause : std::uint8_t {
    wrongCall,        // options and arguments contradict themselves
    unreadableInput,  // a file can't be read, or holds what it must not
    unwritableOutput, // nothing was left behind
    unplayableScript, // a command or an answer that can't be taken
    unloadableModule, // a module file or its texts
    impossibleEdit,   // the geometry doesn't allow it; nothing was changed
    missedPick,       // a pick found nothing, and the caller wanted to know
    interrupted,      // by the user or by a signal
    programFault,     // what should never happen
};

struct Failure {
    FailureCause cause = FailureCause::programFault;
    std::string file;     // UTF-8; empty when none is to blame
    std::size_t line = 0; // from 1; 0 when none is to blame
    std::string text;     // UTF-8, without file and line
};

// "file:line: text", without what is empty or 0.
std::string locatedText(const std::string& file, std::size_t line, const std::string& text);
std::string messageOf(const Failure& failure);

// A value, or why there is none.
template <class Value>
class [[nodiscard]] Result {
public:
    // Both are what a function that returns a Result returns.
    Result(Value value) : m_content(std::in_place_index<0>, std::move(value)) {}
    Result(Failure failure) : m_content(std::in_place_index<1>, std::move(failure)) {}

    [[nodiscard]] bool hasValue() const { return m_content.index() == 0; }
    explicit operator bool() const { return hasValue(); }

    [[nodiscard]] Value& operator*() {
        assert(hasValue());
        return *std::get_if<0>(&m_content);
    }
    [[nodiscard]] const Value& operator*() const {
        assert(hasValue());
        return *std::get_if<0>(&m_content);
    }
    [[nodiscard]] Value* operator->() { return &**this; }
    [[nodiscard]] const Value* operator->() const { return &**this; }

    [[nodiscard]] const Failure& failure() const {
        assert(!hasValue());
        return *std::get_if<1>(&m_content);
    }

private:
    std::variant<Value, Failure> m_content;
};

} // namespace orvex
