#pragma once

#include "Failure.h"
#include "PromptSource.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace orvex {

// Answers prompts from the lines of a script, UTF-8. Blanks at both ends of a line don't count;
// lines that begin with ";" are comments. An empty line is no input, "*CANCEL*" a cancel. The end
// of the script answers with a cancel for ever, and so does all that follows an answer that fits
// no prompt: `failure` then says which line it was.
class ScriptSource final : public PromptSource {
public:
    using Printer = std::function<void(const std::wstring&)>;

    ScriptSource(std::string_view utf8, Printer printer);

    // The line (from 1) of the first byte that makes the text no UTF-8; nothing when it is.
    static std::optional<std::size_t> firstLineThatIsNoUtf8(std::string_view text);

    PromptAnswer ask(const PromptRequest& request) override;
    [[nodiscard]] bool mayTakeBack() const override { return m_mayTakeBack; }
    void print(const std::wstring& line) override { m_printer(line); }
    void reject(const std::wstring& reason) override;

    [[nodiscard]] bool atEnd() const { return m_failure || !m_hasNext; }
    [[nodiscard]] const std::optional<Failure>& failure() const { return m_failure; }
    [[nodiscard]] std::size_t line() const { return m_line; } // of the last answer, from 1

private:
    PromptAnswer answerTo(const PromptRequest& request, const std::wstring& text);
    void findNext();

    std::string m_text;     // as it was given: widened it would take four times as much
    std::size_t m_rest = 0; // where the line after the next one begins
    bool m_hasNext = false;
    std::size_t m_nextAt = 0; // in m_text, without blanks
    std::size_t m_nextSize = 0;
    std::size_t m_nextNumber = 0;
    std::size_t m_line = 0;
    bool m_mayTakeBack; // a transparent command stands in it
    Printer m_printer;
    std::optional<Failure> m_failure;
};

} // namespace orvex
