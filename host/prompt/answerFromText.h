#pragma once

#include "PromptSource.h"
#include "typedPoint.h"

#include <string>
#include <variant>

namespace orvex {

// What a line that was typed is to a question: an answer, a coordinate that is broken, or nothing
// that fits (std::monostate).
using TextReading = std::variant<std::monostate, PromptAnswer, BrokenPoint>;

// A line of a script or of a user that cancels the question.
inline constexpr const wchar_t* kCancelText = L"*CANCEL*";

// Blanks at the text's ends must be gone already. An empty line is no input. Keywords go before
// everything else; "@" counts from LASTPOINT. The echo stays empty.
TextReading answerFromText(const PromptRequest& request, const std::wstring& text);

// Says to the user why a text is no answer.
std::wstring complaintAbout(const PromptRequest& request, const std::wstring& text,
                            const TextReading& reading);

} // namespace orvex
