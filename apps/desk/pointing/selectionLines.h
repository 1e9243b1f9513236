#pragma once

#include "Appearance.h"

#include <QStringList>

#include <cstdint>

namespace orvex {

struct SelectionProgress;

// What a click or a window answers to the question for a selection, as the lines that a script
// would have. Shift takes away, by changing over to removing and back. Places are those of the
// plan; a pixel is `unitsPerPixel` drawing units wide.
QStringList pickLines(const SelectionProgress& progress, PlanPoint at, std::uint64_t handle,
                      bool takesAway, double unitsPerPixel);
QStringList windowLines(const SelectionProgress& progress, PlanPoint first, PlanPoint second,
                        bool takesAway, double unitsPerPixel);

} // namespace orvex
