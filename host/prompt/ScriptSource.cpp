#include "ScriptSource.h"

#include "answerFromText.h"
#include "blanks.h"
#include "byteOrderMark.h"
#include "textCodec.h"
#include "typedAnswer.h"

#include <algorithm>
#include <cstdint>

namespace orvex {

namespace {

// Length of the UTF-8 character at the beginning of a text that isn't empty; 0 when it is none.
std::size_t characterLength(std::string_view text) {
    const auto byte = [&](std::size_t i) { return static_cast<std::uint8_t>(text[i]); };
    const std::uint8_t first = byte(0);
    if (first < 0x80) {
        return 1;
    }
    const std::size_t length = first >= 0xC2 && first < 0xE0   ? 2
                               : first >= 0xE0 && first < 0xF0 ? 3
                               : first >= 0xF0 && first < 0xF5 ? 4
                                                               : 0;
    if (length == 0 || length > text.size()) {
        return 0;
    }
    for (std::size_t i = 1; i < length; ++i) {
        if ((byte(i) & 0xC0U) != 0x80) {
            return 0;
        }
    }
    // Forms that are too long, surrogates, and what lies after the last code point.
    const std::uint8_t second = byte(1);
    const bool valid = !(first == 0xE0 && second < 0xA0) && !(first == 0xED && second >= 0xA0) &&
                       !(first == 0xF0 && second < 0x90) && !(first == 0xF4 && second >= 0x90);
    return valid ? length : 0;
}

} // namespace

ScriptSource::ScriptSource(std::string_view utf8, Printer printer)
    : m_text(withoutByteOrderMark(utf8)), m_mayTakeBack(m_text.find('\'') != std::string::npos),
      m_printer(std::move(printer)) {
    findNext();
}

// Goes on to the next line that is no comment.
void ScriptSource::findNext() {
    do {
        m_hasNext = m_rest < m_text.size();
        if (!m_hasNext) {
            return;
        }
        const std::size_t end = std::min(m_text.find('\n', m_rest), m_text.size());
        std::string_view line = std::string_view(m_text).substr(m_rest, end - m_rest);
        while (line.ends_with('\r')) {
            line.remove_suffix(1);
        }
        line = trimBlanks(line);
        m_nextAt = static_cast<std::size_t>(line.data() - m_text.data());
        m_nextSize = line.size();
        m_rest = end + 1;
        ++m_nextNumber;
    } while (m_nextSize > 0 && m_text[m_nextAt] == ';');
}

std::optional<std::size_t> ScriptSource::firstLineThatIsNoUtf8(std::string_view text) {
    std::size_t line = 1;
    while (!text.empty()) {
        const std::size_t length = characterLength(text);
        if (length == 0) {
            return line;
        }
        if (text.front() == '\n') {
            ++line;
        }
        text.remove_prefix(length);
    }
    return std::nullopt;
}

PromptAnswer ScriptSource::ask(const PromptRequest& request) {
    if (atEnd()) {
        PromptAnswer end;
        end.echo = kCancelText;
        return end;
    }
    const std::wstring text = widen(std::string_view(m_text).substr(m_nextAt, m_nextSize));
    m_line = m_nextNumber;
    findNext();
    PromptAnswer answer = answerTo(request, text);
    answer.echo = text;
    return answer;
}

PromptAnswer ScriptSource::answerTo(const PromptRequest& request, const std::wstring& text) {
    TextReading reading = answerFromText(request, text);
    if (auto* const understood = std::get_if<PromptAnswer>(&reading)) {
        return std::move(*understood);
    }
    reject(complaintAbout(request, text, reading));
    return {};
}

void ScriptSource::reject(const std::wstring& reason) {
    if (!m_failure) {
        m_failure = Failure{FailureCause::unplayableScript, {}, m_line, narrow(reason)};
    }
}

} // namespace orvex
