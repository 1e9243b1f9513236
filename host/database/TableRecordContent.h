#pragma once

#include "KdCmColor.h"
#include "ObjectContent.h"

#include <string>
#include <vector>

namespace orvex {

// A layer.
struct LayerContent final : ObjectContent {
    std::wstring name;
    KdCmColor color;
    std::wstring linetype;
    int lineweight = -3; // hundredths of a millimetre on paper, or one of Lineweight
    bool off = false;
    bool frozen = false;
    bool locked = false;

    [[nodiscard]] bool equals(const ObjectContent& other) const override;
};

// A line type; dashes in drawing units at scale 1.
struct LinetypeContent final : ObjectContent {
    std::wstring name;
    std::wstring comments;
    std::vector<double> dashes;

    [[nodiscard]] bool equals(const ObjectContent& other) const override;
};

} // namespace orvex
