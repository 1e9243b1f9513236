#pragma once

#include "PromptSource.h"

#include <optional>
#include <string>

namespace orvex {

// What a line that was typed answers to a question; nothing where it fits none. Blanks at its ends
// must be gone already. An empty line is no input. The echo stays empty.
std::optional<PromptAnswer> answerFromText(const PromptRequest& request, const std::wstring& text);

// Says to the user what would have been an answer.
std::wstring complaintAbout(const PromptRequest& request, const std::wstring& text);

} // namespace orvex
