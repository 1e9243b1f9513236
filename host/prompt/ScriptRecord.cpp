#include "ScriptRecord.h"

#include "answerFromText.h"
#include "textCodec.h"

namespace orvex {

void ScriptRecord::begin(const std::wstring& command, bool isPlayable) {
    m_isPlayable = isPlayable;
    line(command);
}

void ScriptRecord::answer(const PromptAnswer& answer) {
    line(answer.kind == PromptAnswer::Kind::cancel ? kCancelText : answer.echo);
}

void ScriptRecord::line(const std::wstring& line) {
    m_lines.push_back(m_isPlayable ? line : L"; " + line);
}

void ScriptRecord::refuseLast() {
    if (!m_lines.empty()) {
        m_lines.pop_back();
        line(kCancelText);
    }
}

void ScriptRecord::end(bool hasChanged) {
    m_isWhole = m_isWhole && (m_isPlayable || !hasChanged);
    m_isPlayable = true;
}

std::string ScriptRecord::text() const {
    std::string text;
    for (const std::wstring& line : m_lines) {
        text += narrow(line) + '\n';
    }
    return text;
}

} // namespace orvex
