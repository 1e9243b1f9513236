#pragma once

#include "Failure.h"
#include "MlineContent.h"
#include "StyleLayout.h"

#include <functional>
#include <memory>
#include <optional>

struct KdDbStub;

namespace orvex {

// Multilines as values, and values back into multilines: edits are functions in between.

// A multiline's content as it is now. Null for anything else and for what can't be read.
std::shared_ptr<const MlineContent> contentOf(KdDbStub& mline);

// What its style says; nothing when the drawing has no such style.
std::optional<StyleLayout> styleLayoutOf(const MlineContent& mline);

// Gives a multiline this content as a change that can be undone; nothing happens to one that has it
// already, bit for bit. True when it changed.
bool storeContent(KdDbStub& mline, MlineContent content);

} // namespace orvex
