#pragma once

#include "KdCmColor.h"

#include <memory>
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

// As operator==, but -0.0 differs from 0.0.
[[nodiscard]] bool sameTraits(const EntityTraits& a, const EntityTraits& b);

// One common copy for entities alike, as far as such a copy is remembered; never null.
[[nodiscard]] std::shared_ptr<const EntityTraits> shareTraits(const EntityTraits& traits);

} // namespace orvex
