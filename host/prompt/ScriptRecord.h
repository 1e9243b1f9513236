#pragma once

#include "PromptSource.h"

#include <string>
#include <vector>

namespace orvex {

// The commands and answers of a session so far, as the lines of a script that does the same. What
// is done in a dialog no script can do; it stands there as comments.
class ScriptRecord {
public:
    void begin(const std::wstring& command, bool isPlayable);
    void answer(const PromptAnswer& answer);
    void line(const std::wstring& line);
    // The last answer was refused. A script can't give it again, and goes on as after a cancel.
    void refuseLast();
    void end(bool hasChanged); // the command; whether it changed the drawing

    // Whether it does all of it.
    [[nodiscard]] bool isWhole() const { return m_isWhole; }
    [[nodiscard]] std::size_t lineCount() const { return m_lines.size(); }
    // UTF-8, each line with its end.
    [[nodiscard]] std::string text() const;

private:
    std::vector<std::wstring> m_lines;
    bool m_isPlayable = true; // the command that runs
    bool m_isWhole = true;
};

} // namespace orvex
