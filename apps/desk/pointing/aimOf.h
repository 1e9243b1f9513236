#pragma once

#include "Aim.h"
#include "PromptSource.h"
#include "SelectionMemory.h"

#include <optional>

namespace orvex {

class Scene;

// What a click on the canvas means to a question. Valid as long as the question is.
Aim aimOf(const PromptRequest& request, Scene& scene,
          const std::optional<SelectionProgress>& progress);

} // namespace orvex
