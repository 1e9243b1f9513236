#pragma once

#include "KdGePoint3d.h"
#include "MlineContent.h"

#include <optional>

namespace orvex {

struct PickMatch {
    unsigned segment = 0;
    unsigned element = 0;

    friend bool operator==(const PickMatch&, const PickMatch&) = default;
};

// What the module's tools take a pick of a multiline for, by the same rules: the lowest segment and
// in it the lowest element whose line passes within the radius (drawing units) and is drawn there;
// with `takesGaps` also where it is cut away. The module doesn't say when it finds nothing, and
// then works with an earlier pick. `pick` is a world point.
std::optional<PickMatch> matchPick(const MlineContent& mline, const KdGePoint3d& pick,
                                   double radius, bool takesGaps);

} // namespace orvex
