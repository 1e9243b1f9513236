#pragma once

#include "PromptSource.h"

struct KdDbStub;

namespace orvex {

// Puts one question to the current source with the armed keywords, which are forgotten then, and
// writes question and answer to the command line. ERRNO starts at 0. Without a source the answer
// is a cancel. An answer that can't be one to this kind of question comes back as a cancel, except
// that a keyword which isn't on offer is reported to the source first.
PromptAnswer askUser(PromptKind kind, const wchar_t* prompt,
                     const std::optional<KdGePoint3d>& base = std::nullopt);

// The entity that a pick or a handle means, null for nothing. One named by its handle is found
// wherever it is, seen or not; one on a locked layer is found, too.
KdDbStub* entityOf(const PromptAnswer& answer);

// Writes to the command line, a line at a time; empty lines are left out.
void printLines(const std::wstring& text);

} // namespace orvex
