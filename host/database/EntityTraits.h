#pragma once

#include "KdCmColor.h"

#include <string>

namespace orvex {

// What all entities have. Most entities of a drawing share a few such values.
struct EntityTraits {
    std::wstring layer = L"0";
    std::wstring linetype = L"ByLayer";
    KdCmColor color;
    double linetypeScale = 1.0;
    bool visible = true;
    bool inPaperSpace = false;

    friend bool operator==(const EntityTraits&, const EntityTraits&) = default;
};

} // namespace orvex
